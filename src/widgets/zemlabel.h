// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMLABEL_H
#define ZEMLABEL_H

#include "zempixmap.h"

#include <QString>
#include <Qt>

/**
 * A text with a shadow on a picture.
 *
 * The picture is that of ZEMPixmap and locks the size of the widget. Without one a new label is 64
 * by 31 pixels, and in a layout as large as its text asks for.
 *
 * The text is white, or grey while the label is disabled. On a button it has the button's colour,
 * QPalette::ButtonText, which is black without ZEMStyle.
 * @code
 * #include <ZEMLabel>
 * #include <ZEMPageBackground>
 *
 * ZEMPageBackground page;
 * auto *value = new ZEMLabel(&page);
 * value->setPixmap(QPixmap(QStringLiteral(":/zem/graphics/main/text_bg_medium.png")));
 * value->setText(QStringLiteral("1,5 kW"));
 * page.show();
 * @endcode
 * The text is drawn by a ZEMTextLabel named "label" that fills the widget but for one pixel at each
 * edge; all properties below are those of that label and behave as in QLabel.
 */
class ZEM_EXPORT ZEMLabel : public ZEMPixmap
{
    Q_OBJECT
    Q_PROPERTY(QString text READ getText WRITE setText)
    Q_PROPERTY(Qt::Alignment alignment READ getAlignment WRITE setAlignment)
    Q_PROPERTY(int indent READ getIndent WRITE setIndent)
    Q_PROPERTY(int margin READ getMargin WRITE setMargin)
    Q_PROPERTY(Qt::TextFormat textFormat READ getTextFormat WRITE setTextFormat)
    Q_PROPERTY(bool enableShadow READ getShadow WRITE setShadow)

public:
    explicit ZEMLabel(QWidget *parent = nullptr);
    ~ZEMLabel() override;

    /** The text; empty by default. */
    QString getText() const;
    void setText(const QString &text);

    /** Where the text stands; Qt::AlignCenter by default. */
    Qt::Alignment getAlignment() const;
    void setAlignment(Qt::Alignment alignment);

    /** Pixels between text and edge on the sides that the alignment names; -1, none, by default. */
    int getIndent() const;
    void setIndent(int indent);

    /** Pixels kept free around the text on all sides; 0 by default. */
    int getMargin() const;
    void setMargin(int margin);

    /** How the text is read while the shadow is off; Qt::AutoText by default. */
    Qt::TextFormat getTextFormat() const;
    void setTextFormat(Qt::TextFormat format);

    /** Whether the text has a shadow; true by default. */
    bool getShadow() const;
    /** Switches the shadow; it is seen from the next paint on. */
    void setShadow(bool shadow);

    /** That of the label within, without the pixel around it. */
    QSize sizeHint() const override;

private:
    Q_DISABLE_COPY(ZEMLabel)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
