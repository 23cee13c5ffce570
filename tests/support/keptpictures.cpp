// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keptpictures.h"

#include <QImage>
#include <QSysInfo>
#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr int shadesOfColor = 8; // of red, green and blue each
// The same page comes to 0.88 or more with other fonts, another page of the gallery seldom to 0.85.
constexpr double alike = 0.85;

/** How much of a picture is of which colour, what is behind it left out; all of it is 1. */
using Colors = std::array<double, shadesOfColor * shadesOfColor * shadesOfColor>;

Colors colorsOf(const QImage &image)
{
    constexpr int levels = 256 / shadesOfColor;
    Colors colors {};
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const int shade =
                (qRed(pixel) / levels * shadesOfColor + qGreen(pixel) / levels) * shadesOfColor
                + qBlue(pixel) / levels;
            ++colors[std::size_t(shade)];
        }
    }
    double &ground = *std::max_element(colors.begin(), colors.end());
    double all = double(image.width()) * image.height();
    // An empty page is nothing but what is behind.
    if (ground < all) {
        all -= std::exchange(ground, 0.0);
    }
    for (double &share : colors) {
        share /= all;
    }
    return colors;
}

bool isReferenceMachine()
{
    return QT_VERSION_MAJOR == 5 && QSysInfo::productType() == QLatin1String("debian")
        && QSysInfo::productVersion() == QLatin1String("12")
        && QSysInfo::buildCpuArchitecture() == QLatin1String("x86_64");
}

QString differenceOfPixels(const QImage &now, const QImage &kept, const QString &file)
{
    if (now.size() != kept.size()) {
        return QStringLiteral("%1 is %2 by %3 pixels, and now %4 by %5")
            .arg(file)
            .arg(kept.width())
            .arg(kept.height())
            .arg(now.width())
            .arg(now.height());
    }
    int pixels = 0;
    for (int y = 0; y < kept.height(); ++y) {
        for (int x = 0; x < kept.width(); ++x) {
            pixels += kept.pixel(x, y) != now.pixel(x, y) ? 1 : 0;
        }
    }
    return pixels == 0 ? QString()
                       : QStringLiteral("%1 pixels differ from %2").arg(pixels).arg(file);
}

QString differenceOfColors(const QImage &now, const QImage &kept, const QString &file)
{
    const double common = KeptPictures::commonColors(now, kept);
    return common >= alike
        ? QString()
        : QStringLiteral("only %1 of the colors are those of %2").arg(common).arg(file);
}

} // namespace

double KeptPictures::commonColors(const QImage &one, const QImage &other)
{
    const Colors first = colorsOf(one);
    const Colors second = colorsOf(other);
    double common = 0.0;
    for (std::size_t i = 0; i < first.size(); ++i) {
        common += std::min(first[i], second[i]);
    }
    return common;
}

QString KeptPictures::difference(const QImage &now, const QString &file)
{
    const QImage kept = QImage(file).convertToFormat(QImage::Format_RGB32);
    if (kept.isNull()) {
        return QStringLiteral("there is no %1").arg(file);
    }
    const QImage taken = now.convertToFormat(QImage::Format_RGB32);
    return isReferenceMachine() ? differenceOfPixels(taken, kept, file)
                                : differenceOfColors(taken, kept, file);
}
