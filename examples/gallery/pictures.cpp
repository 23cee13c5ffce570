// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pictures.h"

#include "look.h"
#include "pagetable.h"
#include "stage.h"
#include "stillness.h"

#include <KeyboardFactoryDefault>
#include <QDir>
#include <QEventLoop>
#include <QImage>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

namespace {

constexpr int timeToSettle = 600; // milliseconds, in which layouts are done
constexpr int best = 0; // of QImage::save(): the smallest file

/** With a table of colours where they are few enough, which makes a smaller file. */
QImage slim(const QImage &image)
{
    constexpr int mostColors = 256;
    const QImage opaque = image.convertToFormat(QImage::Format_RGB32);
    QVector<QRgb> colors;
    for (int y = 0; y < opaque.height(); ++y) {
        for (int x = 0; x < opaque.width(); ++x) {
            const QRgb color = opaque.pixel(x, y);
            if (!colors.contains(color)) {
                colors.append(color);
            }
        }
        if (colors.size() > mostColors) {
            return image.convertToFormat(QImage::Format_RGB888);
        }
    }
    return opaque.convertToFormat(QImage::Format_Indexed8, colors, Qt::ThresholdDither);
}

QImage pictureOf(const GalleryPage &page, KeyboardFactoryDefault *keyboards,
                 const QString &keyboardDirectory)
{
    QWidget host;
    host.resize(Look::screen);
    Stage stage(keyboards, keyboardDirectory);
    page.show(stage);
    QWidget *sample = stage.sample();
    // Before any time has passed, and again what sets off when it is shown.
    holdStill(sample);
    sample->setParent(&host);
    host.show();
    sample->show();
    // A caption is as wide as its font makes it, which a sample knows once it is shown.
    sample->resize(stage.pictureSize());
    QEventLoop loop;
    QTimer::singleShot(timeToSettle, &loop, &QEventLoop::quit);
    loop.exec();
    holdStill(sample);
    return slim(sample->grab().toImage());
}

} // namespace

QString writePictures(const QString &directory, const QString &keyboardDirectory)
{
    const QDir dir(directory);
    if (!dir.mkpath(QStringLiteral("."))) {
        return QStringLiteral("cannot make the directory %1").arg(directory);
    }
    KeyboardFactoryDefault keyboards(keyboardDirectory, QStringLiteral("en"));
    for (const GalleryPage &page : allPages()) {
        const QImage picture = pictureOf(page, &keyboards, keyboardDirectory);
        for (const QString &name : page.classes) {
            const QString path = dir.filePath(name.toLower() + QStringLiteral(".png"));
            if (!picture.save(path, "PNG", best)) {
                return QStringLiteral("cannot write %1").arg(path);
            }
        }
    }
    return QString();
}
