// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPROFILEBUTTON_H
#define ZEMPROFILEBUTTON_H

#include "zembutton.h"

#include <QString>

/**
 * A wide row to choose a profile from: an image, a title and a check mark.
 *
 * The row is checkable, and checked means that the finger has selected it. Whether its profile is
 * the one in use is another thing, told with setActivated(). The mark is green for the profile in
 * use, grey for a row that is selected and not in use, and absent for all others.
 * @code
 * #include <QButtonGroup>
 * #include <QVBoxLayout>
 * #include <ZEMPageBackground>
 * #include <ZEMProfileButton>
 *
 * ZEMPageBackground page;
 * page.setBackgroundColor(QColor(96, 112, 128));
 * auto *rows = new QVBoxLayout(&page);
 * auto *profiles = new QButtonGroup(&page); // of which one is checked
 * for (const QString &title : {QStringLiteral("Thuis"), QStringLiteral("Afwezig")}) {
 *     auto *profile = new ZEMProfileButton;
 *     profile->setTitle(title);
 *     profiles->addButton(profile);
 *     rows->addWidget(profile);
 * }
 * static_cast<ZEMProfileButton *>(profiles->buttons().first())->setActivated(true);
 * page.show();
 * @endcode
 * A new row is 233 by 50 pixels, the size of its pictures. In a layout it is as high as its image
 * and the style's margins need, 53 pixels with Fusion. The title is white, a fifth of it
 * see-through.
 */
class ZEM_EXPORT ZEMProfileButton : public ZEMButton
{
    Q_OBJECT
    Q_PROPERTY(QPixmap icon READ getIcon WRITE setIcon)
    Q_PROPERTY(QString title READ getTitle WRITE setTitle)
    Q_PROPERTY(bool activated READ isActivated WRITE setActivated)

public:
    explicit ZEMProfileButton(QWidget *parent = nullptr);
    ~ZEMProfileButton() override;

    /** The image at the left; null by default. */
    QPixmap getIcon() const;
    /**
     * Sets the image, which is shown in its own size and painted at once; the row has room for 41
     * by 35 pixels. It takes the place of the QIcon of other buttons, which a row does not have.
     */
    void setIcon(const QPixmap &icon);

    /** The text; the translated "TextLabel" by default. */
    QString getTitle() const;
    void setTitle(const QString &title);

    /** Whether this profile is the one in use; false by default. */
    bool isActivated() const;
    /** Sets whether this profile is in use; the mark follows at the next paint, which is asked for.
     */
    void setActivated(bool activated);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMProfileButton)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
