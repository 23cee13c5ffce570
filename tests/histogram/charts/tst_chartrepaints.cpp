// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../quick/quickpathsfixture.h"
#include "paintcounter.h"
#include "zemtest.h"

#include <QLocale>
#include <QTest>
#include <QTimeZone>
#include <QVBoxLayout>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_widget.h>

#include <functional>
#include <memory>

using namespace QuickPathsTest;

namespace {

/** A shown day chart, with a child on request, and what was painted of it since the last look. */
class Stage
{
public:
    explicit Stage(const Kind &chartKind, bool withChild = false)
        : kind(chartKind), chart(kind.make())
    {
        if (withChild) {
            child = kind.make();
            child->init();
            chart->setChild(child);
        }
        chart->init();
        window.resize(520, withChild ? 620 : 340);
        (new QVBoxLayout(&window))->addWidget(chart);
        chart->setScalePeriod(kind.slotCount);
        chart->setScaleInterval(
            QwtInterval(-double(kind.slotCount * (windows - 1)), kind.slotCount));
        chart->setDataChangedTimestamp(QDateTime(QDate(2026, 3, 2), QTime(0, 0), QTimeZone::utc()));
        for (ZEMHistogram *each : {chart, child}) {
            if (each) {
                each->addSeries(newSeries(kind.slotCount, false, 1));
                each->setValueLimits(QwtInterval(0.0, 9.0));
            }
        }
        window.show();
        isReady = QTest::qWaitForWindowExposed(&window, ZemTest::hangs);
        chart->replot();
        // A drag, after which the quick paths know what there is.
        drag(20);
        drag(20);
    }

    QwtPlot *plot() const { return plotOf(chart); }
    void drag(int dx) { dragPlot(plot(), dx); }

    Kind kind;
    QWidget window;
    ZEMHistogram *chart;
    ZEMHistogram *child = nullptr;
    bool isReady = false;
};

/** What of a plot has been painted. */
struct Paints
{
    explicit Paints(const QwtPlot *plot)
        : canvas(const_cast<QWidget *>(plot->canvas())),
          xAxis(const_cast<QwtScaleWidget *>(plot->axisWidget(QwtPlot::xBottom))),
          valueAxis(const_cast<QwtScaleWidget *>(plot->axisWidget(QwtPlot::yLeft)))
    {
    }

    ZemTest::PaintCounter canvas;
    ZemTest::PaintCounter xAxis;
    ZemTest::PaintCounter valueAxis;
};

using Change = std::function<void(Stage &)>;

enum Part { Canvas = 1, XAxis = 2, ValueAxis = 4 };

} // namespace

Q_DECLARE_METATYPE(Change)

/** What a change of a chart paints, while nobody but the screen looks. */
class tst_ChartRepaints : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void changePaints_data();
    void changePaints();
    void changePaintsTheChild_data();
    void changePaintsTheChild();
    void dragPaintsNoValueAxis();
    void replotPaintsTheCanvasAlone();
    void replotPaintsACanvasOfAnyKind();
};

void tst_ChartRepaints::cleanup()
{
    setOpen(true);
    QLocale::setDefault(QLocale::c());
}

void tst_ChartRepaints::changePaints_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("parts");
    QTest::newRow("drag") << Change([](Stage &stage) { stage.drag(9); }) << (Canvas | XAxis);
    QTest::newRow("older period") << Change([](Stage &stage) { stage.chart->showPrevPeriod(); })
                                  << (Canvas | XAxis);
    QTest::newRow("newest period")
        << Change([](Stage &stage) { stage.chart->showFirstPeriod(); }) << (Canvas | XAxis);
    QTest::newRow("newer period") << Change([](Stage &stage) { stage.chart->showNextPeriod(); })
                                  << (Canvas | XAxis);
    QTest::newRow("data") << Change([](Stage &stage) {
        stage.chart->addSeries(newSeries(stage.kind.slotCount, false, 7));
        stage.chart->replot();
    }) << int(Canvas);
    QTest::newRow("series gone") << Change([](Stage &stage) {
        auto *series = newSeries(stage.kind.slotCount, false, 7);
        stage.chart->addSeries(series);
        stage.chart->delSeries(series);
        stage.chart->replot();
    }) << int(Canvas);
    QTest::newRow("date") << Change([](Stage &stage) {
        stage.chart->setDataChangedTimestamp(
            QDateTime(QDate(2025, 7, 7), QTime(0, 0), QTimeZone::utc()));
    }) << int(XAxis);
    QTest::newRow("digits") << Change([](Stage &stage) {
        stage.chart->setScaleDigits(QwtPlot::yLeft, 3);
        // Other digits are shown with other limits.
        stage.chart->setValueLimits(QwtInterval(0.0, 8.0));
        stage.chart->replot();
    }) << (Canvas | ValueAxis);
    QTest::newRow("locale") << Change([](Stage &stage) {
        QLocale::setDefault(QLocale(QLocale::Dutch));
        stage.chart->setValueLimits(QwtInterval(0.0, 12345.0));
        stage.chart->replot();
        stage.drag(9);
    }) << (Canvas | XAxis | ValueAxis);
    QTest::newRow("value limits") << Change([](Stage &stage) {
        stage.chart->setValueLimits(QwtInterval(0.0, 4.0));
        stage.chart->replot();
    }) << (Canvas | ValueAxis);
    QTest::newRow("shown again") << Change([](Stage &stage) {
        stage.window.hide();
        stage.window.show();
    }) << (Canvas | XAxis | ValueAxis);
}

void tst_ChartRepaints::changePaints()
{
    QFETCH(Change, change);
    QFETCH(int, parts);
    for (const auto &kind : kinds()) {
        if (qstrcmp(kind.first, "mini") == 0) {
            continue; // it can neither be dragged nor has it labels
        }
        for (const bool open : {true, false}) {
            setOpen(open);
            QLocale::setDefault(QLocale::c());
            Stage stage(kind.second);
            QVERIFY(stage.isReady);
            const Paints paints(stage.plot());
            change(stage);
            QCoreApplication::processEvents();
            QTRY_VERIFY2(!(parts & Canvas) || paints.canvas.count > 0, kind.first);
            QTRY_VERIFY2(!(parts & XAxis) || paints.xAxis.count > 0, kind.first);
            QTRY_VERIFY2(!(parts & ValueAxis) || paints.valueAxis.count > 0, kind.first);
        }
    }
}

void tst_ChartRepaints::changePaintsTheChild_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("parts");
    QTest::newRow("drag") << Change([](Stage &stage) { stage.drag(9); }) << (Canvas | XAxis);
    QTest::newRow("period") << Change([](Stage &stage) { stage.chart->showPrevPeriod(); })
                            << (Canvas | XAxis);
    QTest::newRow("period of the child")
        << Change([](Stage &stage) { stage.child->showPrevPeriod(); }) << (Canvas | XAxis);
    QTest::newRow("data") << Change([](Stage &stage) {
        stage.child->addSeries(newSeries(stage.kind.slotCount, false, 7));
        stage.chart->replot();
    }) << int(Canvas);
    QTest::newRow("date") << Change([](Stage &stage) {
        stage.chart->setDataChangedTimestamp(
            QDateTime(QDate(2025, 7, 7), QTime(0, 0), QTimeZone::utc()));
    }) << int(XAxis);
    QTest::newRow("value limits") << Change([](Stage &stage) {
        stage.child->setValueLimits(QwtInterval(0.0, 4.0));
        stage.chart->replot();
    }) << (Canvas | ValueAxis);
}

void tst_ChartRepaints::changePaintsTheChild()
{
    QFETCH(Change, change);
    QFETCH(int, parts);
    for (const bool open : {true, false}) {
        setOpen(open);
        Stage stage(kinds()[0].second, true);
        QVERIFY(stage.isReady);
        const Paints own(stage.plot());
        const Paints ofChild(plotOf(stage.child));
        change(stage);
        QCoreApplication::processEvents();
        QTRY_VERIFY(!(parts & Canvas) || (own.canvas.count > 0 && ofChild.canvas.count > 0));
        QTRY_VERIFY(!(parts & XAxis) || (own.xAxis.count > 0 && ofChild.xAxis.count > 0));
        QTRY_VERIFY(!(parts & ValueAxis) || ofChild.valueAxis.count > 0);
    }
}

void tst_ChartRepaints::dragPaintsNoValueAxis()
{
    Stage stage(kinds()[0].second);
    QVERIFY(stage.isReady);
    const Paints paints(stage.plot());
    stage.drag(9);
    QTRY_VERIFY(paints.canvas.count > 0);
    // Qwt 6.3 by itself lays out the plot again when the labels of an axis change.
    QVERIFY(paints.valueAxis.count <= (QuickPaths::areOpen() ? 0 : 1));
}

void tst_ChartRepaints::replotPaintsTheCanvasAlone()
{
    Stage stage(kinds()[0].second);
    QVERIFY(stage.isReady);
    const Paints paints(stage.plot());
    stage.chart->replot();
    QTRY_VERIFY(paints.canvas.count > 0);
    QCOMPARE(paints.xAxis.count + paints.valueAxis.count, 0);
}

void tst_ChartRepaints::replotPaintsACanvasOfAnyKind()
{
    for (const bool open : {true, false}) {
        setOpen(open);
        Stage stage(kinds()[0].second);
        QVERIFY(stage.isReady);
        auto *canvas = new QWidget;
        stage.plot()->setCanvas(canvas);
        canvas->show();
        stage.plot()->updateLayout();
        QCoreApplication::processEvents();
        const ZemTest::PaintCounter paints(canvas);
        // Qwt looks for the replot() of its own canvas as well.
        QTest::ignoreMessage(QtWarningMsg,
                             "QMetaObject::invokeMethod: No such method QWidget::replot()");
        stage.chart->replot();
        QTRY_VERIFY(paints.count > 0);
    }
}

QTEST_MAIN(tst_ChartRepaints)
#include "tst_chartrepaints.moc"
