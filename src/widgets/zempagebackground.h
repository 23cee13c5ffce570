// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPAGEBACKGROUND_H
#define ZEMPAGEBACKGROUND_H

#include "zemkit_export.h"

#include <QColor>
#include <QPixmap>
#include <QWidget>

#include <memory>

/**
 * The ground of a page, a dialog or an overlay: one picture stretched over the whole widget, or a
 * flat colour while there is no picture.
 *
 * Put the other widgets of the page on it, with or without a layout:
 * @code
 * #include <ZEMLabel>
 * #include <ZEMPageBackground>
 *
 * ZEMPageBackground page;
 * page.setBackgroundColor(QColor(16, 24, 32));
 * auto *label = new ZEMLabel(&page);
 * label->setText(QStringLiteral("1,5 kW"));
 * page.show();
 * @endcode
 * A new page is 640 by 480 pixels and cannot be made smaller until it gets a picture. With neither
 * picture nor colour it is black. A colour with an alpha below 255 lets what lies beneath shine
 * through, which is how overlays darken a page.
 */
class ZEM_EXPORT ZEMPageBackground : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor WRITE setBackgroundColor)

public:
    explicit ZEMPageBackground(QWidget *parent = nullptr);
    ~ZEMPageBackground() override;

    /** The picture; null by default. */
    QPixmap getBackground() const;
    /**
     * Sets the picture, which covers the colour, and makes its size the minimum size of the page.
     * The page keeps its own size unless that is smaller; there is no maximum, and the picture is
     * stretched to whatever size the page has. A null picture shows the colour again and sets the
     * minimum to 0 by 0. The page is painted at once if @p repaint is true. A picture counts by its
     * size divided by its ratio.
     */
    void setBackground(const QPixmap &background, bool repaint = true);

    /** The colour; invalid by default, which paints black. */
    QColor getBackgroundColor() const;
    /** Sets the colour, which is seen while there is no picture, and paints the page at once. */
    void setBackgroundColor(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMPageBackground)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
