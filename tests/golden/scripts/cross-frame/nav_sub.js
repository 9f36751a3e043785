//----------DHTML Menu Created using Nimbrel ver 2.0-#460---------------
var nbrMenuName='nav_sub';
var nbrLibraryPath='/lib';
var nbrImagesPath='/img';
var nbrSupported=(navigator.appName + navigator.appVersion.substring(0,1)=="Netscape5" || document.all || document.layers || navigator.userAgent.indexOf('Opera')>-1)?1:0;
if (nbrAltUrl!='' && !nbrSupported) window.location.replace(nbrAltUrl);
if (nbrSupported){
var nbrMenuPath;
if (document.all) mpi=document.all['nbrMenuPathImg-nav_sub'].src;
if (document.layers) mpi=document.images['nbrMenuPathImg-nav_sub'].src;
if (navigator.appName + navigator.appVersion.substring(0,1)=="Netscape5" || navigator.userAgent.indexOf('Opera')>-1) mpi=document.getElementById('nbrMenuPathImg-nav_sub').src;
nbrMenuPath=mpi.substring(0,mpi.length-16);
var nua=navigator.userAgent,scriptNo=(nua.indexOf('Gecko')>-1)?2:((document.layers)?3:((nua.indexOf('Opera')>-1)?4:((nua.indexOf('Mac')>-1)?5:1)));
document.write("<SCRIPT SRC='"+nbrMenuPath+nbrLibraryPath+"/nbrlib"+scriptNo+".js'><\/SCRIPT>");
var n=null;
nbrzindex='auto';
}

var nbrSubmenusFrame='';
var nbrSubmenusFrameOffset=-12;
var nbrOptimize=1;
var nbrnav_sub_2,nbrnav_sub_4;
function nbrBuildMenu(){if(nbrSupported){
nbrMenuName='nav_sub_2';
nbrImagesColl=['shared.gif',10,10,'back.gif',4,4];
nbrCreateCSS(1,2,1,'#FFFFFF',n,n,'4mm sans-serif',n,'solid',2,'#5B5B5B',0,0)
nbrCreateCSS(0,1,0,n,'#C0C0C0',0,n,n,'outset',2,'#C0C0C0',0,0);
nbrCreateCSS(1,2,1,'#000000',n,n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#000080',n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#408080',n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,1,0,n,'#C0C0C0',n,n,n,'outset',2,'#C0C0C0',0,0);
nbrCreateCSS(1,2,1,'#000000',n,n,'4mm sans-serif',n,'none',1,n,0.5,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#408080',1,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#408080',1,'4mm sans-serif',n,'none',7,n,0,1)
var s0=nbrCreateMenu(1,0,-2.25,2,0,0,0,1,0,0,0,0,0,1,0,"&nbsp&nbsp Products &nbsp","",-1,3,0,1,0,"say('open, now')",n);
nbrnav_sub_2=s0;
it=s0.addItemWithImages(2,3,4,"Tools","tools","TOOLS","C:\\a \"b\", c",0,n,n,0,0,0,n,n,n,"Tools, all",n,"over('x\y')","click()",n,n);
var s1=it.addSubmenu(1,0,-4,2,0,0,0,5,n,n,"",n,1,0,1,1,n,n);
it=s1.addItem(6,3,7,"Saws",n,n,"","",n,n,n,n,n);
it=s1.addItem(2,3,8,"Files",n,n,"","",n,n,n,n,n);
it=s0.addItem(2,3,4,"Paint",n,n,"","",n,n,n,n,n);
s0.pm.buildMenu();
nbrMenuName='nav_sub_4';
nbrImagesColl=['shared.gif',10,10,'back.gif',4,4,'notes.gif',0,0];
nbrCreateCSS(1,2,1,'#FFFFFF',n,n,'4mm sans-serif',n,'solid',2,'#5B5B5B',0,0)
nbrCreateCSS(0,1,0,n,'#C0C0C0',n,n,n,'outset',2,'#C0C0C0',0,0);
nbrCreateCSS(1,2,1,'#000000',n,n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#000080',n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#408080',n,'4mm sans-serif',n,'none',1,n,0,1)
var s0=nbrCreateMenu(1,0,-4,2,0,0,0,1,0,0,0,0,0,1,0,n,"",n,0,0,1,0,n,n);
nbrnav_sub_4=s0;
it=s0.addItemWithImages(2,3,4,"Write",n,n,"",n,1,2,0,2,0,n,n,n,"",n,n,n,n,n);
s0.pm.buildMenu();}}
if (document.layers) document.write('</table>');
