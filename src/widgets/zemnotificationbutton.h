// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMNOTIFICATIONBUTTON_H
#define ZEMNOTIFICATIONBUTTON_H

#include "zembutton.h"

#include <QPixmap>

#include <memory>

/**
 * A button that carries a ZEMNotificationIcon over its whole face: a picture with a badge, to
 * touch.
 *
 * @code
 * #include <ZEMNotificationButton>
 * #include <ZEMPageHeader>
 *
 * ZEMPageHeader header;
 * auto *mail = new ZEMNotificationButton;
 * mail->setIcon(QPixmap(QStringLiteral(":/zem/graphics/icons/icon_pencil.png")));
 * mail->setNotifyCount(3);
 * header.addButton(mail);
 * header.show();
 * @endcode
 * A new button is 45 by 45 pixels and has no background of its own. Its icon is the picture of the
 * ZEMNotificationIcon and takes the place of the QIcon of other buttons. All properties below are
 * those of the icon.
 */
class ZEM_EXPORT ZEMNotificationButton : public ZEMButton
{
    Q_OBJECT
    Q_PROPERTY(QPixmap icon READ getIcon WRITE setIcon)
    Q_PROPERTY(QPixmap iconDisabled READ getDisabledIcon WRITE setDisabledIcon)
    Q_PROPERTY(int notifyCount READ getNotifyCount WRITE setNotifyCount)
    Q_PROPERTY(bool warning READ getWarning WRITE setWarning)

public:
    explicit ZEMNotificationButton(QWidget *parent = nullptr);
    ~ZEMNotificationButton() override;

    /** The picture while enabled; null by default. */
    QPixmap getIcon() const;
    /** Sets the picture of the enabled button; it is painted soon. */
    void setIcon(const QPixmap &icon);

    /** The picture while disabled; null by default. */
    QPixmap getDisabledIcon() const;
    /** Sets the picture of the disabled button; it is painted soon. */
    void setDisabledIcon(const QPixmap &icon);

    /** The count; 0 by default. */
    int getNotifyCount() const;
    /** Whether the badge warns; false by default. */
    bool getWarning() const;

public Q_SLOTS:
    /** Sets the count of the badge; it is painted soon. A negative count is ignored. */
    void setNotifyCount(int count);
    /** Switches the warning, which goes before a count; it is painted soon. */
    void setWarning(bool enable);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMNotificationButton)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
