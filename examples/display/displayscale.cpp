// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "displayscale.h"

#include <QRegularExpression>
#include <QStringList>
#include <QtGlobal>
#include <algorithm>

namespace DisplayScale {

namespace {

constexpr QSize leastWide(640, 480);
constexpr QSize leastTall(480, 800);
constexpr int largestSide = 10000; // pixels

} // namespace

QSize leastSize(const QSize &screen)
{
    return screen.width() < screen.height() ? leastTall : leastWide;
}

std::optional<QSize> parseSize(const QString &text)
{
    static const QRegularExpression sides(QStringLiteral("^([0-9]{1,5})x([0-9]{1,5})$"));
    const QRegularExpressionMatch match = sides.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const QSize least = leastSize(size);
    const bool fits = match.hasMatch() && size == size.expandedTo(least)
        && std::max(size.width(), size.height()) <= largestSide;
    return fits ? std::optional<QSize>(size) : std::nullopt;
}

double scaleFor(const QSize &screen)
{
    const QSize least = leastSize(screen);
    return std::min(double(screen.width()) / least.width(),
                    double(screen.height()) / least.height());
}

QSize pageSizeOn(const QSize &screen)
{
    return screen / scaleFor(screen);
}

void prepare(const QSize &screen)
{
    // Panels tell wrong sizes, and letters that grow without their buttons do not fit them.
    qputenv("QT_FONT_DPI", "96");
    const double scale = scaleFor(screen);
    if (!qFuzzyCompare(scale, 1.0)) {
        qputenv("QT_SCALE_FACTOR", QByteArray::number(scale, 'g', 10));
    }
}

bool isWholeScreen(const QString &platform)
{
    const QStringList names {QStringLiteral("linuxfb"), QStringLiteral("eglfs"),
                             QStringLiteral("vnc")};
    return names.contains(platform.section(QLatin1Char(':'), 0, 0));
}

} // namespace DisplayScale
