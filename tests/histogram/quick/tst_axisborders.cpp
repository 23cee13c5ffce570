// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "axisborders_p.h"

#include <QTest>

#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <memory>

namespace {

/** A scale that can be silent as those of the library can, and counts what Qwt asks it for. */
class Scale : public QwtScaleDraw, public LabelledScale
{
public:
    QwtText label(double value) const override
    {
        ++asked;
        return isSilent ? QwtText() : QwtScaleDraw::label(value);
    }
    const ScaleLabels::Label *findLabel(double /*value*/, const QFont & /*font*/) const override
    {
        return nullptr;
    }
    void setSilent(bool silent) override
    {
        isSilent = silent;
        invalidateCache();
    }

    /** So that Qwt must ask for labels that it has had already. */
    void forgetLabels()
    {
        invalidateCache();
        asked = 0;
    }

    bool isSilent = false;
    mutable int asked = 0;
};

ScaleBorders hintOf(const QwtScaleWidget &widget)
{
    ScaleBorders hint;
    widget.getBorderDistHint(hint.start, hint.end);
    return hint;
}

} // namespace

/** A scale widget that is told its borders, with and without a scale that can be silent. */
class tst_AxisBorders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void fixedBordersAreAskedForAsLongAsTheyAreFixed();
    void silentScaleKeepsItsLabels();
    void otherScaleGoesWithoutLabels();
    void scaleWithoutLabelsStaysSo();

private:
    std::unique_ptr<QwtScaleWidget> widget;
    Scale *scale = nullptr;
};

void tst_AxisBorders::init()
{
    widget = std::make_unique<QwtScaleWidget>(QwtScaleDraw::BottomScale);
    scale = new Scale;
    widget->setScaleDraw(scale);
    widget->setMinBorderDist(2, 5);
    widget->resize(300, 40);
}

void tst_AxisBorders::fixedBordersAreAskedForAsLongAsTheyAreFixed()
{
    const ScaleBorders before = hintOf(*widget);
    const ScaleBorders wanted {before.start + 30, before.end + 20};
    {
        const AxisBorders::Fixed fixed(widget.get(), wanted);
        QCOMPARE(hintOf(*widget), wanted);
    }
    QCOMPARE(hintOf(*widget), before);
    ScaleBorders least;
    widget->getMinBorderDist(least.start, least.end);
    QCOMPARE(least, (ScaleBorders {2, 5}));
}

void tst_AxisBorders::silentScaleKeepsItsLabels()
{
    {
        const AxisBorders::Fixed fixed(widget.get(), {30, 20}, scale);
        QVERIFY(scale->isSilent);
        QVERIFY(scale->hasComponent(QwtAbstractScaleDraw::Labels));
        QCOMPARE(hintOf(*widget), (ScaleBorders {30, 20}));
    }
    QVERIFY(!scale->isSilent);
    QVERIFY(scale->hasComponent(QwtAbstractScaleDraw::Labels));
}

void tst_AxisBorders::otherScaleGoesWithoutLabels()
{
    {
        const AxisBorders::Fixed fixed(widget.get(), {30, 20}, nullptr);
        scale->forgetLabels();
        AxisBorders::layOut(widget.get());
        QCOMPARE(scale->asked, 0);
        QVERIFY(!scale->isSilent);
    }
    QVERIFY(scale->hasComponent(QwtAbstractScaleDraw::Labels));
    scale->forgetLabels();
    AxisBorders::layOut(widget.get());
    QVERIFY(scale->asked > 0);
}

void tst_AxisBorders::scaleWithoutLabelsStaysSo()
{
    scale->enableComponent(QwtAbstractScaleDraw::Labels, false);
    {
        const AxisBorders::Fixed fixed(widget.get(), {30, 20}, scale);
        QVERIFY(!scale->isSilent);
    }
    QVERIFY(!scale->hasComponent(QwtAbstractScaleDraw::Labels));
}

QTEST_MAIN(tst_AxisBorders)
#include "tst_axisborders.moc"
