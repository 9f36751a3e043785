//----------DHTML Menu Created using Nimbrel ver 2.0-#460---------------
var nbrMenuName='menu_sub';
var nbrLibraryPath='/lib';
var nbrImagesPath='/img';
var nbrSupported=(navigator.appName + navigator.appVersion.substring(0,1)=="Netscape5" || document.all || document.layers || navigator.userAgent.indexOf('Opera')>-1)?1:0;
if (nbrAltUrl!='' && !nbrSupported) window.location.replace(nbrAltUrl);
if (nbrSupported){
var nbrMenuPath;
if (document.all) mpi=document.all['nbrMenuPathImg-menu_sub'].src;
if (document.layers) mpi=document.images['nbrMenuPathImg-menu_sub'].src;
if (navigator.appName + navigator.appVersion.substring(0,1)=="Netscape5" || navigator.userAgent.indexOf('Opera')>-1) mpi=document.getElementById('nbrMenuPathImg-menu_sub').src;
nbrMenuPath=mpi.substring(0,mpi.length-16);
var nua=navigator.userAgent,scriptNo=(nua.indexOf('Gecko')>-1)?2:((document.layers)?3:((nua.indexOf('Opera')>-1)?4:((nua.indexOf('Mac')>-1)?5:1)));
document.write("<SCRIPT SRC='"+nbrMenuPath+nbrLibraryPath+"/nbrlib"+scriptNo+".js'><\/SCRIPT>");
var n=null;
nbrzindex=9;
}

var nbrSubmenusFrame='';
var nbrSubmenusFrameOffset=-7;
var nbrOptimize=1;
var nbrmenu_sub_1,nbrmenu_sub_8;
function nbrBuildMenu(){if(nbrSupported){
nbrMenuName='menu_sub_1';
nbrImagesColl=['10.gif',10,30,'11.gif',11,31];
nbrCreateCSS(1,2,12,'TitleFontColor','TitleBGColor',n,'TitleFontSize TitleFontFamily',n,'TitleBorderStyle',24,'TitleBorderColor',15,14)
nbrCreateCSS(0,1,0,n,'BGColor',1,n,n,'BorderStyle',29,'BorderColor',0,0);
nbrCreateCSS(1,2,1,'#000000',n,n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#000080',n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,2,1,'#FFFFFF','#408080',n,'4mm sans-serif',n,'none',1,n,0,1)
nbrCreateCSS(0,1,0,n,'BGColor',n,n,n,'BorderStyle',29,'BorderColor',0,0);
var s0=nbrCreateMenu(1,3,4,5,7,8,0,1,0,0,0,0,1,1,0,"SubmenuName","TitleTooltip",0,11,31,32,1,"JavascriptOnOpen","JavascriptOnClose");
nbrmenu_sub_1=s0;
it=s0.addItem(2,3,4,"",n,n,"","",n,"",n,"",n);
it=s0.addItem(2,3,4,"n",n,n,"n","n",n,n,n,n,n);
it=s0.addItem(2,3,4,"C:\\a \"b\"",n,n,"C:\\a \"b\"","C:\\a \"b\"",n,"C:\a 'b'",n,"C:\a "b"",n);
it=s0.addItem(2,3,4,"&nbsp&nbsp a\\ &nbsp",n,n,"a\\","  a\\ ",n,"a\",n,"a\",n);
it=s0.addItem(2,3,4,"&nbsp &nbsp",n,n,""," ",n,"",n,"",n);
it=s0.addItem(2,3,4,"a","b","b","","",n,n,n,n,n);
it=s0.addItem(2,3,4,"","a","a","","",n,n,n,n,n);
it=s0.addItem(2,3,4,"",n,n,"","",n,n,n,n,n);
it=s0.addItem(2,3,4,"a","","","","",n,n,n,n,n);
var s1=it.addSubmenu(0,3,4,5,7,8,6,5,0,n,"TitleTooltip",0,11,31,1,33,n,"JavascriptOnClose");
s0.pm.buildMenu();
nbrMenuName='menu_sub_8';
nbrImagesColl=['12.gif',12,32,'02.gif',2,22,'11.gif',11,31];
nbrCreateCSS(1,2,12,'TitleFontColor','TitleBGColor',n,'TitleFontSize TitleFontFamily',n,'TitleBorderStyle',24,'TitleBorderColor',15,14)
nbrCreateCSS(0,1,0,n,'BGColor',0,n,n,'BorderStyle',29,'BorderColor',0,0);
nbrCreateCSS(1,2,13,'FontColor1','BGColor1',n,'FontSize1 FontFamily1',n,'BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,14,'FontColor2','BGColor2',n,'FontSize2 FontFamily2',n,'BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,15,'FontColor3','BGColor3',n,'FontSize3 FontFamily3',n,'BorderStyle3',47,'BorderColor3',20,17)
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
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',2,'FontSize2 FontFamily2',n,'BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',0,'FontSize3 FontFamily3',n,'BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'bold FontSize1 FontFamily1',n,'BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',2,'bold FontSize2 FontFamily2',n,'BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',0,'bold FontSize3 FontFamily3',n,'BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold FontSize1 FontFamily1',n,'BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',2,'italic bold FontSize2 FontFamily2',n,'BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',0,'italic bold FontSize3 FontFamily3',n,'BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold FontSize1 FontFamily1','underline','BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',2,'italic bold FontSize2 FontFamily2','underline','BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',0,'italic bold FontSize3 FontFamily3','underline','BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 FontFamily1','underline','BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',2,'italic bold size2 FontFamily2','underline','BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',0,'italic bold size3 FontFamily3','underline','BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 font1','underline','BorderStyle1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',2,'italic bold size2 font2','underline','BorderStyle2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',0,'italic bold size3 font3','underline','BorderStyle3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 font1','underline','border1',45,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',2,'italic bold size2 font2','underline','border2',46,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',0,'italic bold size3 font3','underline','border3',47,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 font1','underline','border1',91,'BorderColor1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',2,'italic bold size2 font2','underline','border2',92,'BorderColor2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',0,'italic bold size3 font3','underline','border3',93,'BorderColor3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 font1','underline','border1',91,'#BBB1',18,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',2,'italic bold size2 font2','underline','border2',92,'#BBB2',19,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',0,'italic bold size3 font3','underline','border3',93,'#BBB3',20,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 font1','underline','border1',91,'#BBB1',91,17)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',2,'italic bold size2 font2','underline','border2',92,'#BBB2',92,17)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',0,'italic bold size3 font3','underline','border3',93,'#BBB3',93,17)
nbrCreateCSS(1,2,91,'#ABC1','#DEF1',1,'italic bold size1 font1','underline','border1',91,'#BBB1',91,90)
nbrCreateCSS(0,2,92,'#ABC2','#DEF2',2,'italic bold size2 font2','underline','border2',92,'#BBB2',92,90)
nbrCreateCSS(0,2,93,'#ABC3','#DEF3',0,'italic bold size3 font3','underline','border3',93,'#BBB3',93,90)
var s0=nbrCreateMenu(1,3,4,5,7,8,0,1,0,0,0,0,9,1,0,n,"TitleTooltip",n,11,31,32,1,"JavascriptOnOpen","JavascriptOnClose");
nbrmenu_sub_8=s0;
it=s0.addItem(2,3,4,"first",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(2,3,4,"same look",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(5,6,7,"other ItemAlignment",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(8,9,10,"other FontColor",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(11,12,13,"other BGColor",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(14,15,16,"other BGImage",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(17,18,19,"other FontBold",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(20,21,22,"other FontItalic",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(23,24,25,"other FontUnderlined",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(26,27,28,"other FontSize",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(29,30,31,"other FontFamily",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(32,33,34,"other BorderStyle",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(35,36,37,"other BorderWidth",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(38,39,40,"other BorderColor",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(41,42,43,"other ItemPadding",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
it=s0.addItem(44,45,46,"other ItemCursor",n,n,"ItemTooltip","StatusBarText","JavascriptCommand1","JavascriptCommand2","JavascriptCommand3","URL","TargetFrame");
s0.pm.buildMenu();}}
if (document.layers) document.write('</table>');
