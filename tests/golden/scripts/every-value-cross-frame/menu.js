//----------DHTML Menu Created using Nimbrel ver 2.0-#460---------------
var nbrMenuName='menu';
var nbrLibraryPath='/lib';
var nbrImagesPath='/img';
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
nbrzindex=9;
}

var nbrSubmenusFrame='content';
var nbrSubmenusFrameOffset;
var nbrOptimize=1;
document.write('</table>');
function nbrBuildMenu(){
if (nbrSupported){
nbrImagesColl=['01.gif',1,21,'02.gif',2,22,'03.gif',3,23,'04.gif',4,24,'05.gif',5,25,'06.gif',6,26,'07.gif',7,27,'08.gif',8,28,'09.gif',9,29,'12.gif',12,32];
nbrCreateCSS(1,2,16,'TitleFontColor',n,n,'italic bold TitleFontSize TitleFontFamily','underline','n',28,'TitleBorderColor',1.5,18)
nbrCreateCSS(0,1,0,n,'BGColor',1,n,n,'BorderStyle',33,n,0,0);
nbrCreateCSS(1,2,13,'FontColor1','BGColor1',7,'italic FontSize1 FontFamily1',n,'BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,14,'FontColor2','BGColor2',n,'bold FontSize2 FontFamily2',n,'BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,15,'FontColor3','BGColor3',8,'FontSize3 FontFamily3','underline','BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,13,'FontColor1','BGColor1',n,'FontSize1 FontFamily1',n,'BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,14,'FontColor2','BGColor2',n,'FontSize2 FontFamily2',n,'BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,15,'FontColor3','BGColor3',n,'FontSize3 FontFamily3',n,'BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,1,'#000000',n,n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#000080',n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#408080',n,'4mm sans-serif',n,'none',1,n,0,1)
var s0=nbrCreateMenu(11,0,0,12,13,0,3,4,5,-10.25,7,8,2,1,0,"menuname","TitleTooltip",0,15,35,36,1,"JavascriptOnOpen","JavascriptOnClose");
it=s0.addItemWithImages(2,3,4,"ItemName1","ItemName2","ItemName3","ItemTooltip",2,3,n,10,11,12,4,5,6,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItemWithImages(5,6,7,"only image 1",n,n,"ItemTooltip",n,n,n,10,11,12,n,n,n,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItemWithImages(5,6,7,"only image 2",n,n,"ItemTooltip",n,n,n,10,11,12,n,n,n,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItemWithImages(5,6,7,"only image 3",n,n,"ItemTooltip",n,n,n,10,11,12,n,n,n,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItemWithImages(5,6,7,"only image 4",n,n,"ItemTooltip",n,n,n,10,11,12,n,n,n,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItemWithImages(5,6,7,"only image 5",n,n,"ItemTooltip",n,n,n,10,11,12,n,n,n,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItemWithImages(5,6,7,"only image 6",n,n,"ItemTooltip",n,n,n,10,11,12,n,n,n,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(8,9,10,"Item",n,n,"","",n,n,n,n,n);
s0.pm.buildMenu();
}}
