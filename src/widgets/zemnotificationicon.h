// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMNOTIFICATIONICON_H
#define ZEMNOTIFICATIONICON_H

#include "zemkit_export.h"

#include <QPixmap>
#include <QWidget>

#include <memory>

/**
 * A picture with a badge in its top right corner that tells how much there is to see, or that
 * something is wrong.
 *
 * @code
 * #include <ZEMNotificationIcon>
 * #include <ZEMPageBackground>
 *
 * ZEMPageBackground page;
 * auto *mail = new ZEMNotificationIcon(&page);
 * mail->setIcon(QPixmap(QStringLiteral(":/zem/graphics/icons/icon_pencil.png")));
 * mail->setNotifyCount(3);
 * page.show();
 * @endcode
 * The badge shows "!" for a warning, or else the count, "9+" if it is above 9, and is absent if
 * that is 0. Without a picture for its state, enabled or disabled, the widget is empty.
 *
 * A new icon is 45 by 45 pixels, but asks a layout for no room, where it is 0 wide in a row: give
 * it a fixed size there, or take a ZEMNotificationButton, which keeps its size. The text of the
 * badge is magenta, in 9 point bold, or one point more or less.
 */
class ZEM_EXPORT ZEMNotificationIcon : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap icon READ getIcon WRITE setIcon)
    Q_PROPERTY(QPixmap iconDisabled READ getDisabledIcon WRITE setDisabledIcon)
    Q_PROPERTY(int notifyCount READ getNotifyCount WRITE setNotifyCount)
    Q_PROPERTY(bool warning READ getWarning WRITE setWarning)

public:
    explicit ZEMNotificationIcon(QWidget *parent = nullptr);
    ~ZEMNotificationIcon() override;

    /** The picture while enabled; null by default. */
    QPixmap getIcon() const;
    /**
     * Sets the picture of the enabled widget, which is shown in its own size, divided by its ratio,
     * in the middle. The widget keeps its size and is painted soon.
     */
    void setIcon(const QPixmap &icon);

    /** The picture while disabled; null by default. */
    QPixmap getDisabledIcon() const;
    /** Sets the picture of the disabled widget, as setIcon() does that of the enabled one. */
    void setDisabledIcon(const QPixmap &icon);

    /** The count; 0 by default. */
    int getNotifyCount() const;
    /** Sets the count; the widget is painted soon. A negative count is ignored. */
    void setNotifyCount(int count);

    /** Whether the badge warns; false by default. */
    bool getWarning() const;
    /** Switches the warning, which goes before a count; the widget is painted soon. */
    void setWarning(bool warning);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMNotificationIcon)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
