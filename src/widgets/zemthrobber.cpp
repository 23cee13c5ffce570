// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemthrobber.h"

#include "objectname_p.h"

#include <QImage>
#include <QList>
#include <QPixmap>
#include <QTimer>

namespace {

constexpr int frameInterval = 100; // ms

QList<QPixmap> cutFrames(const QImage &strip, int count)
{
    QList<QPixmap> frames;
    const int width = count > 0 ? strip.width() / count : 0;
    for (int i = 0; i < count; ++i) {
        frames.append(QPixmap::fromImage(strip.copy(i * width, 0, width, strip.height())));
    }
    return frames;
}

} // namespace

class ZEMThrobber::Private
{
public:
    QList<QPixmap> frames;
    int currentFrame = 0;
    QTimer timer;
    QString imagePath = QStringLiteral(":/zem/graphics/icons/throbber.png");
    int frameCount = 12;
};

ZEMThrobber::ZEMThrobber(QWidget *parent) : ZEMTextLabel(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    setAlignment(Qt::AlignCenter);
    init();
}

ZEMThrobber::~ZEMThrobber() = default;

void ZEMThrobber::start()
{
    d->timer.start();
    slotChangeImage();
}

void ZEMThrobber::pause()
{
    d->timer.stop();
    slotChangeImage();
}

void ZEMThrobber::stop()
{
    d->timer.stop();
    setPixmap(QPixmap());
}

void ZEMThrobber::setImage(QString path, int frames)
{
    d->imagePath = path;
    d->frameCount = frames;
    init();
}

void ZEMThrobber::init()
{
    d->frames = cutFrames(QImage(d->imagePath), d->frameCount);
    d->currentFrame = 0;
    connect(&d->timer, &QTimer::timeout, this, &ZEMThrobber::slotChangeImage, Qt::UniqueConnection);
    d->timer.setInterval(frameInterval);
    d->timer.start();
    slotChangeImage();
}

void ZEMThrobber::slotChangeImage()
{
    if (d->currentFrame >= d->frames.size()) {
        d->currentFrame = 0;
    }
    setPixmap(d->frames.value(d->currentFrame)); // null where a strip has no frames
    ++d->currentFrame;
}
