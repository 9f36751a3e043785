//----------DHTML Menu Created using Nimbrel ver 2.0-#460---------------
var nbrMenuName='menu1';
var nbrLibraryPath='/nbrData-menu1';
var nbrImagesPath='/nbrData-menu1';
var nbrSupported=(navigator.appName + navigator.appVersion.substring(0,1)=="Netscape5" || document.all || document.layers || navigator.userAgent.indexOf('Opera')>-1)?1:0;
if (nbrAltUrl!='' && !nbrSupported) window.location.replace(nbrAltUrl);
if (nbrSupported){
var nbrMenuPath;
if (document.all) mpi=document.all['nbrMenuPathImg-menu1'].src;
if (document.layers) mpi=document.images['nbrMenuPathImg-menu1'].src;
if (navigator.appName + navigator.appVersion.substring(0,1)=="Netscape5" || navigator.userAgent.indexOf('Opera')>-1) mpi=document.getElementById('nbrMenuPathImg-menu1').src;
nbrMenuPath=mpi.substring(0,mpi.length-16);
var nua=navigator.userAgent,scriptNo=(nua.indexOf('Gecko')>-1)?2:((document.layers)?3:((nua.indexOf('Opera')>-1)?4:((nua.indexOf('Mac')>-1)?5:1)));
document.write("<SCRIPT SRC='"+nbrMenuPath+nbrLibraryPath+"/nbrlib"+scriptNo+".js'><\/SCRIPT>");
var n=null;
nbrzindex=1000;
}

var nbrSubmenusFrame='';
var nbrSubmenusFrameOffset;
var nbrOptimize=0;
function nbrBuildMenu(){
if (nbrSupported){
nbrCreateCSS(1,2,1,'#FFFFFF','#5B5B5B',n,'4mm sans-serif',n,'none',2,n,0,4)
nbrCreateCSS(0,1,0,n,'#C0C0C0',n,n,n,'outset',2,'#C0C0C0',0,0);
nbrCreateCSS(1,2,1,'#000000',n,n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#000080',n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#408080',n,'4mm sans-serif',n,'none',1,n,0,1)
var s0=nbrCreateMenu(0,0,0,0,1,0,1,2,0,30,30,0,0,1,0,"Main Menu","",n,1,0,1,0,n,n);
it=s0.addItem(2,3,4,"Item",n,n,"","",n,n,n,n,n);
s0.pm.buildMenu();
}}
