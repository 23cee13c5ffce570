// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMMENUOVERLAY_H
#define ZEMMENUOVERLAY_H

#include "zempagebackground.h"

#include <QString>

#include <memory>

class QFont;

/**
 * A menu of three or four large buttons on a darkened page. A touch on one hides the menu and tells
 * the host; to leave without a choice takes a button for that.
 *
 * Make it a child of the page, above all else on it, and show it when it is wanted:
 * @code
 * #include <QCoreApplication>
 * #include <ZEMButton>
 * #include <ZEMMenuOverlay>
 *
 * ZEMPageBackground page;
 * auto *power = new ZEMButton(&page);
 * power->setIcon(QIcon(QStringLiteral(":/tango/graphics/tango/actions/process-stop-icon.png")));
 * auto *menu = new ZEMMenuOverlay(&page);
 * menu->hide();
 * QObject::connect(menu, &ZEMMenuOverlay::button1_clicked, &QCoreApplication::quit);
 * QObject::connect(power, &ZEMButton::clicked, menu, &QWidget::show);
 * QObject::connect(power, &ZEMButton::clicked, menu, &QWidget::raise);
 * page.show();
 * @endcode
 * A new overlay is 640 by 480 pixels and has three buttons, "afsluiten", "standby" and "annuleren";
 * the fourth, "status", is hidden. Texts are in black, whatever the palette, on nearly white
 * buttons, and in 18 point bold "Quicksand Book", a font of the host's; see
 * ZEMStyle::setApplicationFonts().
 */
class ZEM_EXPORT ZEMMenuOverlay : public ZEMPageBackground
{
    Q_OBJECT
    Q_PROPERTY(QColor popupColor READ getPopupColor WRITE setPopupColor)
    Q_PROPERTY(QString text1 READ getText1 WRITE setText1)
    Q_PROPERTY(QString text2 READ getText2 WRITE setText2)
    Q_PROPERTY(QString text3 READ getText3 WRITE setText3)
    Q_PROPERTY(QString text4 READ getText4 WRITE setText4)

public:
    explicit ZEMMenuOverlay(QWidget *parent = nullptr);
    ~ZEMMenuOverlay() override;

    /** The colour of the area behind the buttons; white with an alpha of 25 by default. */
    QColor getPopupColor() const;
    /** Sets the colour of the area behind the buttons and paints at once. */
    void setPopupColor(const QColor &color);

    QString getText1() const;
    void setText1(QString text);
    QString getText2() const;
    void setText2(QString text);
    QString getText3() const;
    void setText3(QString text);
    QString getText4() const;
    void setText4(QString text);

    /** The fonts of the four texts, each on its own. */
    void setFont1(QFont &font);
    void setFont2(QFont &font);
    void setFont3(QFont &font);
    void setFont4(QFont &font);

public Q_SLOTS:
    /** Shows or hides the fourth button. */
    void showButton4(bool show);

Q_SIGNALS:
    /** A button was touched; the overlay is already hidden. */
    void button1_clicked();
    void button2_clicked();
    void button3_clicked();
    void button4_clicked();

private Q_SLOTS:
    void button1_clicked_hide();
    void button2_clicked_hide();
    void button3_clicked_hide();
    void button4_clicked_hide();

private:
    Q_DISABLE_COPY(ZEMMenuOverlay)

    class Private;
    std::unique_ptr<Private> d;
};

#endif
