// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPIXMAP_H
#define ZEMPIXMAP_H

#include "zemkit_export.h"

#include <QColor>
#include <QPixmap>
#include <QWidget>

#include <memory>

/**
 * A picture of fixed size with an opacity: an icon, an arrow, the ground of a text.
 *
 * @code
 * #include <ZEMPageBackground>
 * #include <ZEMPixmap>
 *
 * ZEMPageBackground page;
 * auto *house = new ZEMPixmap(&page);
 * house->setPixmap(QPixmap(QStringLiteral(":/zem/graphics/icons/icons_14.png")));
 * house->setOpacity(0.5);
 * page.show();
 * @endcode
 * The widget is as large as its picture, by its size divided by its ratio, and stays so; in a
 * layout it is never stretched. A picture of the library, of ratio 1, is shown sharp where the
 * screen is.
 */
class ZEM_EXPORT ZEMPixmap : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap pixmap READ getPixmap WRITE setPixmap)
    Q_PROPERTY(qreal opacity READ getOpacity WRITE setOpacity)
    Q_PROPERTY(QColor color READ getColor WRITE setColor)

public:
    explicit ZEMPixmap(QWidget *parent = nullptr);
    ~ZEMPixmap() override;

    /** The picture, or what setColor() made of it; null by default. */
    QPixmap getPixmap() const;
    /**
     * Sets the picture, locks minimum, maximum and present size to its size and paints at once. A
     * null picture locks the widget to 0 by 0.
     */
    void setPixmap(const QPixmap &pixmap);

    /** The opacity of the picture, from 0.0, not seen, to 1.0, the default. */
    qreal getOpacity() const;
    /** Sets the opacity and paints at once. A value outside 0.0 to 1.0 is ignored. */
    void setOpacity(double opacity);

    /** The colour last given to setColor(); invalid by default. */
    QColor getColor() const;
    /**
     * Fills the picture with @p color, which wipes out what it showed; with no picture yet, one of
     * the widget's present size is made first. The size stays, and nothing is painted: the colour
     * is seen from the next paint on, so call update() to see it soon.
     */
    void setColor(const QColor &color);

    /** The present size. */
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMPixmap)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
