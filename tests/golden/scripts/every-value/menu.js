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
nbrzindex=9;
}

var nbrSubmenusFrame='';
var nbrSubmenusFrameOffset;
var nbrOptimize=0;
function nbrBuildMenu(){
if (nbrSupported){
nbrImagesColl=['01.gif',1,21,'02.gif',2,22,'03.gif',3,23,'04.gif',4,24,'05.gif',5,25,'06.gif',6,26,'07.gif',7,27,'08.gif',8,28,'09.gif',9,29,'10.gif',10,30,'11.gif',11,31,'12.gif',12,32];
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
nbrCreateCSS(1,2,12,'TitleFontColor','TitleBGColor',n,'TitleFontSize TitleFontFamily',n,'TitleBorderStyle',24,'TitleBorderColor',15,14)
nbrCreateCSS(0,1,0,n,'BGColor',10,n,n,'BorderStyle',29,'BorderColor',0,0);
nbrCreateCSS(0,1,0,n,'BGColor',n,n,n,'BorderStyle',29,'BorderColor',0,0);
nbrCreateCSS(0,1,0,n,'BGColor',11,n,n,'BorderStyle',29,'BorderColor',0,0);
nbrCreateCSS(1,2,91,'FontColor1','BGColor1',n,'FontSize1 FontFamily1',n,'BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'FontColor2','BGColor2',n,'FontSize2 FontFamily2',n,'BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'FontColor3','BGColor3',n,'FontSize3 FontFamily3',n,'BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','BGColor1',n,'FontSize1 FontFamily1',n,'BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','BGColor2',n,'FontSize2 FontFamily2',n,'BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','BGColor3',n,'FontSize3 FontFamily3',n,'BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',n,'FontSize1 FontFamily1',n,'BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',n,'FontSize2 FontFamily2',n,'BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',n,'FontSize3 FontFamily3',n,'BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'FontSize1 FontFamily1',n,'BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',10,'FontSize2 FontFamily2',n,'BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',11,'FontSize3 FontFamily3',n,'BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'bold FontSize1 FontFamily1',n,'BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',10,'bold FontSize2 FontFamily2',n,'BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',11,'bold FontSize3 FontFamily3',n,'BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold FontSize1 FontFamily1',n,'BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',10,'italic bold FontSize2 FontFamily2',n,'BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',11,'italic bold FontSize3 FontFamily3',n,'BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold FontSize1 FontFamily1','underline','BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',10,'italic bold FontSize2 FontFamily2','underline','BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',11,'italic bold FontSize3 FontFamily3','underline','BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 FontFamily1','underline','BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',10,'italic bold size2 FontFamily2','underline','BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',11,'italic bold size3 FontFamily3','underline','BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 font1','underline','BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',10,'italic bold size2 font2','underline','BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',11,'italic bold size3 font3','underline','BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 font1','underline','border1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',10,'italic bold size2 font2','underline','border2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',11,'italic bold size3 font3','underline','border3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 font1','underline','border1',91,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',10,'italic bold size2 font2','underline','border2',92,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',11,'italic bold size3 font3','underline','border3',93,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 font1','underline','border1',91,'#BBB1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',10,'italic bold size2 font2','underline','border2',92,'#BBB2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',11,'italic bold size3 font3','underline','border3',93,'#BBB3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 font1','underline','border1',91,'#BBB1',91,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',10,'italic bold size2 font2','underline','border2',92,'#BBB2',92,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',11,'italic bold size3 font3','underline','border3',93,'#BBB3',93,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 font1','underline','border1',91,'#BBB1',91,90)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',10,'italic bold size2 font2','underline','border2',92,'#BBB2',92,90)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',11,'italic bold size3 font3','underline','border3',93,'#BBB3',93,90)
var s0=nbrCreateMenu(11,0,0,12,13,0,3,4,5,-10.25,7,8,2,1,0,"menuname","TitleTooltip",0,15,35,36,1,"JavascriptOnOpen","JavascriptOnClose");
it=s0.addItemWithImages(2,3,4,"ItemName1","ItemName2","ItemName3","ItemTooltip",2,3,n,10,11,12,4,5,6,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
var s1=it.addSubmenu(1,3,4,5,7,8,6,12,11,"SubmenuName","TitleTooltip",9,11,31,32,1,"JavascriptOnOpen","JavascriptOnClose");
it=s1.addItem(8,9,10,"",n,n,"","",n,"",n,"",n);
it=s1.addItem(8,9,10,"n",n,n,"n","n",n,n,n,n,n);
it=s1.addItem(8,9,10,"C:\\a \"b\"",n,n,"C:\\a \"b\"","C:\\a \"b\"",n,"C:\a 'b'",n,"C:\a "b"",n);
it=s1.addItem(8,9,10,"&nbsp&nbsp a\\ &nbsp",n,n,"a\\","  a\\ ",n,"a\",n,"a\",n);
it=s1.addItem(8,9,10,"&nbsp &nbsp",n,n,""," ",n,"",n,"",n);
it=s1.addItem(8,9,10,"a","b","b","","",n,n,n,n,n);
it=s1.addItem(8,9,10,"","a","a","","",n,n,n,n,n);
it=s1.addItem(8,9,10,"",n,n,"","",n,n,n,n,n);
it=s1.addItem(8,9,10,"a","","","","",n,n,n,n,n);
var s2=it.addSubmenu(0,3,4,5,7,8,6,13,11,n,"TitleTooltip",9,11,31,1,33,n,"JavascriptOnClose");
it=s0.addItemWithImages(5,6,7,"only image 1",n,n,"ItemTooltip",n,n,n,10,11,12,n,n,n,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItemWithImages(5,6,7,"only image 2",n,n,"ItemTooltip",n,n,n,10,11,12,n,n,n,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItemWithImages(5,6,7,"only image 3",n,n,"ItemTooltip",n,n,n,10,11,12,n,n,n,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItemWithImages(5,6,7,"only image 4",n,n,"ItemTooltip",n,n,n,10,11,12,n,n,n,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItemWithImages(5,6,7,"only image 5",n,n,"ItemTooltip",n,n,n,10,11,12,n,n,n,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItemWithImages(5,6,7,"only image 6",n,n,"ItemTooltip",n,n,n,10,11,12,n,n,n,"StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(8,9,10,"Item",n,n,"","",n,n,n,n,n);
var s1=it.addSubmenu(9,3,4,5,7,8,6,14,11,n,"TitleTooltip",n,1,31,32,1,"JavascriptOnOpen","JavascriptOnClose");
it=s1.addItem(5,6,7,"first",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(5,6,7,"same look",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(15,16,17,"other ItemAlignment",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(18,19,20,"other FontColor",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(21,22,23,"other BGColor",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(24,25,26,"other BGImage",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(27,28,29,"other FontBold",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(30,31,32,"other FontItalic",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(33,34,35,"other FontUnderlined",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(36,37,38,"other FontSize",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(39,40,41,"other FontFamily",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(42,43,44,"other BorderStyle",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(45,46,47,"other BorderWidth",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(48,49,50,"other BorderColor",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(51,52,53,"other ItemPadding",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s1.addItem(54,55,56,"other ItemCursor",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
s0.pm.buildMenu();
}}
