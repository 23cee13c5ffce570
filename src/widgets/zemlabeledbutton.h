// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMLABELEDBUTTON_H
#define ZEMLABELEDBUTTON_H

#include "zemkit_export.h"

#include <QIcon>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <memory>

class ZEMButton;

/**
 * A ZEMButton with a title strip above it, a ZEMWidgetLabel. The base of the tiles of a dashboard.
 *
 * @code
 * #include <QApplication>
 * #include <ZEMLabeledButton>
 * #include <ZEMPageBackground>
 * #include <ZEMStyle>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // a light title
 * ZEMPageBackground page;
 * page.setBackgroundColor(QColor(22, 32, 40));
 * auto *tile = new ZEMLabeledButton(&page);
 * tile->setTitle(QStringLiteral("huidige status"));
 * tile->setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_med.png")));
 * tile->adjustSize();
 * QObject::connect(tile, &ZEMLabeledButton::clicked, &page, &QWidget::close);
 * page.show();
 * @endcode
 */
class ZEM_EXPORT ZEMLabeledButton : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QPixmap backgroundOff READ getBackgroundOff WRITE setBackgroundOff)
    Q_PROPERTY(QString title READ getTitle WRITE setTitle)
    Q_PROPERTY(bool titleHidden READ getTitleIsHidden WRITE setTitleHidden)
    Q_PROPERTY(QIcon icon READ getIcon WRITE setIcon)

public:
    explicit ZEMLabeledButton(QWidget *parent = nullptr);
    ~ZEMLabeledButton() override;

    /** The picture of the button, which gives it its size; see ZEMButton::setBackground(). */
    QPixmap getBackground() const;
    void setBackground(const QPixmap &background);

    /** The picture of the button while it is disabled; see ZEMButton::setBackgroundOff(). */
    QPixmap getBackgroundOff() const;
    void setBackgroundOff(const QPixmap &background);

    /** The text of the strip; the translated "Title" by default. */
    QString getTitle() const;
    void setTitle(const QString &title);

    /** Whether the strip was hidden with setTitleHidden(), even if this widget is not shown. */
    bool getTitleIsHidden() const;
    /** Hides the strip, which gives its room back to the layout, or shows it, as is the default. */
    void setTitleHidden(bool hidden);

    /** The icon in the middle of the button; null by default. */
    QIcon getIcon() const;
    void setIcon(const QIcon &icon);

    /** The button itself, for what this class does not offer. It belongs to this widget. */
    ZEMButton *getBackgroundWidget() const;

Q_SIGNALS:
    /** The button was clicked. */
    void clicked();

private:
    Q_DISABLE_COPY(ZEMLabeledButton)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
