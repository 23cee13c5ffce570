// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pagetable.h"

#include "pages.h"

#include <algorithm>
#include <vector>

namespace {

// clang-format off
const QVector<GalleryPage> table {
    {"zem", Subsystem::Foundation, {"ZEM"}, "the tabs of a chart page, by name", &Pages::zem},
    {"zembrush", Subsystem::Foundation, {"ZEMBrush"}, "striped bars, such as those of last year", &Pages::zembrush},
    {"zempixmapcache", Subsystem::Foundation, {"ZEMPixmapCache"}, "one copy of a picture for many widgets", &Pages::zempixmapcache},
    {"zemstyle", Subsystem::Foundation, {"ZEMStyle"}, "the 32 colours of the library", &Pages::zemstyle},
    {"zemutils", Subsystem::Foundation, {"ZEMUtils"}, "texts and speeds of powers", &Pages::zemutils},
    {"zembarindicator", Subsystem::Widgets, {"ZEMBarIndicator"}, "a bar up to a value, with a mark", &Pages::zembarindicator},
    {"zembutton", Subsystem::Widgets, {"ZEMButton"}, "a picture button in all its states", &Pages::zembutton},
    {"zemdialogpopup", Subsystem::Widgets, {"ZEMDialogPopup"}, "a question, a message, a notice", &Pages::zemdialogpopup},
    {"zemlabel", Subsystem::Widgets, {"ZEMLabel"}, "a text with a shadow on a picture", &Pages::zemlabel},
    {"zemlabeledbutton", Subsystem::Widgets, {"ZEMLabeledButton"}, "a button with a title strip", &Pages::zemlabeledbutton},
    {"zemlineedit", Subsystem::Widgets, {"ZEMLineEdit"}, "a text field on a picture", &Pages::zemlineedit},
    {"zemlineeditbutton", Subsystem::Widgets, {"ZEMLineEditButton"}, "a button that looks like a field", &Pages::zemlineeditbutton},
    {"zemmenuoverlay", Subsystem::Widgets, {"ZEMMenuOverlay"}, "a menu of large buttons", &Pages::zemmenuoverlay},
    {"zemnotificationbutton", Subsystem::Widgets, {"ZEMNotificationButton"}, "a button with a badge", &Pages::zemnotificationbutton},
    {"zemnotificationicon", Subsystem::Widgets, {"ZEMNotificationIcon"}, "a picture with a badge", &Pages::zemnotificationicon},
    {"zempagebackground", Subsystem::Widgets, {"ZEMPageBackground"}, "a picture or a colour behind a page", &Pages::zempagebackground},
    {"zempageheader", Subsystem::Widgets, {"ZEMPageHeader", "ZEMPageHeaderInterface"}, "title, actions and buttons of a page", &Pages::zempageheader},
    {"zempageheaderbutton", Subsystem::Widgets, {"ZEMPageHeaderButton"}, "the tiles of a page header", &Pages::zempageheaderbutton},
    {"zempageindicator", Subsystem::Widgets, {"ZEMPageIndicator"}, "dots that tell which page is shown", &Pages::zempageindicator},
    {"zempixmap", Subsystem::Widgets, {"ZEMPixmap"}, "a picture with an opacity", &Pages::zempixmap},
    {"zemprofilebutton", Subsystem::Widgets, {"ZEMProfileButton"}, "a row to choose a profile from", &Pages::zemprofilebutton},
    {"zemradiobutton", Subsystem::Widgets, {"ZEMRadioButton"}, "the dot of a page indicator", &Pages::zemradiobutton},
    {"zemtextlabel", Subsystem::Widgets, {"ZEMTextLabel"}, "a label with or without a shadow", &Pages::zemtextlabel},
    {"zemthreestars", Subsystem::Widgets, {"ZEMThreeStars"}, "a rating of up to three stars", &Pages::zemthreestars},
    {"zemthrobber", Subsystem::Widgets, {"ZEMThrobber"}, "a spinner: the display is busy", &Pages::zemthrobber},
    {"zemwidgetlabel", Subsystem::Widgets, {"ZEMWidgetLabel"}, "the title strip of a widget", &Pages::zemwidgetlabel},
    {"keyboardfactorydefault", Subsystem::Keyboard, {"KeyboardFactoryDefault", "ZEMVirtualKeyboardFactoryIntf"}, "makes keyboards from files", &Pages::keyboardfactorydefault},
    {"zemdialogshowtext", Subsystem::Keyboard, {"ZEMDialogShowText"}, "a long text, page by page", &Pages::zemdialogshowtext},
    {"zemkeyboardinputhandler", Subsystem::Keyboard, {"ZEMKeyboardInputHandler"}, "how callers of one dialog hear of it", &Pages::zemkeyboardinputhandler},
    {"zemlineeditdialog", Subsystem::Keyboard, {"ZEMLineEditDialog"}, "asks for a line of text", &Pages::zemlineeditdialog},
    {"zemlineeditsearchdialog", Subsystem::Keyboard, {"ZEMLineEditSearchDialog"}, "asks for a search term", &Pages::zemlineeditsearchdialog},
    {"zemmultilinedialog", Subsystem::Keyboard, {"ZEMMultiLineDialog"}, "asks for several lines", &Pages::zemmultilinedialog},
    {"zemnumerickeypad", Subsystem::Keyboard, {"ZEMNumericKeypad"}, "asks for a number", &Pages::zemnumerickeypad},
    {"zempassworddialog", Subsystem::Keyboard, {"ZEMPasswordDialog"}, "asks for a secret", &Pages::zempassworddialog},
    {"zemvirtualkey", Subsystem::Keyboard, {"ZEMVirtualKey"}, "one key, in all its types", &Pages::zemvirtualkey},
    {"zemvirtualkeyboard", Subsystem::Keyboard, {"ZEMVirtualKeyboard"}, "every keyboard file", &Pages::zemvirtualkeyboard},
    {"zemvirtualkeyfactoryintf", Subsystem::Keyboard, {"ZEMVirtualKeyFactoryIntf"}, "a keyboard with keys of one's own", &Pages::zemvirtualkeyfactoryintf},
    {"zemactionlistmodel", Subsystem::Lists, {"ZEMActionListModel"}, "actions as a menu", &Pages::zemactionlistmodel},
    {"zemlistview", Subsystem::Lists, {"ZEMListView", "ZEMListViewInterface"}, "one of many texts, page by page", &Pages::zemlistview},
    {"zemlistviewlogic", Subsystem::Lists, {"ZEMListViewLogic"}, "pages for a list of one's own", &Pages::zemlistviewlogic},
    {"zemsimplelistview", Subsystem::Lists, {"ZEMSimpleListView"}, "one of a few pictures", &Pages::zemsimplelistview},
    {"zemtableviewlogic", Subsystem::Lists, {"ZEMTableViewLogic", "ZEMTableViewInterface"}, "pages for a table", &Pages::zemtableviewlogic},
    {"qwtlegenditem", Subsystem::Charts, {"QwtLegendItem"}, "an entry of a legend", &Pages::qwtlegenditem},
    {"qwtpannerbase", Subsystem::Charts, {"QwtPannerBase"}, "turns touches into moves and clicks", &Pages::qwtpannerbase},
    {"qwtplotmover", Subsystem::Charts, {"QwtPlotMover"}, "drags and pages a plot", &Pages::qwtplotmover},
    {"zemcolumnsymbol", Subsystem::Charts, {"ZEMColumnSymbol"}, "columns with an icon", &Pages::zemcolumnsymbol},
    {"zemhistogram", Subsystem::Charts, {"ZEMHistogram"}, "a chart with another under it", &Pages::zemhistogram},
    {"zemhistogrambutton", Subsystem::Charts, {"ZEMHistogramButton"}, "a chart on a button", &Pages::zemhistogrambutton},
    {"zemhistogramdata", Subsystem::Charts, {"ZEMHistogramData"}, "windows of slots, merged or not", &Pages::zemhistogramdata},
    {"zemhistogramlegend", Subsystem::Charts, {"ZEMHistogramLegend"}, "a legend for a plot of one's own", &Pages::zemhistogramlegend},
    {"zemhistogramlegenditem", Subsystem::Charts, {"ZEMHistogramLegendItem"}, "an entry on a picture", &Pages::zemhistogramlegenditem},
    {"zemhistogramseries", Subsystem::Charts, {"ZEMHistogramSeries"}, "bars, their colour and icon", &Pages::zemhistogramseries},
    {"zemhistogramwidget", Subsystem::Charts, {"ZEMHistogramWidget"}, "a page of charts with tabs", &Pages::zemhistogramwidget},
    {"zemminidayhistogram", Subsystem::Charts, {"ZEMMiniDayHistogram"}, "the small chart of a day", &Pages::zemminidayhistogram},
    {"zemscaledraw", Subsystem::Charts, {"ZEMScaleDraw", "ZEMDayScaleDraw", "ZEMKWhScaleDraw", "ZEMMonthKWhScaleDraw", "ZEMMonthScaleDraw", "ZEMNoScaleDraw", "ZEMWeekScaleDraw"}, "the scales of the charts", &Pages::zemscaledraw},
    {"zemscaleengine", Subsystem::Charts, {"ZEMScaleEngine"}, "labels beside the steps", &Pages::zemscaleengine},
    {"zemsmartdayhistogram", Subsystem::Charts, {"ZEMSmartDayHistogram"}, "the hours of a day", &Pages::zemsmartdayhistogram},
    {"zemsmarthistogram", Subsystem::Charts, {"ZEMSmartHistogram"}, "a chart of months, derived from it", &Pages::zemsmarthistogram},
    {"zemsmartmonthhistogram", Subsystem::Charts, {"ZEMSmartMonthHistogram"}, "the weeks of a month", &Pages::zemsmartmonthhistogram},
    {"zemsmartweekhistogram", Subsystem::Charts, {"ZEMSmartWeekHistogram"}, "the days of a week", &Pages::zemsmartweekhistogram},
    {"zemweekhistogram", Subsystem::Charts, {"ZEMWeekHistogram"}, "a plain chart of a week", &Pages::zemweekhistogram},
    {"zemanimatedarrows", Subsystem::Dashboard, {"ZEMAnimatedArrows"}, "a flow of energy", &Pages::zemanimatedarrows},
    {"zemcurrentstatusdetails", Subsystem::Dashboard, {"ZEMCurrentStatusDetails"}, "what makes up the power of now", &Pages::zemcurrentstatusdetails},
    {"zemcurrentstatusdetailsitem", Subsystem::Dashboard, {"ZEMCurrentStatusDetailsItem"}, "one device or source", &Pages::zemcurrentstatusdetailsitem},
    {"zemcurrentstatuswidget", Subsystem::Dashboard, {"ZEMCurrentStatusWidget"}, "sun, house and grid now", &Pages::zemcurrentstatuswidget},
    {"zemenergyicon", Subsystem::Dashboard, {"ZEMEnergyIcon"}, "the badge of an energy", &Pages::zemenergyicon},
    {"zemenergytab", Subsystem::Dashboard, {"ZEMEnergyTab"}, "a tab for an energy", &Pages::zemenergytab},
    {"zemenergytabwidget", Subsystem::Dashboard, {"ZEMEnergyTabWidget"}, "a row of energy tabs", &Pages::zemenergytabwidget},
    {"zemtotalstodaywidget", Subsystem::Dashboard, {"ZEMTotalsTodayWidget"}, "two small charts of today", &Pages::zemtotalstodaywidget},
    {"zemplot", Subsystem::PlotTools, {"ZEMPlot"}, "curves to zoom and pan", &Pages::zemplot},
    {"zemplotstyler", Subsystem::PlotTools, {"ZEMPlotStyler"}, "the looks of a plot, by day and night", &Pages::zemplotstyler},
    {"zemplottouchguard", Subsystem::PlotTools, {"ZEMPlotTouchGuard"}, "a plot fit for a finger", &Pages::zemplottouchguard},
    {"zemplotzoomer", Subsystem::PlotTools, {"ZEMPlotZoomer", "ZEMQwtPickerDraw"}, "zooming by dragging a rectangle", &Pages::zemplotzoomer},
    {"zemplotzoomeradvanced", Subsystem::PlotTools, {"ZEMPlotZoomerAdvanced", "ZEMQwtPickerDrawAdvanced"}, "zooming one axis or both", &Pages::zemplotzoomeradvanced},
    {"zemqwtplotcurvepointgetter", Subsystem::PlotTools, {"ZEMQwtPlotCurvePointGetter"}, "the sample at a position", &Pages::zemqwtplotcurvepointgetter},
    {"zemqwtplothistogram", Subsystem::PlotTools, {"ZEMQwtPlotHistogram"}, "a curve drawn as bars", &Pages::zemqwtplothistogram},
    {"zemqwtplotmarker", Subsystem::PlotTools, {"ZEMQwtPlotMarker"}, "a marker that writes its place", &Pages::zemqwtplotmarker},
    {"zemqwtplotpointpicker", Subsystem::PlotTools, {"ZEMQwtPlotPointPicker", "ZEMTrackerPickerMachine"}, "picks the point that is tapped", &Pages::zemqwtplotpointpicker},
    {"zemqwtplottracker", Subsystem::PlotTools, {"ZEMQwtPlotTracker"}, "follows the finger", &Pages::zemqwtplottracker},
};
// clang-format on

/** How many letters have to be changed, added or taken away to make one word of the other. */
int distance(const QString &one, const QString &other)
{
    std::vector<int> line(std::size_t(other.size()) + 1);
    for (std::size_t i = 0; i < line.size(); ++i) {
        line[i] = int(i);
    }
    for (const QChar letter : one) {
        int diagonal = line[0]++;
        for (std::size_t i = 1; i < line.size(); ++i) {
            const int change = diagonal + (letter == other.at(int(i) - 1) ? 0 : 1);
            diagonal = line[i];
            line[i] = std::min({change, line[i] + 1, line[i - 1] + 1});
        }
    }
    return line.back();
}

template <typename Accept>
QStringList classesThat(const Accept &accept)
{
    QStringList classes;
    for (const GalleryPage &page : allPages()) {
        if (accept(page)) {
            classes += page.classes;
        }
    }
    classes.sort();
    return classes;
}

} // namespace

QString nameOf(Subsystem subsystem)
{
    switch (subsystem) {
    case Subsystem::Foundation:
        return QStringLiteral("foundation");
    case Subsystem::Widgets:
        return QStringLiteral("widgets");
    case Subsystem::Keyboard:
        return QStringLiteral("keyboard");
    case Subsystem::Lists:
        return QStringLiteral("lists");
    case Subsystem::Charts:
        return QStringLiteral("charts");
    case Subsystem::Dashboard:
        return QStringLiteral("dashboard");
    case Subsystem::PlotTools:
        break;
    }
    return QStringLiteral("plot tools");
}

const QVector<Subsystem> &allSubsystems()
{
    static const QVector<Subsystem> all {
        Subsystem::Foundation, Subsystem::Widgets,   Subsystem::Keyboard, Subsystem::Lists,
        Subsystem::Charts,     Subsystem::Dashboard, Subsystem::PlotTools};
    return all;
}

const QVector<GalleryPage> &allPages()
{
    return table;
}

QStringList allClasses()
{
    return classesThat([](const GalleryPage &) { return true; });
}

QStringList classesOf(Subsystem subsystem)
{
    return classesThat([=](const GalleryPage &page) { return page.subsystem == subsystem; });
}

const GalleryPage *pageOf(const QString &name)
{
    for (const GalleryPage &page : allPages()) {
        if (page.classes.contains(name, Qt::CaseInsensitive)) {
            return &page;
        }
    }
    return nullptr;
}

QString nearestClass(const QString &name)
{
    const QStringList classes = allClasses();
    const QString wanted = name.toLower();
    return *std::min_element(
        classes.cbegin(), classes.cend(), [&](const QString &one, const QString &other) {
            return distance(wanted, one.toLower()) < distance(wanted, other.toLower());
        });
}

QString sourceOf(const GalleryPage &page)
{
    return QStringLiteral(":/gallery/pages/%1.cpp").arg(page.file);
}
