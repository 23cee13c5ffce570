// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "widgettable.h"

#include "namedwidgets.h"
#include "samples.h"

#include <QColor>
#include <QIcon>
#include <QLayout>
#include <QMetaEnum>
#include <QMetaProperty>
#include <QPixmap>
#include <Zemkit>

namespace {

constexpr const char *widgets = "Zemkit: Widgets";
constexpr const char *keyboard = "Zemkit: Keyboard";
constexpr const char *lists = "Zemkit: Lists";
constexpr const char *charts = "Zemkit: Charts";
constexpr const char *dashboard = "Zemkit: Dashboard";

constexpr Children none {};
constexpr Children free {true, nullptr};

QVector<QWidget *> widgetsOf(const QLayout *layout)
{
    QVector<QWidget *> all;
    for (int i = 0; i < layout->count(); ++i) {
        all.append(layout->itemAt(i)->widget());
    }
    return all;
}

QVector<QWidget *> headerPages(const QWidget *header)
{
    QVector<QWidget *> pages;
    for (const QWidget *tile :
         widgetsOf(header->findChild<QLayout *>(QStringLiteral("btnLayout")))) {
        pages += widgetsOf(tile->layout());
    }
    return pages;
}

void addHeaderButton(QWidget *header, QWidget *page)
{
    static_cast<ZEMPageHeader *>(header)->addButton(page);
}

void clearHeader(QWidget *header)
{
    static_cast<ZEMPageHeader *>(header)->setNrOfButtons(0);
}

QVector<QWidget *> tilePages(const QWidget *tile)
{
    return widgetsOf(tile->layout());
}

void setTileWidget(QWidget *tile, QWidget *page)
{
    static_cast<ZEMPageHeaderButton *>(tile)->setWidget(page);
}

void clearTile(QWidget * /*tile*/) { }

constexpr PageMethod headerButtons {"addButton", 5, &headerPages, &addHeaderButton, &clearHeader};
constexpr PageMethod tileWidget {"setWidget", 1, &tilePages, &setTileWidget, &clearTile};

SampleProperty text(const char *name, const char *value)
{
    return {name, SampleProperty::Text, QString::fromUtf8(value)};
}

SampleProperty number(const char *name, int value)
{
    return {name, SampleProperty::Number, value};
}

SampleProperty flag(const char *name)
{
    return {name, SampleProperty::Flag, true};
}

SampleProperty colour(const char *name, const QColor &value)
{
    return {name, SampleProperty::Colour, value};
}

QString path(const char *file)
{
    return QStringLiteral(":/zem/graphics/%1.png").arg(QLatin1String(file));
}

SampleProperty picture(const char *name, const char *file)
{
    return {name, SampleProperty::Picture, path(file)};
}

SampleProperty icon(const char *name, const char *file)
{
    return {name, SampleProperty::Icon, path(file)};
}

SampleProperty choice(const char *name, const char *key)
{
    return {name, SampleProperty::Choice, QString::fromLatin1(key)};
}

/** @p enliven gives the new widget its sample data. */
template <class Widget, class Enliven = void (*)(Widget &)>
WidgetEntry entry(
    const char *name, const char *group, const QSize &size, const Children &children,
    const char *summary, const QVector<SampleProperty> &properties = {},
    Enliven enliven = [](Widget &) {})
{
    const auto make = [](QWidget *parent) -> QWidget * { return new Widget(parent); };
    const auto makeAlive = [enliven](QWidget *parent) -> QWidget * {
        auto *widget = new Widget(parent);
        enliven(*widget);
        return widget;
    };
    return {name, group,    size, children, summary, properties, &Widget::staticMetaObject,
            make, makeAlive};
}

// clang-format off
const QVector<WidgetEntry> table {
    entry<ZEMBarIndicator>("ZEMBarIndicator", widgets, {200, 12}, none,
        "A bar up to a value, with an optional mark.", {}, &Samples::bar),
    entry<ZEMButton>("ZEMButton", widgets, {75, 75}, free,
        "A picture button with an icon and a text; with children on it, a tile to touch.",
        {picture("background", "main/buttons/btn_square_small"), picture("backgroundOff", "main/buttons/btn_square_small_disabled"),
         icon("icon", "icons/green-ok-icon_small")}, &Samples::lightTexts),
    entry<ZEMDialogPopup>("ZEMDialogPopup", widgets, {640, 480}, none,
        "A question, a message or a notice on a darkened page, hidden until exec() or info() shows it.", {}, &Samples::popup),
    entry<ZEMLabel>("ZEMLabel", widgets, {127, 27}, none,
        "A text with a shadow on a picture.",
        {picture("pixmap", "main/text_bg_medium"), text("text", "1,5 kW")}),
    entry<ZEMLabeledButton>("ZEMLabeledButton", widgets, {152, 98}, free,
        "A picture button under a title, the base of the tiles of a dashboard.",
        {text("title", "titel"), picture("background", "main/buttons/btn_rect_small"), icon("icon", "icons/icons_14")}),
    entry<ZEMLineEdit>("ZEMLineEdit", widgets, {233, 50}, none,
        "A text field on a picture.",
        {picture("pixmap", "main/buttons/btn_rect_xs_wide"), number("layoutLeft", 12), number("layoutRight", 12),
         text("text", "Keuken")}, &Samples::lightTexts),
    entry<ZEMLineEditButton>("ZEMLineEditButton", widgets, {233, 50}, none,
        "A button that looks like a text field, to open an input dialog with.",
        {picture("background", "main/buttons/btn_rect_xs_wide"), number("layoutLeft", 12), text("text", "Keuken")},
        &Samples::lightTexts),
    entry<ZEMMenuOverlay>("ZEMMenuOverlay", widgets, {640, 480}, none,
        "A menu of three or four large buttons on a darkened page.",
        {text("text1", "afsluiten"), text("text2", "standby"), text("text3", "annuleren")}),
    entry<ZEMNotificationButton>("ZEMNotificationButton", widgets, {45, 45}, none,
        "A button with a badge that tells how much there is to see.",
        {picture("icon", "icons/icon_pencil")}, &Samples::notificationButton),
    entry<ZEMNotificationIcon>("ZEMNotificationIcon", widgets, {45, 45}, none,
        "A picture with a badge that tells how much there is to see.",
        {picture("icon", "icons/icon_pencil")}, &Samples::notificationIcon),
    entry<ZEMPageBackground>("ZEMPageBackground", widgets, {640, 480}, free,
        "The ground of a page: a picture, or a colour while there is none.",
        {colour("backgroundColor", QColor(22, 32, 40))}, &Samples::lightTexts),
    entry<NamedPageHeader>("ZEMPageHeader", widgets, {640, 74}, {true, &headerButtons},
        "The strip at the top of a page: actions, title, page dots and up to five buttons.",
        {text("title", "instellingen"), text("subTitle", "zondag 21 juni"), number("pages", 4)}),
    entry<NamedPageHeaderButton>("ZEMPageHeaderButton", widgets, {54, 54}, {true, &tileWidget},
        "The square tile of a page header that holds a button or another widget."),
    entry<ZEMPageIndicator>("ZEMPageIndicator", widgets, {120, 20}, none,
        "A row of dots that tells which of several pages is shown.",
        {number("pages", 4), number("currentPage", 1)}),
    entry<ZEMPixmap>("ZEMPixmap", widgets, {64, 64}, free,
        "A picture of fixed size with an opacity.",
        {picture("pixmap", "icons/icons_14")}),
    entry<ZEMProfileButton>("ZEMProfileButton", widgets, {233, 53}, none,
        "A row to choose a profile from: an image, a title and a check mark.",
        {text("title", "Thuis"), picture("icon", "icons/star_icon_small")}, &Samples::profile),
    entry<ZEMRadioButton>("ZEMRadioButton", widgets, {13, 12}, none,
        "The dot of a page indicator, with a mark while it is checked.", {}, &Samples::radioButton),
    entry<ZEMTextLabel>("ZEMTextLabel", widgets, {100, 24}, none,
        "A label that can draw a shadow below its text.",
        {text("text", "1,5 kW")}),
    entry<ZEMThreeStars>("ZEMThreeStars", widgets, {90, 80}, none,
        "A rating of up to three stars.", {}, &Samples::stars),
    entry<ZEMThrobber>("ZEMThrobber", widgets, {33, 33}, none,
        "A spinner that tells that the display is busy."),
    entry<ZEMWidgetLabel>("ZEMWidgetLabel", widgets, {160, 20}, none,
        "The title strip above a widget.",
        {text("title", "totaal vandaag")}),

    entry<ZEMVirtualKey>("ZEMVirtualKey", keyboard, {50, 50}, none,
        "One key of an on-screen keyboard, whose looks its factory gives it.", {}, &Samples::key),
    entry<ZEMVirtualKeyboard>("ZEMVirtualKeyboard", keyboard, {640, 290}, none,
        "An on-screen keyboard, which the program gives a factory and a file.", {}, &Samples::board),
    entry<ZEMDialogShowText>("ZEMDialogShowText", keyboard, {640, 480}, none,
        "A long text on a darkened page, page by page.", {}, &Samples::showText),

    entry<ZEMListView>("ZEMListView", lists, {640, 480}, none,
        "A page to pick one of many texts, page by page.", {}, &Samples::list),
    entry<ZEMSimpleListView>("ZEMSimpleListView", lists, {640, 480}, none,
        "A page to pick one of a few things by its picture.", {}, &Samples::simpleList),

    entry<QwtLegendItem>("QwtLegendItem", charts, {120, 30}, none,
        "An entry of a legend: a small picture and a title.", {}, &Samples::legendItem),
    entry<ZEMHistogramButton>("ZEMHistogramButton", charts, {322, 174}, none,
        "A large button with a title, for a chart that the program puts on it.",
        {text("title", "elektriciteit")}, &Samples::chartButton),
    entry<ZEMHistogramLegend>("ZEMHistogramLegend", charts, {280, 40}, none,
        "The legend of a plot, to which the program connects it.", {}, &Samples::legend),
    entry<ZEMHistogramLegendItem>("ZEMHistogramLegendItem", charts, {127, 27}, none,
        "An entry of the legend under a chart: a coloured square and a title on a picture.", {}, &Samples::chartLegendItem),
    entry<ZEMHistogramWidget>("ZEMHistogramWidget", charts, {493, 380}, none,
        "A page of charts with tabs for period and energy, which the program gives its charts.", {}, &Samples::chartPage),
    entry<NamedMiniDayHistogram>("ZEMMiniDayHistogram", charts, {180, 100}, none,
        "The small chart of a day on a button; the program calls init() and gives it its series.", {}, &Samples::miniDayChart),
    entry<ZEMSmartDayHistogram>("ZEMSmartDayHistogram", charts, {400, 300}, none,
        "A chart of the hours of a day; the program calls init() and gives it its series.", {}, &Samples::dayChart),
    entry<ZEMSmartMonthHistogram>("ZEMSmartMonthHistogram", charts, {400, 300}, none,
        "A chart of the weeks of a month; the program calls init() and gives it its series.", {}, &Samples::monthChart),
    entry<ZEMSmartWeekHistogram>("ZEMSmartWeekHistogram", charts, {400, 300}, none,
        "A chart of the days of a week; the program calls init() and gives it its series.", {}, &Samples::weekChart),
    entry<ZEMWeekHistogram>("ZEMWeekHistogram", charts, {400, 300}, none,
        "A plain chart of a week; the program calls init() and gives it its series.", {}, &Samples::weekChart),

    entry<ZEMAnimatedArrows>("ZEMAnimatedArrows", dashboard, {60, 24}, none,
        "A flow of energy: three arrows that light up one after the other, once they are started.",
        {choice("direction", "Right")}, &Samples::arrows),
    entry<ZEMCurrentStatusDetails>("ZEMCurrentStatusDetails", dashboard, {493, 265}, none,
        "What makes up the power of now: rows of items for consumption, production and grid.", {}, &Samples::details),
    entry<ZEMCurrentStatusDetailsItem>("ZEMCurrentStatusDetailsItem", dashboard, {180, 64}, none,
        "One device or source: its icon and its power.",
        {picture("icon", "icons/icons_14")}, &Samples::detailsItem),
    entry<ZEMCurrentStatusWidget>("ZEMCurrentStatusWidget", dashboard, {322, 175}, none,
        "The tile of the power that flows now between sun, house and grid.", {}, &Samples::status),
    entry<ZEMEnergyIcon>("ZEMEnergyIcon", dashboard, {25, 25}, none,
        "The badge of an energy.",
        {flag("useBigIcon"), choice("energyType", "Gas")}),
    entry<ZEMEnergyTab>("ZEMEnergyTab", dashboard, {47, 43}, none,
        "A tab for an energy: a button with its badge.",
        {choice("energyType", "SolarProduction")}),
    entry<ZEMEnergyTabWidget>("ZEMEnergyTabWidget", dashboard, {295, 50}, none,
        "A row of tabs, one for each energy."),
    entry<ZEMTotalsTodayWidget>("ZEMTotalsTodayWidget", dashboard, {152, 175}, none,
        "The tile of today: two buttons with a small chart of the day each.",
        {text("title", "totaal vandaag")}, &Samples::totals),
};
// clang-format on

} // namespace

const QVector<WidgetEntry> &allEntries()
{
    return table;
}

QVariant valueOf(const WidgetEntry &entry, const SampleProperty &property)
{
    switch (property.kind) {
    case SampleProperty::Picture:
        return QPixmap(property.value.toString());
    case SampleProperty::Icon:
        return QIcon(property.value.toString());
    case SampleProperty::Choice: {
        const int place = entry.metaObject->indexOfProperty(property.name);
        const QMetaEnum choices = entry.metaObject->property(place).enumerator();
        return choices.keyToValue(property.value.toByteArray().constData());
    }
    case SampleProperty::Text:
    case SampleProperty::Number:
    case SampleProperty::Flag:
    case SampleProperty::Colour:
        break;
    }
    return property.value;
}
