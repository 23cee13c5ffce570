// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMQwtPlotPointPicker>

#include "plotfixture.h"

#include <QSignalSpy>

#include <array>
#include <new>

using namespace PlotTest;

using Point = ZEMQwtPlotCurvePointGetter::PlotCurvePoint;

namespace {

/** Raises the first curve of a plot over the others. */
class RaisingStyler final : public ZEMPlotStyler
{
public:
    void stylePlot(ZEMPlot *) override { }
    void styleGrid(QwtPlotGrid *) override { }
    void styleCurve(QwtPlotCurve *curve, int index) override
    {
        styled << curve;
        curve->setZ(index == 0 ? 50.0 : 40.0);
    }
    void styleMarker(QwtPlotMarker *) override { }

    QList<QwtPlotCurve *> styled;
};

} // namespace

/** What plot and picker make of a curve whose z changes: Qwt takes it off and puts it back. */
class tst_CurveOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void raisedCurveKeepsItsPlace();
    void curveThatIsListedTwiceKeepsBothPlaces();
    void stylerMayRaiseCurves();
    void raisedCurveIsStillPicked();
    void curveMayBeRaisedAsItIsPicked();
    void pointThatWasClearedMeanwhileStaysSo();
    void curveThatCameBackByItselfIsNotListed();
    void curveThatIsAddedAgainIsNew();
    void newCurveInThePlaceOfADeletedOneIsNotListed();

private:
    std::unique_ptr<TwoCurves> stage;
    QwtPlotCurve *upper = nullptr;
    QwtPlotCurve *lower = nullptr;
};

void tst_CurveOrder::init()
{
    stage = std::make_unique<TwoCurves>();
    upper = stage->upper;
    lower = stage->lower;
}

void tst_CurveOrder::cleanup()
{
    stage.reset();
}

void tst_CurveOrder::raisedCurveKeepsItsPlace()
{
    upper->setZ(50.0);
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({upper, lower}));
    QVERIFY(stage->getter->getCurvePoint(QPointF(100.0, 190.0)).valid);
    lower->setZ(60.0);
    upper->setZ(10.0);
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({upper, lower}));
    delete upper;
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower}));
}

void tst_CurveOrder::curveThatIsListedTwiceKeepsBothPlaces()
{
    stage->plot->addCurve(upper, false);
    upper->setZ(50.0);
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({upper, lower, upper}));
}

void tst_CurveOrder::stylerMayRaiseCurves()
{
    RaisingStyler styler;
    stage->plot->setStyler(&styler);
    QCOMPARE(styler.styled, QList<QwtPlotCurve *>({upper, lower}));
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({upper, lower}));
    stage->plot->setStyler(&stage->styler);
}

void tst_CurveOrder::raisedCurveIsStillPicked()
{
    ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    picker.selected(QPointF(100.0, 195.0));
    const QSignalSpy spy(&picker, &ZEMQwtPlotPointPicker::selectedPlotPoint);
    upper->setZ(50.0);
    QCOMPARE(spy.count(), 0);
    const Point picked = picker.getPickedPlotPoint();
    QVERIFY(picked.valid);
    QCOMPARE(picked.curve, upper);
    QCOMPARE(picked.index, 50u);
    QCOMPARE(picked.distance, 5.0);
    delete upper;
    QVERIFY(!picker.getPickedPlotPoint().valid);
}

void tst_CurveOrder::curveMayBeRaisedAsItIsPicked()
{
    ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    connect(&picker, &ZEMQwtPlotPointPicker::selectedPlotPoint, this,
            [](const Point &point) { point.curve->setZ(point.curve->z() + 1.0); });
    picker.selected(QPointF(100.0, 200.0));
    picker.pickNextPlotPoint();
    picker.pickNextCurve();
    QCOMPARE(picker.getPickedPlotPoint().curve, lower);
    QCOMPARE(picker.getPickedPlotPoint().index, 51u);
}

void tst_CurveOrder::pointThatWasClearedMeanwhileStaysSo()
{
    ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    picker.selected(QPointF(100.0, 200.0));
    connect(stage->plot.get(), &QwtPlot::itemAttached, &picker,
            [&] { picker.clearPickedPlotPoint(); });
    upper->setZ(50.0);
    QVERIFY(!picker.getPickedPlotPoint().valid);
}

void tst_CurveOrder::curveThatCameBackByItselfIsNotListed()
{
    upper->detach();
    upper->attach(stage->plot.get());
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower}));
    stage->plot->removeCurve(lower);
    lower->setZ(50.0);
    lower->attach(stage->plot.get());
    QCOMPARE(stage->plot->getNumCurves(), 0);
}

void tst_CurveOrder::curveThatIsAddedAgainIsNew()
{
    ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    picker.selected(QPointF(100.0, 200.0));
    upper->detach();
    upper->setZ(50.0);
    stage->plot->addCurve(upper, false);
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower, upper}));
    QVERIFY(!picker.getPickedPlotPoint().valid);
}

void tst_CurveOrder::newCurveInThePlaceOfADeletedOneIsNotListed()
{
    delete lower;
    alignas(QwtPlotCurve) std::array<char, sizeof(QwtPlotCurve)> place;
    auto *const first = new (place.data()) QwtPlotCurve;
    stage->plot->addCurve(first, false);
    first->~QwtPlotCurve();
    auto *const second = new (place.data()) QwtPlotCurve;
    second->setZ(50.0);
    second->attach(stage->plot.get());
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({upper}));
    second->~QwtPlotCurve();
}

QTEST_MAIN(tst_CurveOrder)
#include "tst_curveorder.moc"
