// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef CHARTWALKACTIONS_H
#define CHARTWALKACTIONS_H

#include "chartwalk.h"

#include <QFont>
#include <QMargins>
#include <QPalette>
#include <QStringList>
#include <qwt_plot.h>
#include <qwt_scale_widget.h>

#include <functional>

namespace ChartWalk {

struct Action
{
    const char *name;
    std::function<void(Stage &, Random &)> act;
};

using Actions = std::vector<Action>;

/** What a host may do with plots, their axes, scale widgets and scale draws. */
Actions allPlotActions();

inline Actions joined(const std::vector<Actions> &parts)
{
    Actions all;
    for (const Actions &part : parts) {
        all.insert(all.end(), part.begin(), part.end());
    }
    return all;
}

inline QString anyText(Random &random)
{
    static const QStringList texts {QString(), QStringLiteral("kWh"),
                                    QStringLiteral("A longer text that may not fit"),
                                    QStringLiteral("<b>m<sup>3</sup></b>"),
                                    QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d 12")};
    return texts[upTo(int(texts.size()) - 1, random)];
}

inline QFont anyFont(Random &random)
{
    static const QStringList families {QStringLiteral("Cabin"), QStringLiteral("DejaVu Sans"),
                                       QStringLiteral("Quicksand Book"),
                                       QStringLiteral("Monospace")};
    QFont font(families[upTo(int(families.size()) - 1, random)]);
    if (coin(random)) {
        font.setPixelSize(7 + upTo(13, random));
    } else {
        font.setPointSizeF(5.0 + upTo(24, random) / 2.0);
    }
    font.setBold(upTo(4, random) == 0);
    font.setItalic(upTo(4, random) == 0);
    font.setUnderline(upTo(9, random) == 0);
    font.setStrikeOut(upTo(9, random) == 0);
    if (upTo(4, random) == 0) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, upTo(6, random) / 2.0 - 1.0);
    }
    return font;
}

inline QColor anyColor(Random &random)
{
    return QColor::fromRgba(QRgb(random()));
}

inline QColor anyOpaqueColor(Random &random)
{
    return QColor(QRgb(random()));
}

inline QPalette anyPalette(Random &random)
{
    QPalette palette;
    palette.setColor(QPalette::Text, anyColor(random));
    palette.setColor(QPalette::WindowText, anyColor(random));
    palette.setColor(QPalette::Window, anyOpaqueColor(random));
    return palette;
}

inline int anyAxis(Random &random)
{
    // Those that a chart shows count more.
    static constexpr int axes[] = {QwtPlot::xBottom, QwtPlot::xBottom, QwtPlot::yLeft,
                                   QwtPlot::yLeft,   QwtPlot::yRight,  QwtPlot::xTop};
    return axes[upTo(5, random)];
}

inline QwtScaleWidget *anyScale(const Stage &stage, Random &random)
{
    QwtPlot *plot = stage.anyPlot(random);
    return plot->axisWidget(anyAxis(random));
}

inline QwtScaleDraw *anyDraw(const Stage &stage, Random &random)
{
    return anyScale(stage, random)->scaleDraw();
}

inline QMargins anyMargins(Random &random)
{
    const int left = upTo(9, random);
    const int top = upTo(9, random);
    const int right = upTo(9, random);
    return {left, top, right, upTo(9, random)};
}
} // namespace ChartWalk

#endif
