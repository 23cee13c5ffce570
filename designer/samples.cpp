// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "samples.h"

#include "sampledata.h"

#include <QAction>
#include <QPalette>
#include <QStringListModel>
#include <Zemkit>
#include <qwt_plot.h>
#include <qwt_text.h>

/** What lies in a static library is not there by itself. */
static void initKeyboardFiles()
{
    Q_INIT_RESOURCE(designerkeyboards);
}

namespace {

constexpr int weeksOfMonth = 5;

QColor color(ZEMStyle::ZEMColor name)
{
    return ZEMStyle(nullptr).color(name);
}

QPixmap picture(const char *icon)
{
    return QPixmap(QStringLiteral(":/zem/graphics/icons/%1.png").arg(QLatin1String(icon)));
}

QPixmap square(ZEMStyle::ZEMColor name)
{
    QPixmap square(12, 12);
    square.fill(color(name));
    return square;
}

/** It outlives the keyboards of all forms. */
KeyboardFactoryDefault &keyboards()
{
    initKeyboardFiles();
    static KeyboardFactoryDefault keyboards(QStringLiteral(":/zemkit/designer/keyboards"),
                                            QStringLiteral("en"));
    return keyboards;
}

/** For what is hidden until a program shows it. */
void showOnForm(QWidget &widget)
{
    if (widget.parentWidget()) {
        widget.show();
    }
}

ZEMHistogramSeries *makeSeries(const QString &title, const QVector<double> &values,
                               ZEMStyle::ZEMColor name)
{
    auto *data = new ZEMHistogramData; // the series takes ownership
    data->setWindowSize(unsigned(values.size()));
    data->setCenterValue(0.1);
    data->setNrWindows(1);
    data->setWindowValues(0, 0, unsigned(values.size()), values.constData(), false);
    auto *series = new ZEMHistogramSeries(title, color(name), false);
    series->setData(data);
    return series;
}

void fillMini(ZEMMiniDayHistogram &chart, const QVector<double> &values, ZEMStyle::ZEMColor name)
{
    ZEMHistogramSeries *series = makeSeries(QStringLiteral("vandaag"), values, name);
    chart.addSeries(series); // the chart takes ownership
    chart.setValueLimits(QwtInterval(0.0, series->dataRect().bottom()));
    chart.replot();
}

/** Makes @p chart ready and fills it with the values of one period, which begins at @p start. */
void fill(ZEMHistogram &chart, const QVector<double> &values, const QDateTime &start)
{
    chart.init();
    ZEMHistogramSeries *series = makeSeries(QStringLiteral("Verbruik"), values, ZEMStyle::Amber);
    chart.addSeries(series); // the chart takes ownership
    chart.setScalePeriod(double(values.size()));
    chart.setScaleInterval(QwtInterval(0.0, double(values.size())));
    chart.setValueLimits(QwtInterval(0.0, series->dataRect().bottom()));
    chart.setDataChangedTimestamp(start);
    chart.replot();
}

QVector<double> today(const QVector<double> &hours)
{
    return SampleData::last(hours, SampleData::hoursOfDay);
}

ZEMCurrentStatusDetailsItem *makeItem(const char *icon, double watt)
{
    auto *item = new ZEMCurrentStatusDetailsItem;
    item->setIcon(picture(icon).scaled(30, 30, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    item->setValue(watt);
    return item;
}

} // namespace

namespace Samples {

void lightTexts(QWidget &widget)
{
    QPalette palette = widget.palette();
    ZEMStyle(nullptr).polish(palette);
    widget.setPalette(palette);
}

void bar(ZEMBarIndicator &bar)
{
    bar.setValue(60.0);
    bar.setMidValue(80.0);
    bar.setEnableMidValue(true);
}

void popup(ZEMDialogPopup &dialog)
{
    lightTexts(dialog);
    dialog.setTextLine1(QStringLiteral("Afsluiten?"));
    dialog.setTextLine2(QStringLiteral("Er wordt niets meer gemeten."));
    dialog.setTextLine3(QString());
    showOnForm(dialog);
}

void notificationButton(ZEMNotificationButton &button)
{
    button.setNotifyCount(3);
}

void notificationIcon(ZEMNotificationIcon &icon)
{
    icon.setWarning(true);
}

void profile(ZEMProfileButton &profile)
{
    profile.setActivated(true);
}

void radioButton(ZEMRadioButton &dot)
{
    dot.setChecked(true);
}

void stars(ZEMThreeStars &rating)
{
    rating.setStars(2);
}

void key(ZEMVirtualKey &key)
{
    keyboards().styleButton(&key);
    key.setText(QStringLiteral("e"));
    key.resize(50, 50);
    keyboards().changeKeyStylesheet(&key, false);
}

void board(ZEMVirtualKeyboard &board)
{
    board.setFactory(&keyboards());
    board.load(QStringLiteral(":/zemkit/designer/keyboards/keyboard_en.xml"));
}

void showText(ZEMDialogShowText &dialog)
{
    lightTexts(dialog);
    dialog.setTitle(QStringLiteral("Bericht"));
    dialog.setText(QStringLiteral("De meterstand is doorgegeven."));
    showOnForm(dialog);
}

void list(ZEMListView &page)
{
    lightTexts(page);
    page.setHeader(QStringLiteral("Kies een plaats"));
    page.setModel(new QStringListModel({QStringLiteral("Arnhem"), QStringLiteral("Breda"),
                                        QStringLiteral("Delft"), QStringLiteral("Emmen"),
                                        QStringLiteral("Gouda"), QStringLiteral("Leiden")},
                                       &page));
    page.setNrPageItems(6);
    page.fitContents(6);
    page.setIndex(0);
}

void simpleList(ZEMSimpleListView &page)
{
    lightTexts(page);
    auto *actions = new ZEMActionListModel(&page);
    actions->setTitle(QStringLiteral("Bron"));
    actions->appendAction(new QAction(QIcon(picture("icons_03")), QStringLiteral("Net"), actions));
    actions->appendAction(new QAction(QIcon(picture("icons_11")), QStringLiteral("Zon"), actions));
    page.setModel(actions);
    page.fitContents(2);
}

void legendItem(QwtLegendItem &item)
{
    item.setText(QwtText(QStringLiteral("Verbruik")));
    item.setIdentifierSize(QSize(12, 12));
    item.setIdentifier(square(ZEMStyle::Amber));
    item.setSpacing(4);
}

void chartLegendItem(ZEMHistogramLegendItem &item)
{
    item.setText(QStringLiteral("Verbruik"));
    item.setTextColor(color(ZEMStyle::White));
    item.setIdentifierSize(QSize(12, 12));
    item.setIdentifier(square(ZEMStyle::Amber));
    item.setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/text_bg_medium.png")));
    item.setIdentifierIndent(10); // after the size
}

void legend(ZEMHistogramLegend &legend)
{
    auto *plot = new QwtPlot(&legend);
    plot->hide();
    makeSeries(QStringLiteral("Verbruik"), {1.0}, ZEMStyle::Amber)->attach(plot);
    makeSeries(QStringLiteral("Productie"), {1.0}, ZEMStyle::Lime)->attach(plot);
    ZEMHistogramLegend::connectToPlot(plot, &legend);
    // It goes with the legend, which must not hear of that any more.
    plot->disconnect(&legend);
}

void dayChart(ZEMHistogram &chart)
{
    fill(chart, today(SampleData::consumptionByHour()), SampleData::lastMidnight());
}

void weekChart(ZEMHistogram &chart)
{
    using namespace SampleData;
    fill(chart, last(sums(consumptionByHour(), hoursOfDay), daysOfWeek), lastMonday());
}

void monthChart(ZEMHistogram &chart)
{
    using namespace SampleData;
    constexpr qint64 daysBefore = qint64(weeksOfMonth - 1) * daysOfWeek;
    fill(chart, last(sums(consumptionByHour(), hoursOfDay * daysOfWeek), weeksOfMonth),
         lastMonday().addDays(-daysBefore));
}

void miniDayChart(ZEMMiniDayHistogram &chart)
{
    chart.init();
    fillMini(chart, today(SampleData::consumptionByHour()), ZEMStyle::Amber);
}

void chartButton(ZEMHistogramButton &tile)
{
    auto *chart = new ZEMMiniDayHistogram;
    miniDayChart(*chart);
    tile.setHistogram(chart);
}

void chartPage(ZEMHistogramWidget &page)
{
    auto *day = new ZEMSmartDayHistogram;
    dayChart(*day);
    page.setHistogram(ZEM::TabDay, ZEM::TabElectricity, day);
    page.selectTab(ZEM::TabDay, ZEM::TabElectricity);
}

void arrows(ZEMAnimatedArrows &arrows)
{
    arrows.start();
}

void detailsItem(ZEMCurrentStatusDetailsItem &item)
{
    item.setValue(2100.0);
}

void details(ZEMCurrentStatusDetails &details)
{
    details.addConsumptionItem(makeItem("star_icon", 340.0));
    details.addConsumptionItem(makeItem("icons_14", 2700.0));
    details.addProductionItem(makeItem("icons_11", 1250.0));
    details.addTotalsItem(makeItem("icons_03", 1790.0));
    details.setTotalConsumptionValue(3040.0);
    details.setTotalProductionValue(1250.0);
}

void status(ZEMCurrentStatusWidget &tile)
{
    tile.setMaxProduction(3000.0);
    tile.setProduction(2100.0);
    tile.setConsumption(340.0);
}

void totals(ZEMTotalsTodayWidget &tile)
{
    fillMini(*tile.getTopHistogram(), today(SampleData::consumptionByHour()), ZEMStyle::Amber);
    fillMini(*tile.getBottomHistogram(), today(SampleData::productionByHour()), ZEMStyle::Lime);
}

} // namespace Samples
