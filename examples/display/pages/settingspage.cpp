// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "settingspage.h"

#include "decimalvalidator.h"
#include "displaysettings.h"
#include "inputdialogs.h"
#include "pagelook.h"

#include <QGridLayout>
#include <QLocale>
#include <QVBoxLayout>
#include <ZEMButton>
#include <ZEMLineEditButton>
#include <ZEMTextLabel>
#include <algorithm>
#include <iterator>

namespace {

constexpr int priceDecimals = 4;
constexpr int fieldRoom = 233 - 2 * 14; // pixels of a field for its text

constexpr int standbyMinutes[] = {0, 1, 2, 5, 10, 30, 60};
constexpr int nightBegins[] = {20, 21, 22, 23, 0, 1}; // hours
constexpr int nightEnds[] = {5, 6, 7, 8, 9, 10};

QString standbyName(int minutes)
{
    return minutes == 0 ? SettingsPage::tr("nooit")
                        : SettingsPage::tr("%n minuten", nullptr, minutes);
}

QStringList contractNames()
{
    return {SettingsPage::tr("Enkel tarief"), SettingsPage::tr("Dag en nacht")};
}

QString languageName(const QString &language)
{
    // Of these two QLocale names the country as well.
    if (language == QLatin1String("en")) {
        return QStringLiteral("English");
    }
    if (language == QLatin1String("es")) {
        return QStringLiteral("Español");
    }
    const QString name = QLocale(language).nativeLanguageName();
    return name.isEmpty() ? language : name.at(0).toUpper() + name.mid(1);
}

QString privacyText()
{
    return SettingsPage::tr(
        "<p>Dit scherm leest de meters in huis en bewaart wat het leest alleen in zijn eigen "
        "geheugen. Het stuurt niets naar buiten en heeft geen account nodig.</p>"
        "<p>De naam van het huis, de prijs, het tarief en het doel staan in een bestand op dit "
        "scherm. Met <b>Alles wissen</b> op de pagina met instellingen verdwijnt alles wat hier is "
        "ingevoerd.</p>"
        "<p>Wat de meters telden staat in een tweede bestand, zodat de grafieken er na het "
        "uitzetten "
        "nog zijn: de standen van elk uur voorgoed, die van elke vijf minuten honderd dagen lang. "
        "Alles wissen laat ze staan. Het bestand heet history.sqlite en staat in de map zemkit bij "
        "de "
        "gegevens van de gebruiker van het scherm.</p>"
        "<p>Wie het scherm verkoopt of weggeeft, wist eerst alle instellingen, zet het scherm uit "
        "en "
        "gooit dan dat bestand weg. Een nieuwe bewoner begint met een leeg scherm, dat de meters "
        "vanaf dat moment volgt.</p>");
}

} // namespace

SettingsPage::SettingsPage(const EnergySource &source, DisplaySettings *theSettings,
                           InputDialogs *theDialogs, QWidget *parent)
    : DisplayPage(tr("Instellingen"), source, parent), settings(theSettings), dialogs(theDialogs)
{
    grid = new QGridLayout;
    grid->setHorizontalSpacing(32);
    grid->setVerticalSpacing(10);
    grid->setAlignment(Qt::AlignCenter);
    houseName = addField(tr("naam van het huis"), "houseName", &SettingsPage::askHouseName);
    price = addField(tr("prijs van een kWh"), "price", &SettingsPage::askPrice);
    contract = addField(tr("tarief"), "contract", &SettingsPage::chooseContract);
    keyboard = addField(tr("toetsenbord"), "keyboard", &SettingsPage::chooseKeyboard);
    standby = addField(tr("scherm uit na"), "standby", &SettingsPage::chooseStandby);
    night = addField(tr("scherm 's nachts uit"), "night", &SettingsPage::chooseNight);
    addField(tr("uitleg"), "privacy", &SettingsPage::readPrivacy)
        ->setText(tr("Wat bewaart dit scherm?"));

    ZEMLineEditButton *clearButton = addField(QString(), "clear", &SettingsPage::clear);
    clearButton->setText(tr("Alles wissen"));
    clearButton->setAlignment(Qt::AlignCenter);
    SettingsPage::arrange(Shape::Wide);
    content()->addLayout(grid, 1);

    connect(settings, &DisplaySettings::changed, this, &SettingsPage::refresh);
    refresh();
}

void SettingsPage::setPricedByContract()
{
    isPricedByContract = true;
    refresh();
}

ZEMLineEditButton *SettingsPage::addField(const QString &caption, const char *name,
                                          void (SettingsPage::*ask)())
{
    ZEMLineEditButton *field = PageLook::makeField();
    field->setObjectName(QLatin1String(name));
    connect(field, &ZEMLineEditButton::clicked, this, ask);

    auto *cell = new QVBoxLayout;
    cell->setSpacing(1);
    // Beside a field with a caption both are in one line.
    cell->addWidget(PageLook::makeLabel(caption.isEmpty() ? QStringLiteral(" ") : caption, 11));
    cell->addWidget(field);
    cells.append(cell);
    return field;
}

void SettingsPage::arrange(Shape shape)
{
    const int columns = shape == Shape::Wide ? 2 : 1;
    for (int i = 0; i < cells.size(); ++i) {
        grid->removeItem(cells.at(i));
        grid->addLayout(cells.at(i), i / columns, i % columns);
    }
}

void SettingsPage::askHouseName()
{
    dialogs->askLine(tr("Naam van het huis"), settings->houseName(),
                     [this](const QString &name) { settings->setHouseName(name.trimmed()); });
}

void SettingsPage::askPrice()
{
    if (isPricedByContract) {
        dialogs->inform(tr("De prijzen staan in het contract"));
        return;
    }
    const auto inEuro = [](double euro) { return QLocale().toString(euro, 'f', priceDecimals); };
    dialogs->askNumber(
        tr("Prijs van een kWh in euro"), inEuro(settings->price()),
        new DecimalValidator(0.0, DisplaySettings::mostPrice, priceDecimals),
        tr("Een prijs van 0 tot %1 euro").arg(inEuro(DisplaySettings::mostPrice)),
        [this](const QString &text) { settings->setPrice(QLocale().toDouble(text)); });
}

void SettingsPage::chooseContract()
{
    dialogs->choose(tr("Tarief"), contractNames(), int(settings->contract()),
                    [this](int row) { settings->setContract(ContractType(row)); });
}

void SettingsPage::chooseKeyboard()
{
    const QStringList languages = dialogs->languages();
    QStringList names;
    for (const QString &language : languages) {
        names << languageName(language);
    }
    const int current = std::max(0, int(languages.indexOf(settings->keyboardLanguage())));
    dialogs->choose(tr("Toetsenbord"), names, current, [this, languages](int row) {
        settings->setKeyboardLanguage(languages.at(row));
    });
}

void SettingsPage::chooseStandby()
{
    QStringList names;
    for (const int minutes : standbyMinutes) {
        names << standbyName(minutes);
    }
    const StandbyRule rule = settings->standby();
    const auto *current =
        std::find(std::begin(standbyMinutes), std::end(standbyMinutes), rule.after);
    const bool isListed = current != std::end(standbyMinutes);
    dialogs->choose(tr("Scherm uit na"), names,
                    isListed ? int(std::distance(std::begin(standbyMinutes), current)) : 0,
                    [this](int row) {
                        StandbyRule chosen = settings->standby();
                        chosen.after = standbyMinutes[row];
                        settings->setStandby(chosen);
                    });
}

void SettingsPage::chooseNight()
{
    QStringList begins {tr("nooit")};
    for (const int hour : nightBegins) {
        begins << tr("vanaf %1 uur").arg(hour);
    }
    dialogs->choose(tr("Scherm 's nachts uit"), begins, 0, [this](int row) {
        StandbyRule rule = settings->standby();
        if (row == 0) {
            rule.nightFrom = rule.nightTo = QTime(0, 0);
            settings->setStandby(rule);
            return;
        }
        rule.nightFrom = QTime(nightBegins[row - 1], 0);
        QStringList ends;
        for (const int hour : nightEnds) {
            ends << tr("tot %1 uur").arg(hour);
        }
        dialogs->choose(tr("Scherm 's nachts uit"), ends, 0, [this, rule](int chosen) mutable {
            rule.nightTo = QTime(nightEnds[chosen], 0);
            settings->setStandby(rule);
        });
    });
}

void SettingsPage::readPrivacy()
{
    dialogs->read(tr("Wat bewaart dit scherm?"), privacyText());
}

void SettingsPage::clear()
{
    if (dialogs->confirm(tr("Alles wissen?"), tr("Alle instellingen gaan weg."))) {
        settings->clear();
    }
}

void SettingsPage::refresh()
{
    const QString name = settings->houseName();
    houseName->setText(name.isEmpty() ? QStringLiteral("–")
                                      : PageLook::elided(name, houseName, fieldRoom));
    price->setText(isPricedByContract
                       ? tr("volgens contract")
                       : tr("€ %1").arg(QLocale().toString(settings->price(), 'f', priceDecimals)));
    contract->setText(contractNames().at(int(settings->contract())));
    keyboard->setText(languageName(settings->keyboardLanguage()));
    const StandbyRule rule = settings->standby();
    standby->setText(standbyName(rule.after));
    const QString time = tr("H:mm");
    night->setText(
        rule.nightFrom == rule.nightTo
            ? tr("nooit")
            : tr("%1 – %2 uur").arg(rule.nightFrom.toString(time), rule.nightTo.toString(time)));
}
