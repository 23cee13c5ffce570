// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMTEXTLABEL_H
#define ZEMTEXTLABEL_H

#include "zemkit_export.h"

#include <QLabel>

#include <memory>

/**
 * A QLabel that can draw a shadow one pixel right of and below its text, so that it reads well on
 * a picture. Everything else is as in QLabel.
 *
 * The shadow has the colour of QPalette::Shadow and the text that of the label's foreground role,
 * both in the palette's current colour group.
 * @code
 * #include <QApplication>
 * #include <ZEMPageBackground>
 * #include <ZEMStyle>
 * #include <ZEMTextLabel>
 * #include <ZEMUtils>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // white on a half transparent shadow
 * ZEMPageBackground page;
 * page.setBackgroundColor(QColor(96, 112, 128));
 * auto *power = new ZEMTextLabel(&page);
 * power->setShadow(true);
 * power->setText(ZEMUtils::wattToStringAutoScale(1480.0));
 * page.show();
 * @endcode
 */
class ZEM_EXPORT ZEMTextLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(bool enableShadow READ getShadow WRITE setShadow)

public:
    explicit ZEMTextLabel(QWidget *parent = nullptr);
    ~ZEMTextLabel() override;

    /** Whether the shadow is drawn; false by default. */
    bool getShadow() const;
    /**
     * Switches the shadow; it is seen from the next paint on. A label with a shadow draws its
     * text() as it stands: rich text is not interpreted, and a picture or movie is not shown.
     */
    void setShadow(bool shadow);

    /** That of QLabel plus one pixel each way, the room for the shadow, be it on or off. */
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    /** Draws shadow and text. To be called while @p event, a paint event of this label, is handled.
     */
    void drawShadowLabel(QPaintEvent *event);

private:
    Q_DISABLE_COPY(ZEMTextLabel)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
