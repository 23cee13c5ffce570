// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "plotsizehints_p.h"
#include "quickpathsfixture.h"
#include "qwtcompat_p.h"
#include "scalelabels_p.h"

#include <QTest>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <memory>
#include <optional>
#include <random>

using namespace QuickPathsTest;

namespace {

using Random = std::mt19937;

constexpr std::uint32_t seed = 20261122;
constexpr int cases = 4000;

int upTo(int most, Random &random)
{
    return int(random() % std::uint32_t(most + 1));
}

/** A scale with labels of its own, which remembers them as those of the library do. */
class Scale : public QwtScaleDraw, public LabelledScale
{
public:
    explicit Scale(int labelDigits) : digits(labelDigits) { }

    QwtText label(double value) const override { return QwtText(text(value)); }

    const ScaleLabels::Label *findLabel(double value, const QFont &font) const override
    {
        return ScaleLabels::find(text(value), font);
    }

    void setSilent(bool /*silent*/) override { }

private:
    QString text(double value) const { return QString::number(value, 'f', digits); }

    int digits;
};

QFont anyFont(Random &random)
{
    static const QStringList families {QStringLiteral("Cabin"), QStringLiteral("DejaVu Sans"),
                                       QStringLiteral("Monospace")};
    QFont font(families[upTo(2, random)]);
    if (upTo(1, random) == 0) {
        font.setPixelSize(6 + upTo(20, random));
    } else {
        font.setPointSizeF(5.0 + upTo(30, random) / 2.0);
    }
    font.setBold(upTo(3, random) == 0);
    font.setItalic(upTo(3, random) == 0);
    return font;
}

/** A scale of any kind and place. */
void set(QwtScaleDraw *draw, Random &random)
{
    static const Qt::Alignment alignments[] = {
        Qt::Alignment(), Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignRight | Qt::AlignTop,
        Qt::AlignHCenter | Qt::AlignBottom, Qt::AlignHCenter | Qt::AlignVCenter};
    draw->setAlignment(QwtScaleDraw::Alignment(upTo(3, random)));
    draw->setLabelAlignment(alignments[upTo(4, random)]);
    draw->setSpacing(upTo(20, random));
    QwtCompat::setPenWidth(draw, upTo(6, random) / 2.0);
    draw->setMinimumExtent(upTo(3, random) == 0 ? upTo(80, random) : 0);
    for (int type = 0; type < QwtScaleDiv::NTickTypes; ++type) {
        draw->setTickLength(QwtScaleDiv::TickType(type), upTo(80, random) / 2.0);
    }
    for (const auto component : {QwtAbstractScaleDraw::Backbone, QwtAbstractScaleDraw::Ticks,
                                 QwtAbstractScaleDraw::Labels}) {
        draw->enableComponent(component, upTo(4, random) != 0);
    }
    const double low = upTo(2000, random) / 7.0 - 140.0;
    const double size = (1 + upTo(3000, random)) / 11.0;
    draw->setScaleDiv(
        QwtLinearScaleEngine().divideScale(low, low + size, upTo(12, random), upTo(6, random)));
    draw->move(upTo(100, random) / 3.0, upTo(100, random) / 3.0);
    draw->setLength(upTo(3000, random) / 7.0);
}

} // namespace

/** The quick ways of measuring answer what Qwt answers, for any scale. */
class tst_ScaleMeasure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void measuresAsQwt();
    void answersNothingForRotatedLabels();
    void plotSizeHintsAreThoseOfQwt_data();
    void plotSizeHintsAreThoseOfQwt();
};

void tst_ScaleMeasure::measuresAsQwt()
{
    Random random(seed);
    for (int i = 0; i < cases; ++i) {
        Scale scale(upTo(4, random));
        set(&scale, random);
        const QFont font = anyFont(random);
        const ScaleMeasure measure(scale, &scale, font);
        const QByteArray number = QByteArray::number(i);
        int start = 0;
        int end = 0;
        scale.getBorderDistHint(font, start, end);
        const auto borders = measure.borders();
        QVERIFY2(borders && borders->start == start && borders->end == end, number);
        QVERIFY2(measure.extent() == std::optional<double>(scale.extent(font)), number);
        QVERIFY2(measure.maxLabelWidth() == std::optional<int>(scale.maxLabelWidth(font)), number);
        QVERIFY2(measure.minLength() == std::optional<int>(scale.minLength(font)), number);
    }
}

void tst_ScaleMeasure::answersNothingForRotatedLabels()
{
    Random random(seed);
    Scale scale(1);
    set(&scale, random);
    scale.enableComponent(QwtAbstractScaleDraw::Labels, true);
    scale.setScaleDiv(QwtLinearScaleEngine().divideScale(0.0, 10.0, 5, 5));
    scale.setLabelRotation(30.0);
    const QFont font;
    const ScaleMeasure measure(scale, &scale, font);
    QVERIFY(!measure.borders());
    QVERIFY(!measure.extent());
    QVERIFY(!measure.maxLabelWidth());
    QVERIFY(!measure.minLength());
}

void tst_ScaleMeasure::plotSizeHintsAreThoseOfQwt_data()
{
    QTest::addColumn<int>("kind");
    for (std::size_t i = 0; i < kinds().size(); ++i) {
        QTest::newRow(kinds()[i].first) << int(i);
    }
}

void tst_ScaleMeasure::plotSizeHintsAreThoseOfQwt()
{
    QFETCH(int, kind);
    const std::unique_ptr<ZEMHistogram> chart(kinds()[std::size_t(kind)].second.make());
    chart->init();
    auto *plot = chart->findChild<QwtPlot *>();
    Random random(seed);
    for (int i = 0; i < cases / 8; ++i) {
        const int axis = upTo(1, random) == 0 ? QwtPlot::yLeft : QwtPlot::xBottom;
        QwtScaleWidget *widget = plot->axisWidget(axis);
        const int start = upTo(30, random);
        switch (upTo(6, random)) {
        case 0:
            widget->setFont(anyFont(random));
            break;
        case 1:
            widget->setMargin(upTo(15, random));
            break;
        case 2:
            widget->setMinBorderDist(start, upTo(30, random));
            break;
        case 3:
            widget->setBorderDist(start, upTo(30, random));
            break;
        case 4:
            plot->setAxisScale(axis, 0.0, 1.0 + upTo(30000, random) / 7.0);
            plot->updateAxes();
            break;
        case 5:
            chart->setScaleDigits(QwtPlot::yLeft, upTo(4, random));
            break;
        default:
            plot->canvas()->setMinimumSize(start * 10, upTo(200, random));
            plot->setAxisTitle(axis, upTo(1, random) == 0 ? QString() : QStringLiteral("kWh"));
            break;
        }
        const QByteArray number = QByteArray::number(i);
        QVERIFY2(PlotSizeHints::minimum(*plot) == plot->QwtPlot::minimumSizeHint(), number);
        setOpen(false);
        const QSize preferred = plot->QwtPlot::sizeHint();
        setOpen(true);
        QVERIFY2(PlotSizeHints::preferred(*plot) == preferred, number);
    }
}

QTEST_MAIN(tst_ScaleMeasure)
#include "tst_scalemeasure.moc"
