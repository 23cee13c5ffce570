// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemthrobber.h"

#include "objectname_p.h"
#include "sharpfile_p.h"
#include "sharppicture_p.h"

#include <QIcon>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>
#include <QTimer>
#include <QVariant>

namespace {

constexpr int frameInterval = 100; // ms

QList<QPixmap> cutFrames(const QImage &strip, int count)
{
    QList<QPixmap> frames;
    const qreal ratio = strip.devicePixelRatio();
    // What a strip has too much, each of its frames would have a part of, at another place.
    const int onScreen = count > 0 ? int(strip.width() / ratio) / count : 0;
    const int width = int(onScreen * ratio);
    for (int i = 0; i < count; ++i) {
        frames.append(QPixmap::fromImage(strip.copy(i * width, 0, width, strip.height())));
    }
    return frames;
}

/** Draws @p frame as the label draws its pixmap, which would be one for its own ratio. */
void drawAsPixmap(const QLabel *label, QPainter &painter, QPixmap frame)
{
    const int margin = label->margin();
    const QRect place = label->contentsRect().adjusted(margin, margin, -margin, -margin);
    if (!label->isEnabled()) {
        QStyleOption option;
        option.initFrom(label);
        frame = label->style()->generatedIconPixmap(QIcon::Disabled, frame, &option);
    }
    if (label->hasScaledContents()) {
        drawPicture(painter, place, frame);
        return;
    }
    const Qt::Alignment alignment =
        QStyle::visualAlignment(label->layoutDirection(), label->alignment());
    label->style()->drawItemPixmap(&painter, place, int(alignment), frame);
}

} // namespace

class ZEMThrobber::Private
{
public:
    /** The frame @p index for a screen of @p ratio; null where a strip has no frames. */
    QPixmap frame(int index, qreal ratio)
    {
        const SharpFile file = sharpFile(imagePath, ratio);
        if (file.ratio == 1) {
            return frames.value(index);
        }
        if (file.path != sharpPath) {
            QImage strip(file.path);
            strip.setDevicePixelRatio(file.ratio);
            sharpPath = file.path;
            sharpFrames = cutFrames(strip, frameCount);
        }
        return sharpFrames.value(index);
    }

    // The label need not hand out what it was given: Qt 6 keeps an icon.
    static qint64 keyOfShown(const ZEMThrobber *throbber)
    {
        return throbber->property("pixmap").value<QPixmap>().cacheKey();
    }

    /** Whether the label shows a frame, and not what a host has put there. */
    bool isShown(const ZEMThrobber *throbber) const
    {
        return currentFrame > 0 && keyOfShown(throbber) == shownKey;
    }

    void show(ZEMThrobber *throbber, const QPixmap &frame)
    {
        throbber->setPixmap(frame);
        shownKey = keyOfShown(throbber);
    }

    QList<QPixmap> frames;
    QList<QPixmap> sharpFrames; ///< from sharpPath
    QString sharpPath;
    qint64 shownKey = 0; ///< of the frame that was put on the label last
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
    d->sharpPath.clear();
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
    d->show(this, d->frames.value(d->currentFrame));
    ++d->currentFrame;
}

void ZEMThrobber::paintEvent(QPaintEvent *event)
{
    if (getShadow() || !d->isShown(this)) {
        ZEMTextLabel::paintEvent(event);
        return;
    }
    QFrame::paintEvent(event);
    QPainter painter(this);
    drawAsPixmap(this, painter, d->frame(d->currentFrame - 1, ratioOf(painter)));
}
