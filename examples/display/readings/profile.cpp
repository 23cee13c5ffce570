// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "profile.h"

#include "csvreader.h"
#include "problemlist.h"

#include <QCoreApplication>
#include <algorithm>

namespace Readings {

namespace {

using Role = Column::Role;
using EmptyCell = Column::EmptyCell;
using Recognition = Profile::Recognition;
using Stamp = Profile::Stamp;
using Fields = std::vector<std::string_view>;

constexpr qint64 oneMinute = 60;
constexpr qint64 quarterHour = 15 * oneMinute;
constexpr qint64 oneHour = 60 * oneMinute;

constexpr double cubicMetresPerLitre = 0.001;
constexpr double wattsPerKilowatt = 1000.0;

constexpr Register importSingle {Quantity::GridImport, Tariff::Single};
constexpr Register importLow {Quantity::GridImport, Tariff::Low};
constexpr Register importNormal {Quantity::GridImport, Tariff::Normal};
constexpr Register exportSingle {Quantity::GridExport, Tariff::Single};
constexpr Register exportLow {Quantity::GridExport, Tariff::Low};
constexpr Register exportNormal {Quantity::GridExport, Tariff::Normal};
constexpr Register solar {Quantity::SolarProduction, Tariff::Single};
constexpr Register gas {Quantity::Gas, Tariff::Single};
constexpr Register water {Quantity::Water, Tariff::Single};
constexpr Register heating {Quantity::Heating, Tariff::Single};
constexpr Register heatPump {Quantity::HeatPump, Tariff::Single};
constexpr Register electricCar {Quantity::ElectricCar, Tariff::Single};

std::vector<Profile> makeProfiles()
{
    return {
        {QStringLiteral("zemkit readings"),
         Recognition::TimeColumn,
         "time,...",
         ',',
         '.',
         "time",
         TimeFormat::IsoWithOffset,
         "",
         Stamp::IntervalEnd,
         oneHour,
         {{"electricity_import_kwh", Role::Counter, importSingle},
          {"electricity_import_low_kwh", Role::Counter, importLow},
          {"electricity_import_normal_kwh", Role::Counter, importNormal},
          {"electricity_export_kwh", Role::Counter, exportSingle},
          {"electricity_export_low_kwh", Role::Counter, exportLow},
          {"electricity_export_normal_kwh", Role::Counter, exportNormal},
          {"solar_kwh", Role::Counter, solar},
          {"gas_m3", Role::Counter, gas},
          {"water_m3", Role::Counter, water},
          {"heating_gj", Role::Counter, heating},
          {"heat_pump_kwh", Role::Counter, heatPump},
          {"car_kwh", Role::Counter, electricCar},
          {"electricity_import_kwh_counted", Role::Amount, importSingle},
          {"electricity_import_low_kwh_counted", Role::Amount, importLow},
          {"electricity_import_normal_kwh_counted", Role::Amount, importNormal},
          {"electricity_export_kwh_counted", Role::Amount, exportSingle},
          {"electricity_export_low_kwh_counted", Role::Amount, exportLow},
          {"electricity_export_normal_kwh_counted", Role::Amount, exportNormal},
          {"solar_kwh_counted", Role::Amount, solar},
          {"gas_m3_counted", Role::Amount, gas},
          {"water_m3_counted", Role::Amount, water},
          {"heating_gj_counted", Role::Amount, heating},
          {"heat_pump_kwh_counted", Role::Amount, heatPump},
          {"car_kwh_counted", Role::Amount, electricCar}},
         "interval_s",
         "time_zone"},

        {QStringLiteral("German house with solar panels, hourly"),
         Recognition::WholeHeader,
         "local_time,grid_import_kwh,grid_export_kwh,pv_kwh,heat_pump_kwh,ev_kwh,interpolated",
         ',',
         '.',
         "local_time",
         TimeFormat::IsoWallClock,
         "Europe/Berlin",
         Stamp::IntervalEnd,
         oneHour,
         {{"grid_import_kwh", Role::Counter, importSingle},
          {"grid_export_kwh", Role::Counter, exportSingle},
          {"pv_kwh", Role::Counter, solar},
          {"heat_pump_kwh", Role::Counter, heatPump},
          {"ev_kwh", Role::Counter, electricCar}}},

        {QStringLiteral("P1 logger, hourly"),
         Recognition::WholeHeader,
         "TIMESTAMP,VERBR_KWH_181,VERBR_KWH_182,GELVR_KWH_281,GELVR_KWH_282,VERBR_KWH_X,"
         "GELVR_KWH_X,TARIEFCODE",
         ',',
         '.',
         "TIMESTAMP",
         TimeFormat::WallClock,
         "Europe/Amsterdam",
         Stamp::IntervalStart,
         oneHour,
         {{"VERBR_KWH_181", Role::Counter, importLow},
          {"VERBR_KWH_182", Role::Counter, importNormal},
          {"GELVR_KWH_281", Role::Counter, exportLow},
          {"GELVR_KWH_282", Role::Counter, exportNormal}}},

        {QStringLiteral("P1 logger, by the minute"),
         Recognition::WholeHeader,
         "TIMESTAMP,VERBR_KWH_181,VERBR_KWH_182,GELVR_KWH_281,GELVR_KWH_282,VERBR_KWH_X,"
         "GELVR_KWH_X,TARIEFCODE,ACT_VERBR_KW_170,ACT_GELVR_KW_270",
         ',',
         '.',
         "TIMESTAMP",
         TimeFormat::WallClock,
         "Europe/Amsterdam",
         Stamp::IntervalStart,
         oneMinute,
         {{"VERBR_KWH_181", Role::Counter, importLow},
          {"VERBR_KWH_182", Role::Counter, importNormal},
          {"GELVR_KWH_281", Role::Counter, exportLow},
          {"GELVR_KWH_282", Role::Counter, exportNormal},
          {"ACT_VERBR_KW_170", Role::Power, importSingle, wattsPerKilowatt},
          {"ACT_GELVR_KW_270", Role::Power, exportSingle, wattsPerKilowatt}}},

        {QStringLiteral("Dutch meter portal, electricity"),
         Recognition::WholeHeader,
         "datum_tijd;levering_normaal;levering_laag;teruglevering_normaal;teruglevering_laag;"
         "buitentemperatuur",
         ';',
         ',',
         "datum_tijd",
         TimeFormat::DayFirstWithOffset,
         "Europe/Amsterdam",
         Stamp::IntervalEnd,
         quarterHour,
         {{"levering_normaal", Role::Amount, importNormal, 1.0, EmptyCell::OtherTariffApplies},
          {"levering_laag", Role::Amount, importLow, 1.0, EmptyCell::OtherTariffApplies},
          {"teruglevering_normaal", Role::Amount, exportNormal, 1.0, EmptyCell::OtherTariffApplies},
          {"teruglevering_laag", Role::Amount, exportLow, 1.0, EmptyCell::OtherTariffApplies}}},

        {QStringLiteral("Dutch meter portal, gas"),
         Recognition::WholeHeader,
         "datum_tijd;levering;buitentemperatuur",
         ';',
         ',',
         "datum_tijd",
         TimeFormat::DayFirstWithOffset,
         "Europe/Amsterdam",
         Stamp::IntervalEnd,
         oneHour,
         {{"levering", Role::Amount, gas}}},

        {QStringLiteral("Canadian house, water and gas"),
         Recognition::WholeHeader,
         "unix_ts,water_counter,furnace_gas_counter",
         ',',
         '.',
         "unix_ts",
         TimeFormat::UnixSeconds,
         "America/Vancouver",
         Stamp::IntervalEnd,
         quarterHour,
         {{"water_counter", Role::Counter, water, cubicMetresPerLitre},
          {"furnace_gas_counter", Role::Counter, gas, cubicMetresPerLitre}}},
    };
}

std::string_view viewOf(const QByteArray &text)
{
    return {text.constData(), static_cast<std::size_t>(text.size())};
}

const Column *columnNamed(const Profile &profile, std::string_view name)
{
    const auto found =
        std::find_if(profile.columns.cbegin(), profile.columns.cend(),
                     [&](const Column &column) { return viewOf(column.name) == name; });
    return found == profile.columns.cend() ? nullptr : &*found;
}

bool recognises(const Profile &profile, const Fields &fields)
{
    if (profile.recognition == Recognition::TimeColumn) {
        return fields.front() == viewOf(profile.timeColumn);
    }
    Fields wanted;
    CsvReader::split(viewOf(profile.header), profile.separator, wanted);
    return fields == wanted;
}

// Why a header with a free choice of columns cannot be read; empty if it can.
QString problemOf(const Profile &profile, const Fields &fields)
{
    if (fields.size() < 2) {
        return QCoreApplication::translate("Readings", "there is no column but \"%1\"")
            .arg(QString::fromUtf8(profile.timeColumn));
    }
    for (auto field = fields.cbegin() + 1; field != fields.cend(); ++field) {
        if (!columnNamed(profile, *field) && *field != viewOf(profile.lengthColumn)
            && *field != viewOf(profile.zoneColumn)) {
            return QCoreApplication::translate("Readings", "unknown column %1").arg(quoted(*field));
        }
        if (std::find(fields.cbegin(), field, *field) != field) {
            return QCoreApplication::translate("Readings", "column %1 comes twice")
                .arg(quoted(*field));
        }
    }
    return {};
}

HeaderMatch matchProfile(const Profile &profile, const Fields &fields)
{
    HeaderMatch match;
    match.profile = &profile;
    match.fieldCount = fields.size();
    for (std::size_t field = 0; field < fields.size(); ++field) {
        if (fields[field] == viewOf(profile.timeColumn)) {
            match.timeField = field;
        } else if (fields[field] == viewOf(profile.lengthColumn)) {
            match.lengthField = field;
        } else if (fields[field] == viewOf(profile.zoneColumn)) {
            match.zoneField = field;
        } else if (const Column *column = columnNamed(profile, fields[field])) {
            match.columns.push_back({field, column});
        }
    }
    return match;
}

} // namespace

const std::vector<Profile> &profiles()
{
    static const std::vector<Profile> table = makeProfiles();
    return table;
}

HeaderMatch matchHeader(std::string_view header)
{
    Fields fields;
    for (const Profile &profile : profiles()) {
        if (!CsvReader::split(header, profile.separator, fields) || !recognises(profile, fields)) {
            continue;
        }
        if (profile.recognition == Recognition::TimeColumn) {
            const QString problem = problemOf(profile, fields);
            if (!problem.isEmpty()) {
                HeaderMatch match;
                match.problem = problem;
                return match;
            }
        }
        return matchProfile(profile, fields);
    }
    HeaderMatch match;
    match.problem = QCoreApplication::translate(
                        "Readings",
                        "no known kind of file has the header %1; docs/readings.md tells "
                        "of those that there are")
                        .arg(quoted(header));
    return match;
}

} // namespace Readings
