// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMLINEEDIT_H
#define ZEMLINEEDIT_H

#include "zempixmap.h"

#include <QString>

#include <memory>

class QValidator;

/**
 * A QLineEdit on a picture, which is that of ZEMPixmap and locks the size of the widget. The
 * margins of the layout place the field inside the art of the picture:
 * @code
 * #include <QApplication>
 * #include <ZEMLineEdit>
 * #include <ZEMPageBackground>
 * #include <ZEMStyle>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
 * ZEMPageBackground page;
 * page.setBackgroundColor(QColor(96, 112, 128));
 * auto *name = new ZEMLineEdit(&page);
 * name->setPixmap(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide.png")));
 * name->setLayoutLeft(12);
 * name->setLayoutRight(12);
 * name->setText(QStringLiteral("Keuken"));
 * page.show();
 * @endcode
 * The field has neither frame nor ground while enabled, and an opaque light grey ground while
 * disabled. Its text has the colour of QPalette::Text. Without a picture a new widget is 640 by 480
 * pixels.
 *
 * Text, placeholder, the flags, length and validator are those of the QLineEdit, named "lineEdit",
 * and behave as there. Its signals and the focus are not passed on: whoever wants them, or lets a
 * keyboard type into the field, takes findChild<QLineEdit *>("lineEdit").
 */
class ZEM_EXPORT ZEMLineEdit : public ZEMPixmap
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString placeholderText READ placeholderText WRITE setPlaceholderText)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)
    Q_PROPERTY(bool modified READ isModified WRITE setModified)
    Q_PROPERTY(int maxLength READ maxLength WRITE setMaxLength)
    Q_PROPERTY(int layoutLeft READ layoutLeft WRITE setLayoutLeft)
    Q_PROPERTY(int layoutTop READ layoutTop WRITE setLayoutTop)
    Q_PROPERTY(int layoutRight READ layoutRight WRITE setLayoutRight)
    Q_PROPERTY(int layoutBottom READ layoutBottom WRITE setLayoutBottom)

public:
    explicit ZEMLineEdit(QWidget *parent = nullptr);
    ~ZEMLineEdit() override;

    QString text() const;
    void setText(const QString &text);

    QString placeholderText() const;
    void setPlaceholderText(const QString &text);

    bool isReadOnly() const;
    void setReadOnly(bool readOnly);

    bool isModified() const;
    void setModified(bool modified);

    int maxLength() const;
    void setMaxLength(int length);

    const QValidator *validator() const;
    /** Sets the validator, which stays the caller's; null removes it. */
    void setValidator(const QValidator *validator);

    /**
     * Pixels between the edges of the picture and the room of the field; 0 by default. The field
     * takes all of its width and stands, one line high, in the middle of its height.
     */
    int layoutLeft() const;
    void setLayoutLeft(int margin);
    int layoutTop() const;
    void setLayoutTop(int margin);
    int layoutRight() const;
    void setLayoutRight(int margin);
    int layoutBottom() const;
    void setLayoutBottom(int margin);

private:
    Q_DISABLE_COPY(ZEMLineEdit)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
