// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "sampledata.h"
#include "stage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <ZEMScaleDraw>
#include <ZEMScaleEngine>
#include <ZEMStyle>
#include <ZEMTextLabel>
#include <qwt_scale_widget.h>

namespace {

/** An axis of its own; those of a plot get their draws by QwtPlot::setAxisScaleDraw(). */
QwtScaleWidget *makeScale(QwtScaleDraw *draw, QwtScaleDraw::Alignment alignment, double end,
                          double step, double offset)
{
    auto *scale = new QwtScaleWidget;
    scale->setAlignment(alignment);
    scale->setScaleDraw(draw); // which the scale owns
    scale->setScaleDiv(ZEMScaleEngine(offset).divideScale(0.0, end, 10, 0, step));
    QPalette palette = scale->palette();
    palette.setColor(QPalette::WindowText, ZEMStyle(nullptr).color(ZEMStyle::WhiteAlpha50));
    palette.setColor(QPalette::Text, Qt::white);
    scale->setPalette(palette);
    return scale;
}

void addScale(QVBoxLayout *rows, const QString &name, QwtScaleDraw *draw, double end, double step,
              double offset)
{
    auto *label = new ZEMTextLabel;
    label->setText(name);
    rows->addWidget(label);
    rows->addWidget(makeScale(draw, QwtScaleDraw::BottomScale, end, step, offset));
}

} // namespace

void Pages::zemscaledraw(Stage &stage)
{
    auto *page = new QWidget;
    auto *columns = new QHBoxLayout(page);
    auto *energy = new ZEMKWhScaleDraw(0.0);
    energy->setDigits(2);
    auto *vertical = makeScale(energy, QwtScaleDraw::LeftScale, 2.0, 0.5, 0.0);
    columns->addWidget(vertical);
    columns->addWidget(
        makeScale(new ZEMMonthKWhScaleDraw(0.0), QwtScaleDraw::LeftScale, 80.0, 20.0, 0.0));
    auto *plain = new ZEMScaleDraw;
    columns->addWidget(makeScale(plain, QwtScaleDraw::LeftScale, 4.0, 1.0, 0.0));

    auto *rows = new QVBoxLayout;
    columns->addLayout(rows, 1);
    addScale(rows, QStringLiteral("ZEMDayScaleDraw"), new ZEMDayScaleDraw, 24.0, 6.0, 0.0);
    addScale(rows, QStringLiteral("ZEMWeekScaleDraw"), new ZEMWeekScaleDraw(0.5), 7.0, 1.0, 0.5);
    auto *month = new ZEMMonthScaleDraw(0.5);
    month->setStartTimestamp(SampleData::lastMonday());
    addScale(rows, QStringLiteral("ZEMMonthScaleDraw"), month, 5.0, 1.0, 0.5);
    addScale(rows, QStringLiteral("ZEMNoScaleDraw: nothing"), new ZEMNoScaleDraw, 10.0, 1.0, 0.0);

    stage.fill(page, Stage::height);
    for (const int digits : {0, 1, 3}) {
        stage.addButton(QStringLiteral("setDigits(%1)").arg(digits), [=] {
            energy->setDigits(digits);
            vertical->update();
        });
    }
}
