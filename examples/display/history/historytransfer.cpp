// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "historytransfer.h"

#include "historyfile.h"
#include "historykeeper.h"
#include "ownformat.h"
#include "readingsfile.h"
#include "thinning.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>

using Readings::Household;
using Readings::IntervalAmount;
using Readings::Meter;
using Readings::Reading;
using Readings::Register;
using Readings::Tariff;

using Trouble = HistoryFile::Trouble;

namespace {

/** Rows of one transaction: a display that is running waits no longer than for these. */
constexpr std::size_t rowsAtOnce = 10000;

Transfer failure(const QString &text, const QStringList &problems = {})
{
    return {false, text, problems};
}

Transfer failure(const QString &path, const HistoryFile &file)
{
    return failure(QStringLiteral("%1: %2").arg(path, file.reason()));
}

/** The quantity of @p files that @p known counts by other registers; empty if there is none. */
QString contradiction(const Household &known, const Household &files)
{
    for (const auto &[added, meter] : files.meters) {
        for (const auto &[there, itsMeter] : known.meters) {
            if (added.quantity == there.quantity
                && (added.tariff == Tariff::Single) != (there.tariff == Tariff::Single)) {
                return Readings::quantityName(added.quantity);
            }
        }
    }
    return {};
}

/** The amounts of @p added that @p known does not know and has room for. */
std::vector<IntervalAmount> missingAmounts(const Meter &added, const Meter &known)
{
    std::vector<IntervalAmount> missing = added.amountRows();
    const auto removeIf = [&](auto isNeedless) {
        missing.erase(std::remove_if(missing.begin(), missing.end(), isNeedless), missing.end());
    };
    removeIf([&](const IntervalAmount &row) { return known.amount(row.interval).has_value(); });
    Meter together = known;
    for (const IntervalAmount &row : missing) {
        together.addAmount(row.interval, row.amount);
    }
    removeIf([&](const IntervalAmount &row) { return !together.amount(row.interval); });
    return missing;
}

/** Collects what is to be kept, and writes it piece by piece. */
class Importer
{
public:
    Importer(HistoryFile *theFile, qint64 theStep) : file(theFile), step(theStep) { }

    /** Keeps what @p added knows more than @p known. */
    Trouble keep(const Register &meterRegister, const Meter &added, Meter known);

    int keptRows() const { return kept; }
    std::size_t allRows() const { return all; }

private:
    template <class Rows, class Write>
    Trouble inPieces(const Rows &rows, Write write);

    HistoryFile *const file;
    const qint64 step;
    const qint64 fineSince = QDateTime::currentSecsSinceEpoch() - Readings::fineHistory;
    int kept = 0;
    std::size_t all = 0;
};

Trouble Importer::keep(const Register &meterRegister, const Meter &added, Meter known)
{
    const double most = Readings::quantityInfo(meterRegister.quantity).mostPerHour;
    const std::vector<Reading> read = added.readings();
    const std::vector<bool> isDispensable = Readings::dispensable(read, step, most);
    const std::set<qint64> borders = Readings::bordersOf(added.amountRows());
    std::vector<KeptReading> readings;
    for (std::size_t i = 0; i < read.size(); ++i) {
        if (read[i].instant >= fineSince || !isDispensable[i]
            || borders.count(read[i].instant) > 0) {
            readings.push_back({meterRegister, read[i].instant, read[i].value});
            known.addReading(read[i].instant, read[i].value);
        }
    }
    std::vector<KeptAmount> amounts;
    for (const IntervalAmount &row : missingAmounts(added, known)) {
        amounts.push_back({meterRegister, row.interval, row.amount});
    }
    all += read.size() + added.amountRows().size();
    const Trouble trouble =
        inPieces(readings, [this](const auto &piece) { return file->write(piece); });
    return trouble == Trouble::None
        ? inPieces(amounts, [this](const auto &piece) { return file->writeAmounts(piece); })
        : trouble;
}

template <class Rows, class Write>
Trouble Importer::inPieces(const Rows &rows, Write write)
{
    for (std::size_t begin = 0; begin < rows.size(); begin += rowsAtOnce) {
        const auto first = rows.begin() + std::ptrdiff_t(begin);
        const auto end = rows.begin() + std::ptrdiff_t(std::min(begin + rowsAtOnce, rows.size()));
        const Trouble trouble = write(Rows(first, end));
        if (trouble != Trouble::None) {
            return trouble;
        }
        kept += file->addedRows();
    }
    return Trouble::None;
}

} // namespace

Transfer importReadings(const QStringList &files, const QString &directory, const QTimeZone &zone)
{
    const Household added = Readings::loadReadings(files);
    if (!added.firstInstant()) {
        return failure(QStringLiteral("nothing is kept, as no reading of the files could be used"),
                       added.problems);
    }
    const QString path = HistoryKeeper::pathIn(directory);
    if (!QDir().mkpath(directory)) {
        return failure(QStringLiteral("%1: the directory cannot be made").arg(path),
                       added.problems);
    }
    HistoryFile file;
    Household known;
    if (file.open(path) != Trouble::None || file.read(&known) != Trouble::None) {
        return failure(path, file);
    }
    const QString otherwise = contradiction(known, added);
    if (!otherwise.isEmpty()) {
        return failure(QStringLiteral("nothing is kept, as %1 is kept by other tariffs in %2")
                           .arg(otherwise, path),
                       added.problems);
    }
    Importer importer(&file, Readings::keptStep(zone));
    for (const auto &[meterRegister, meter] : added.meters) {
        const Meter &there = known.meter(meterRegister, Meter::Kind::Counter);
        if (importer.keep(meterRegister, meter, there) != Trouble::None) {
            return failure(path, file);
        }
    }
    return {true,
            QStringLiteral("%1 of %2 readings are new and kept in %3")
                .arg(importer.keptRows())
                .arg(importer.allRows())
                .arg(path),
            added.problems};
}

Transfer exportReadings(const QString &path, const QString &directory, const QTimeZone &zone)
{
    Transfer failed;
    const std::optional<Household> household = readHistory(directory, zone, &failed);
    return household
        ? writeRows(path,
                    [&](QIODevice *device) { return Readings::writeOwnFormat(*household, device); })
        : failed;
}

std::optional<Household> readHistory(const QString &directory, const QTimeZone &zone,
                                     Transfer *failed)
{
    const QString history = HistoryKeeper::pathIn(directory);
    if (!QFileInfo::exists(history)) {
        *failed = failure(QStringLiteral("%1: there is no history").arg(history));
        return std::nullopt;
    }
    HistoryFile file;
    Household household;
    if (file.open(history) != Trouble::None || file.read(&household) != Trouble::None) {
        *failed = failure(history, file);
        return std::nullopt;
    }
    household.timeZone = zone;
    if (!household.firstInstant()) {
        *failed = failure(QStringLiteral("%1: there are no readings in it").arg(history));
        return std::nullopt;
    }
    return household;
}

Transfer writeRows(const QString &path, const std::function<int(QIODevice *)> &write)
{
    if (QFileInfo::exists(path) && !QFileInfo(path).isFile()) {
        return failure(QStringLiteral("%1: is not a file").arg(path));
    }
    QSaveFile output(path);
    if (!output.open(QIODevice::WriteOnly)) {
        return failure(QStringLiteral("%1: %2").arg(path, output.errorString()));
    }
    const int rows = write(&output);
    if (!output.commit()) {
        return failure(QStringLiteral("%1: %2").arg(path, output.errorString()));
    }
    return {true, QStringLiteral("%1 rows are written to %2").arg(rows).arg(path), {}};
}
