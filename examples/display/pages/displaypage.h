// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DISPLAYPAGE_H
#define DISPLAYPAGE_H

#include "daterange.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <ZEMPageBackground>
#include <optional>

class EnergySource;
class QVBoxLayout;
class ZEMLabel;
class ZEMNotificationButton;
class ZEMPageHeader;
class ZEMTextLabel;

/**
 * The base of all pages of the display: the dark ground, and a header with the menu, a way back,
 * the title and place of the page, date and time (and that it is a simulation, or of when the
 * readings are that do not go on), the power of the grid and the messages. It fills any size from
 * 640 by 480 or, upright, 480 by 800 pixels, of which the header takes 74 in height. Nothing moves
 * on a page that is not in view.
 */
class DisplayPage : public ZEMPageBackground
{
    Q_OBJECT

public:
    /** @p source must outlive the page. */
    DisplayPage(const QString &title, const EnergySource &source, QWidget *parent = nullptr);

    void setTitle(const QString &title);
    /** Tells that this is page @p index, counted from 0, of @p count. */
    void setPlace(int index, int count);
    /** All pages but the start page have a way back. */
    void addBackButton();
    /** How many messages have not been seen. */
    void setMessageCount(int count);

Q_SIGNALS:
    void menuClicked();
    void backClicked();
    void messagesClicked();

protected:
    enum class Shape { Wide, Tall };

    const EnergySource &energySource() const { return shownSource; }
    /** The room beneath the header. */
    QVBoxLayout *content() const { return contentLayout; }

    /** The days of which there is something to show: today alone until a meter is heard. */
    DateRange dates() const;
    /** The day of @p date in few words: "vandaag", or the date. */
    QString dayName(const QDate &date) const;
    /** The page is in view, and the household came to another day since it told of one. */
    virtual void handleNewDay() { }

    /** Puts what is on the page beside each other, or below. Called before the page is seen. */
    virtual void arrange(Shape /*shape*/) { }

    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *makePowerTile();
    void showNow();
    void fitHeader();
    int textRoom() const;
    QStringList timeTexts(const QDateTime &now) const;
    void showGridPower();

    const EnergySource &shownSource;
    QTimer minuteTimer;
    QDate shownDay;
    QString wholeTitle;
    std::optional<Shape> arrangedFor;
    ZEMPageHeader *header;
    QVBoxLayout *contentLayout = nullptr;
    ZEMTextLabel *powerCaption = nullptr;
    ZEMLabel *power = nullptr;
    ZEMNotificationButton *messages = nullptr;
};

#endif
