// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMQwtPlotPointPicker>

#include "plotfixture.h"

#include <QSignalSpy>

using namespace PlotTest;

namespace {

using Point = ZEMQwtPlotCurvePointGetter::PlotCurvePoint;

} // namespace

/** Who ends first, and who notices. */
class tst_PlotLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void deletedCurveLeavesTheList();
    void deletedCurveIsNotRestyled();
    void curveThatIsDetachedFirstLeavesTheListToo();
    void curveOnAnotherPlotLeavesTheList();
    void curveThatIsListedTwiceLeavesOnceOrWhollyWhenDeleted();
    void listIsRightWhenOthersHearOfTheCurve();
    void allItemsMayBeDeletedAtOnce();
    void deletedGridIsNotStyled();
    void stylerMayEndBeforeThePlot();

    void pickerForgetsADeletedCurve_data();
    void pickerForgetsADeletedCurve();
    void pickerKeepsItsPointWhenAnotherCurveGoes();
    void pickerLetsGoInItsOwnSignal();

private:
    std::unique_ptr<Stage> stage;
    QwtPlotCurve *upper = nullptr;
    QwtPlotCurve *lower = nullptr;
};

void tst_PlotLifetime::init()
{
    stage = std::make_unique<Stage>();
    upper = stage->addCurve(levelRow(wholeRow, 200.0), QStringLiteral("upper"));
    lower = stage->addCurve(levelRow(wholeRow, 50.0), QStringLiteral("lower"));
    stage->styler.log.clear();
}

void tst_PlotLifetime::cleanup()
{
    stage.reset();
}

void tst_PlotLifetime::deletedCurveLeavesTheList()
{
    delete upper;
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower}));
    QCOMPARE(stage->plot->getIndexOfCurve(lower), 0);
    const Point found = stage->getter->getCurvePoint(QPointF(100.0, 190.0));
    QVERIFY(!found.valid);
    delete lower;
    QCOMPARE(stage->plot->getNumCurves(), 0);
}

void tst_PlotLifetime::deletedCurveIsNotRestyled()
{
    delete upper;
    stage->plot->restyle();
    QCOMPARE(stage->styler.log,
             QStringList({QStringLiteral("plot"), QStringLiteral("attached grid"),
                          QStringLiteral("attached curve lower as 0")}));
}

void tst_PlotLifetime::curveThatIsDetachedFirstLeavesTheListToo()
{
    upper->detach();
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower}));
    delete upper;
    stage->plot->restyle();
    QCOMPARE(stage->plot->getNumCurves(), 1);
}

void tst_PlotLifetime::curveOnAnotherPlotLeavesTheList()
{
    QwtPlot other;
    upper->attach(&other);
    QCOMPARE(stage->plot->getIndexOfCurve(upper), -1);
    QCOMPARE(upper->plot(), &other);
}

void tst_PlotLifetime::curveThatIsListedTwiceLeavesOnceOrWhollyWhenDeleted()
{
    stage->plot->addCurve(upper, false);
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({upper, lower, upper}));
    stage->plot->removeCurve(upper);
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower, upper}));
    stage->plot->removeCurve(upper);
    stage->plot->addCurve(upper, false);
    stage->plot->addCurve(upper, false);
    delete upper;
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower}));
}

void tst_PlotLifetime::listIsRightWhenOthersHearOfTheCurve()
{
    const QObject listener;
    QList<int> counts;
    connect(stage->plot.get(), &QwtPlot::itemAttached, &listener,
            [&] { counts << stage->plot->getNumCurves(); });
    delete upper;
    delete lower;
    QCOMPARE(counts, QList<int>({1, 0}));
}

void tst_PlotLifetime::allItemsMayBeDeletedAtOnce()
{
    stage->plot->detachItems();
    QCOMPARE(stage->plot->getNumCurves(), 0);
    stage->plot->restyle();
    QCOMPARE(stage->styler.log, QStringList({QStringLiteral("plot")}));
    stage->addCurve(levelRow(wholeRow, 100.0));
    QVERIFY(stage->getter->getCurvePoint(QPointF(100.0, 100.0)).valid);
}

void tst_PlotLifetime::deletedGridIsNotStyled()
{
    delete stage->styler.styledGrid;
    stage->plot->init();
    QCOMPARE(stage->styler.log.mid(0, 2),
             QStringList({QStringLiteral("plot"), QStringLiteral("attached curve upper as 0")}));
}

void tst_PlotLifetime::stylerMayEndBeforeThePlot()
{
    auto styler = std::make_unique<Styler>();
    auto plot = std::make_unique<ZEMPlot>(styler.get());
    const std::unique_ptr<ZEMQwtPlotCurvePointGetter> getter(plot->getCurvePointGetter());
    plot->init();
    plot->setBackgroundColor(Qt::black);
    plot->addCurve(new QwtPlotCurve, true);
    styler.reset();
    plot->replot();
    plot.reset();
    QCOMPARE(getter->getNumCurves(), 0);
}

void tst_PlotLifetime::pickerForgetsADeletedCurve_data()
{
    QTest::addColumn<QString>("way");

    for (const char *way : {"delete", "detach", "remove", "another plot"}) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void tst_PlotLifetime::pickerForgetsADeletedCurve()
{
    QFETCH(QString, way);
    ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    picker.selected(QPointF(100.0, 200.0));
    QCOMPARE(picker.getPickedPlotPoint().curve, upper);
    const QSignalSpy spy(&picker, &ZEMQwtPlotPointPicker::selectedPlotPoint);
    QwtPlot other;
    if (way == QLatin1String("detach")) {
        upper->detach();
    } else if (way == QLatin1String("remove")) {
        stage->plot->removeCurve(upper);
    } else if (way == QLatin1String("another plot")) {
        upper->attach(&other);
    }
    delete upper;
    QVERIFY(!picker.getPickedPlotPoint().valid);
    QVERIFY(!picker.getPickedPlotPoint().curve);
    picker.pickNextPlotPoint();
    picker.pickPrevPlotPoint();
    picker.pickNextCurve();
    picker.pickPrevCurve();
    QCOMPARE(spy.count(), 0);
    picker.selected(QPointF(100.0, 50.0));
    QCOMPARE(spy.count(), 1);
}

void tst_PlotLifetime::pickerKeepsItsPointWhenAnotherCurveGoes()
{
    ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    picker.selected(QPointF(100.0, 200.0));
    delete lower;
    QCOMPARE(picker.getPickedPlotPoint().curve, upper);
    picker.pickNextPlotPoint();
    QCOMPARE(picker.getPickedPlotPoint().index, 51u);
}

void tst_PlotLifetime::pickerLetsGoInItsOwnSignal()
{
    ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    connect(&picker, &ZEMQwtPlotPointPicker::selectedPlotPoint, this,
            [](const Point &point) { delete point.curve; });
    picker.selected(QPointF(100.0, 200.0));
    QVERIFY(!picker.getPickedPlotPoint().valid);
    picker.pickNextPlotPoint();
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower}));
}

QTEST_MAIN(tst_PlotLifetime)
#include "tst_plotlifetime.moc"
