// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DISPLAYSETTINGS_H
#define DISPLAYSETTINGS_H

#include <QObject>
#include <QSettings>
#include <QString>

#include "standbyrule.h"

/** How the people of a house live now; it decides how much energy a day is meant to take. */
enum class Profile { Home, Away, Holiday };

/** How electricity is paid. */
enum class ContractType {
    Single, ///< one price
    DayAndNight ///< the meter's low tariff has a price of its own, and bars of its own
};

/**
 * What the people of a house have entered, written to a file at once. A value that the file does
 * not have, or that is out of range there, is the default.
 */
class DisplaySettings : public QObject
{
    Q_OBJECT

public:
    static constexpr double mostPrice = 9.9999; ///< € per kWh
    static constexpr int mostYearGoal = 99999; ///< kWh

    /** Of the file at @p path; an empty path stands for the user's own. */
    explicit DisplaySettings(const QString &path = QString(), QObject *parent = nullptr);

    QString houseName() const;
    void setHouseName(const QString &name);

    /** € per kWh, 0 to mostPrice; 0.30 by default. */
    double price() const;
    void setPrice(double price);

    ContractType contract() const;
    void setContract(ContractType contract);

    /** The language of the on-screen keyboard, by default the usual one. */
    QString keyboardLanguage() const;
    void setKeyboardLanguage(const QString &language);
    /** What is meant as long as nobody has chosen a keyboard, "nl" at first; not written. */
    void setUsualKeyboard(const QString &language) { usualKeyboard = language; }

    /** Electricity for a year in kWh, 1 to mostYearGoal; 3500 by default. */
    int yearGoal() const;
    void setYearGoal(int kilowattHours);

    /** When the screen goes dark by itself; never by default. */
    StandbyRule standby() const;
    void setStandby(const StandbyRule &rule);

    Profile profile() const;
    void setProfile(Profile profile);

public Q_SLOTS:
    /** Forgets all that was entered. */
    void clear();

Q_SIGNALS:
    void changed();
    /** What was entered could not be written, and is lost when the display ends; in one line. */
    void problem(const QString &line);

private:
    void set(const QString &key, const QVariant &value);
    void write();

    QSettings file;
    QString usualKeyboard = QStringLiteral("nl");
};

#endif
