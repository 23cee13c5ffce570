// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAGES_H
#define PAGES_H

class Stage;

/** The pages of the gallery: each shows its class on the stage. Named after their files. */
namespace Pages {

void zem(Stage &stage);
void zembrush(Stage &stage);
void zempixmapcache(Stage &stage);
void zemstyle(Stage &stage);
void zemutils(Stage &stage);
void zembarindicator(Stage &stage);
void zembutton(Stage &stage);
void zemdialogpopup(Stage &stage);
void zemlabel(Stage &stage);
void zemlabeledbutton(Stage &stage);
void zemlineedit(Stage &stage);
void zemlineeditbutton(Stage &stage);
void zemmenuoverlay(Stage &stage);
void zemnotificationbutton(Stage &stage);
void zemnotificationicon(Stage &stage);
void zempagebackground(Stage &stage);
void zempageheader(Stage &stage);
void zempageheaderbutton(Stage &stage);
void zempageindicator(Stage &stage);
void zempixmap(Stage &stage);
void zemprofilebutton(Stage &stage);
void zemradiobutton(Stage &stage);
void zemtextlabel(Stage &stage);
void zemthreestars(Stage &stage);
void zemthrobber(Stage &stage);
void zemwidgetlabel(Stage &stage);
void keyboardfactorydefault(Stage &stage);
void zemdialogshowtext(Stage &stage);
void zemkeyboardinputhandler(Stage &stage);
void zemlineeditdialog(Stage &stage);
void zemlineeditsearchdialog(Stage &stage);
void zemmultilinedialog(Stage &stage);
void zemnumerickeypad(Stage &stage);
void zempassworddialog(Stage &stage);
void zemvirtualkey(Stage &stage);
void zemvirtualkeyboard(Stage &stage);
void zemvirtualkeyfactoryintf(Stage &stage);
void zemactionlistmodel(Stage &stage);
void zemlistview(Stage &stage);
void zemlistviewlogic(Stage &stage);
void zemsimplelistview(Stage &stage);
void zemtableviewlogic(Stage &stage);
void qwtlegenditem(Stage &stage);
void qwtpannerbase(Stage &stage);
void qwtplotmover(Stage &stage);
void zemcolumnsymbol(Stage &stage);
void zemhistogram(Stage &stage);
void zemhistogrambutton(Stage &stage);
void zemhistogramdata(Stage &stage);
void zemhistogramlegend(Stage &stage);
void zemhistogramlegenditem(Stage &stage);
void zemhistogramseries(Stage &stage);
void zemhistogramwidget(Stage &stage);
void zemminidayhistogram(Stage &stage);
void zemscaledraw(Stage &stage);
void zemscaleengine(Stage &stage);
void zemsmartdayhistogram(Stage &stage);
void zemsmarthistogram(Stage &stage);
void zemsmartmonthhistogram(Stage &stage);
void zemsmartweekhistogram(Stage &stage);
void zemweekhistogram(Stage &stage);
void zemanimatedarrows(Stage &stage);
void zemcurrentstatusdetails(Stage &stage);
void zemcurrentstatusdetailsitem(Stage &stage);
void zemcurrentstatuswidget(Stage &stage);
void zemenergyicon(Stage &stage);
void zemenergytab(Stage &stage);
void zemenergytabwidget(Stage &stage);
void zemtotalstodaywidget(Stage &stage);
void zemplot(Stage &stage);
void zemplotstyler(Stage &stage);
void zemplottouchguard(Stage &stage);
void zemplotzoomer(Stage &stage);
void zemplotzoomeradvanced(Stage &stage);
void zemqwtplotcurvepointgetter(Stage &stage);
void zemqwtplothistogram(Stage &stage);
void zemqwtplotmarker(Stage &stage);
void zemqwtplotpointpicker(Stage &stage);
void zemqwtplottracker(Stage &stage);

} // namespace Pages

#endif
