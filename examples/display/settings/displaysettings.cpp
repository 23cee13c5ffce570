// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "displaysettings.h"

#include <cmath>

namespace {

constexpr double usualPrice = 0.30;
constexpr int usualYearGoal = 3500;
constexpr int minutesPerDay = 24 * 60;

const QString houseNameKey = QStringLiteral("house/name");
const QString profileKey = QStringLiteral("house/profile");
const QString priceKey = QStringLiteral("energy/price");
const QString contractKey = QStringLiteral("energy/contract");
const QString yearGoalKey = QStringLiteral("energy/yearGoal");
const QString standbyAfterKey = QStringLiteral("standby/after");
const QString nightFromKey = QStringLiteral("standby/nightFrom");
const QString nightToKey = QStringLiteral("standby/nightTo");
const QString timeFormat = QStringLiteral("HH:mm");
const QString languageKey = QStringLiteral("keyboard/language");

/** An enumerator of @p Enum, whose last one is @p last; the first one for all other numbers. */
template <typename Enum>
Enum enumOf(const QVariant &value, Enum last)
{
    const int number = value.toInt();
    return number > 0 && number <= int(last) ? Enum(number) : Enum(0);
}

} // namespace

DisplaySettings::DisplaySettings(const QString &path, QObject *parent)
    : QObject(parent),
      file(path.isEmpty() ? QSettings(QSettings::IniFormat, QSettings::UserScope,
                                      QStringLiteral("zemkit"), QStringLiteral("display"))
                                .fileName()
                          : path,
           QSettings::IniFormat)
{
}

QString DisplaySettings::houseName() const
{
    return file.value(houseNameKey).toString();
}

void DisplaySettings::setHouseName(const QString &name)
{
    set(houseNameKey, name);
}

double DisplaySettings::price() const
{
    bool isNumber = false;
    const double price = file.value(priceKey, usualPrice).toDouble(&isNumber);
    return isNumber && std::isfinite(price) && price >= 0.0 && price <= mostPrice ? price
                                                                                  : usualPrice;
}

void DisplaySettings::setPrice(double price)
{
    set(priceKey, price);
}

ContractType DisplaySettings::contract() const
{
    const QVariant value = file.value(contractKey, int(ContractType::DayAndNight));
    return enumOf(value, ContractType::DayAndNight);
}

void DisplaySettings::setContract(ContractType contract)
{
    set(contractKey, int(contract));
}

QString DisplaySettings::keyboardLanguage() const
{
    return file.value(languageKey, usualKeyboard).toString();
}

void DisplaySettings::setKeyboardLanguage(const QString &language)
{
    set(languageKey, language);
}

int DisplaySettings::yearGoal() const
{
    const int goal = file.value(yearGoalKey, usualYearGoal).toInt();
    return goal >= 1 && goal <= mostYearGoal ? goal : usualYearGoal;
}

void DisplaySettings::setYearGoal(int kilowattHours)
{
    set(yearGoalKey, kilowattHours);
}

StandbyRule DisplaySettings::standby() const
{
    const auto time = [this](const QString &key) {
        const QTime read = QTime::fromString(file.value(key).toString(), timeFormat);
        return read.isValid() ? read : QTime(0, 0);
    };
    const int after = file.value(standbyAfterKey).toInt();
    return {after > 0 && after <= minutesPerDay ? after : 0, time(nightFromKey), time(nightToKey)};
}

void DisplaySettings::setStandby(const StandbyRule &rule)
{
    file.setValue(standbyAfterKey, rule.after);
    file.setValue(nightFromKey, rule.nightFrom.toString(timeFormat));
    set(nightToKey, rule.nightTo.toString(timeFormat));
}

Profile DisplaySettings::profile() const
{
    return enumOf(file.value(profileKey), Profile::Holiday);
}

void DisplaySettings::setProfile(Profile profile)
{
    set(profileKey, int(profile));
}

void DisplaySettings::clear()
{
    file.clear();
    write();
    Q_EMIT changed();
}

void DisplaySettings::set(const QString &key, const QVariant &value)
{
    file.setValue(key, value);
    write();
    Q_EMIT changed();
}

void DisplaySettings::write()
{
    file.sync();
    if (file.status() != QSettings::NoError) {
        Q_EMIT problem(tr("%1: instellingen zijn niet bewaard").arg(file.fileName()));
    }
}
