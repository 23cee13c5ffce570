// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pricefile.h"

#include "csvreader.h"
#include "problemlist.h"
#include "timestamp.h"

#include <QCoreApplication>
#include <algorithm>

using Readings::CsvReader;
using Readings::ProblemList;
using Readings::quoted;
using Readings::trimmed;

namespace Costs {

namespace {

constexpr char separator = ',';
constexpr char decimalSign = '.';
constexpr std::string_view timeColumn = "time";
constexpr std::string_view priceColumn = "eur_per_kwh";

/** Reads one file into a list of prices. */
class PriceFile
{
public:
    PriceFile(const QString &filePath, PriceList *list, ProblemList *problemList)
        : path(filePath), reader(filePath), prices(list), problems(problemList),
          file(problemList->addFile(filePath))
    {
    }

    /** Returns why it is of no use; empty if there is a price in it. */
    QString load();

private:
    using Fields = std::vector<std::string_view>;

    QString readHeader();
    void readRow();
    void contradiction(const QString &what);
    void broken(const QString &what);
    QString failure(const QString &what) const { return QStringLiteral("%1: %2").arg(path, what); }

    const QString path;
    CsvReader reader;
    PriceList *const prices;
    ProblemList *const problems;
    const int file;
    Fields fields;
    std::size_t fieldCount = 0;
    std::size_t timeField = 0;
    std::size_t priceField = 0;
    int goodRows = 0;
};

QString PriceFile::load()
{
    const QString obstacle = reader.open();
    if (!obstacle.isEmpty()) {
        return failure(obstacle);
    }
    const QString problem = readHeader();
    if (!problem.isEmpty()) {
        return problem;
    }
    while (reader.nextLine()) {
        if (reader.isTooLong()) {
            broken(QCoreApplication::translate("Readings", "the line is too long"));
        } else if (!trimmed(reader.line()).empty()) {
            readRow();
        }
    }
    const QString error = reader.readError();
    if (!error.isEmpty()) {
        return failure(QCoreApplication::translate("Readings", "reading stopped: %1").arg(error));
    }
    return goodRows > 0
        ? QString()
        : failure(QCoreApplication::translate("Prices", "there are no prices in it"));
}

QString PriceFile::readHeader()
{
    if (!reader.nextLine()) {
        return failure(QCoreApplication::translate("Readings", "the file is empty"));
    }
    const bool isWhole = CsvReader::split(reader.line(), separator, fields);
    std::transform(fields.begin(), fields.end(), fields.begin(), trimmed);
    const auto time = std::find(fields.cbegin(), fields.cend(), timeColumn);
    const auto price = std::find(fields.cbegin(), fields.cend(), priceColumn);
    if (!isWhole || time == fields.cend() || price == fields.cend()) {
        return QCoreApplication::translate(
                   "Prices",
                   "%1:1: the header %2 is without the columns \"time\" and "
                   "\"eur_per_kwh\"")
            .arg(path, quoted(reader.line()));
    }
    fieldCount = fields.size();
    timeField = std::size_t(time - fields.cbegin());
    priceField = std::size_t(price - fields.cbegin());
    return {};
}

void PriceFile::readRow()
{
    if (!CsvReader::split(reader.line(), separator, fields) || fields.size() != fieldCount) {
        broken(QCoreApplication::translate("Prices", "it has not the %1 fields of the header")
                   .arg(fieldCount));
        return;
    }
    const std::string_view stamp = trimmed(fields[timeField]);
    const std::optional<qint64> from =
        Readings::parseStamp(stamp, Readings::TimeFormat::IsoWithOffset);
    if (!from) {
        broken(QCoreApplication::translate("Readings", "bad time stamp %1").arg(quoted(stamp)));
        return;
    }
    const std::string_view number = trimmed(fields[priceField]);
    const std::optional<double> euro = Readings::parseNumber(number, decimalSign);
    const double most = mostOf(Readings::Quantity::GridImport);
    const std::optional<Price> price = euro ? roundedPrice(*euro, most) : std::nullopt;
    if (!price) {
        broken(QCoreApplication::translate("Prices", "%1 is no price of a kWh in euro")
                   .arg(quoted(number)));
        return;
    }
    ++goodRows;
    const PriceList::Answer answer = prices->add(*from, *price);
    if (answer == PriceList::Answer::Contradiction) {
        contradiction(QCoreApplication::translate(
                          "Prices", "%1 contradicts an earlier price of this hour; left out")
                          .arg(quoted(number)));
    } else if (answer == PriceList::Answer::Overlap) {
        contradiction(
            QCoreApplication::translate("Prices",
                                        "the hour from %1 has a part in another that has a price; "
                                        "left out")
                .arg(quoted(stamp)));
    }
}

void PriceFile::contradiction(const QString &what)
{
    problems->add(file, reader.lineNumber(), ProblemList::Kind::Contradiction, what);
}

void PriceFile::broken(const QString &what)
{
    problems->add(file, reader.lineNumber(), ProblemList::Kind::BrokenRow,
                  what + QCoreApplication::translate("Readings", "; row left out"));
}

} // namespace

LoadedPrices loadPrices(const QStringList &files)
{
    LoadedPrices loaded;
    ProblemList problems;
    for (const QString &path : files) {
        const QString failure = PriceFile(path, &loaded.prices, &problems).load();
        if (loaded.failure.isEmpty()) {
            loaded.failure = failure;
        }
    }
    loaded.problems = problems.lines();
    return loaded;
}

} // namespace Costs
