// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMLINEEDITBUTTON_H
#define ZEMLINEEDITBUTTON_H

#include "zembutton.h"

#include <QString>
#include <Qt>

#include <memory>

/**
 * A button that looks like a text field: a text on a picture, to open an input dialog with. The
 * margins of the layout place the text inside the art of the picture:
 * @code
 * #include <QApplication>
 * #include <ZEMLineEditButton>
 * #include <ZEMPageBackground>
 * #include <ZEMStyle>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
 * ZEMPageBackground page;
 * page.setBackgroundColor(QColor(96, 112, 128));
 * auto *name = new ZEMLineEditButton(&page);
 * name->setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide.png")));
 * name->setLayoutLeft(12);
 * name->setText(QStringLiteral("Keuken"));
 * QObject::connect(name, &ZEMLineEditButton::clicked, &page, &QWidget::close);
 * page.show();
 * @endcode
 * The text is that of a ZEMTextLabel named "textLabel", without a shadow and in the colour of
 * QPalette::ButtonText. It takes the place of the text of other buttons. A new button is 64 by 32
 * pixels.
 */
class ZEM_EXPORT ZEMLineEditButton : public ZEMButton
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(bool modified READ isModified WRITE setModified)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(int layoutLeft READ layoutLeft WRITE setLayoutLeft)
    Q_PROPERTY(int layoutTop READ layoutTop WRITE setLayoutTop)
    Q_PROPERTY(int layoutRight READ layoutRight WRITE setLayoutRight)
    Q_PROPERTY(int layoutBottom READ layoutBottom WRITE setLayoutBottom)

public:
    explicit ZEMLineEditButton(QWidget *parent = nullptr);
    ~ZEMLineEditButton() override;

    /** Sets the picture as ZEMButton does, and locks the size of the button to its size. */
    void setBackground(const QPixmap &background) override;

    /** The text; empty by default. */
    QString text() const;
    void setText(const QString &text);

    /** Two flags for the owner, false by default. The button does not heed or change them. */
    bool isReadOnly() const;
    void setReadOnly(bool readOnly);
    bool isModified() const;
    void setModified(bool modified);

    /** Where the text stands; left and vertically centred by default. */
    Qt::Alignment alignment() const;
    void setAlignment(Qt::Alignment alignment);

    /** Pixels between the edges of the picture and the text; 0 by default. */
    int layoutLeft() const;
    void setLayoutLeft(int margin);
    int layoutTop() const;
    void setLayoutTop(int margin);
    int layoutRight() const;
    void setLayoutRight(int margin);
    int layoutBottom() const;
    void setLayoutBottom(int margin);

private:
    Q_DISABLE_COPY(ZEMLineEditButton)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
