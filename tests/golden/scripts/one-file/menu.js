//----------DHTML Menu Created using Nimbrel ver 2.0-#460---------------
var nbrMenuName='menu';
var nbrLibraryPath='/nbrData-menu';
var nbrImagesPath='/nbrData-menu';
var nbrSupported=(navigator.appName + navigator.appVersion.substring(0,1)=="Netscape5" || document.all || document.layers || navigator.userAgent.indexOf('Opera')>-1)?1:0;
if (nbrAltUrl!='' && !nbrSupported) window.location.replace(nbrAltUrl);
if (nbrSupported){
var nbrMenuPath;
if (document.all) mpi=document.all['nbrMenuPathImg-menu'].src;
if (document.layers) mpi=document.images['nbrMenuPathImg-menu'].src;
if (navigator.appName + navigator.appVersion.substring(0,1)=="Netscape5" || navigator.userAgent.indexOf('Opera')>-1) mpi=document.getElementById('nbrMenuPathImg-menu').src;
nbrMenuPath=mpi.substring(0,mpi.length-16);
var nua=navigator.userAgent,scriptNo=(nua.indexOf('Gecko')>-1)?2:((document.layers)?3:((nua.indexOf('Opera')>-1)?4:((nua.indexOf('Mac')>-1)?5:1)));
document.write("<SCRIPT SRC='"+nbrMenuPath+nbrLibraryPath+"/nbrlib"+scriptNo+".js'><\/SCRIPT>");
var n=null;
nbrzindex=-0.5;
}

var nbrSubmenusFrame='';
var nbrSubmenusFrameOffset;
var nbrOptimize=0;
document.write('</table>');
function nbrBuildMenu(){
if (nbrSupported){
nbrImagesColl=['title.gif',88,31,'back.gif',4,4,'arrow.gif',9,7,'shared.gif',10,10,'notes.gif',0,0];
nbrCreateCSS(1,2,1,'#FFFFFF','#5B5B5B',n,'4mm sans-serif',n,'none',2,n,0,4)
nbrCreateCSS(0,1,0,n,'#C0C0C0',1,n,n,'outset',2,'#C0C0C0',0,0);
nbrCreateCSS(1,2,1,'#000000',n,n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#000080',n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#408080',n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#000080',1,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(1,2,1,'#000000',n,n,'italic bold 4mm sans-serif','underline','none',1,n,0,1)
nbrCreateCSS(1,2,1,'#FFFFFF',n,n,'4mm sans-serif',n,'solid',2,'#5B5B5B',0,0)
nbrCreateCSS(0,1,0,n,'#C0C0C0',3,n,n,'outset',2,'#C0C0C0',0,0);
nbrCreateCSS(0,1,0,n,'#C0C0C0',n,n,n,'outset',2,'#C0C0C0',0,0);
nbrCreateCSS(1,2,1,'#000000',n,n,'4mm sans-serif',n,'none',1,n,0.5,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#408080',1,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#408080',1,'4mm sans-serif',n,'none',7,n,0,1)
var s0=nbrCreateMenu(0,0,0,0,1,0,1,2,0,-4.5,30,0,2,1,0,"&nbsp Our \"site\" &nbsp","",0,0,0,0,1,n,n);
it=s0.addItem(2,3,4,"Home",n,n,"","",n,n,n,"C:\a\index.html?x=1,2","new");
it=s0.addItemWithImages(2,5,4,"Products",n,n,"",n,n,n,0,0,0,2,n,n,"",n,n,n,n,n);
var s1=it.addSubmenu(0,0,-2.25,2,0,0,0,8,7,"&nbsp&nbsp Products &nbsp","",n,1,0,1,0,"say('open, now')",n);
it=s1.addItemWithImages(2,3,4,"Tools","tools","TOOLS","C:\\a \"b\", c",3,n,n,0,0,0,n,n,n,"Tools, all",n,"over('x\y')","click()",n,n);
var s2=it.addSubmenu(1,0,-4,2,0,0,0,9,n,n,"",n,1,0,1,1,n,n);
it=s2.addItem(10,3,11,"Saws",n,n,"","",n,n,n,n,n);
it=s2.addItem(2,3,12,"Files",n,n,"","",n,n,n,n,n);
it=s1.addItem(2,3,4,"Paint",n,n,"","",n,n,n,n,n);
it=s0.addItem(2,3,4,"","Plain","Plain","","",n,n,n,n,n);
it=s0.addItem(6,3,4,"Contact",n,n,"","",n,n,n,n,n);
var s1=it.addSubmenu(0,0,-4,2,0,0,0,9,7,n,"",n,0,0,1,0,n,n);
it=s1.addItemWithImages(2,3,4,"Write",n,n,"",n,1,4,0,2,0,n,n,n,"",n,n,n,n,n);
s0.pm.buildMenu();
}}
