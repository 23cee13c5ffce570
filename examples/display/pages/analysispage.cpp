// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "analysispage.h"

#include "datetext.h"
#include "energysource.h"
#include "pagelook.h"
#include "powerplot.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>
#include <ZEMButton>
#include <ZEMStyle>
#include <ZEMTextLabel>
#include <algorithm>

namespace {

constexpr QSize buttonSize(52, 44); // pixels
constexpr int rowSpacing = 4;
constexpr int dateSize = 14; // points
constexpr int dateWidth = 190; // pixels, of the longest date
constexpr int legendSize = 11; // points
constexpr int pointSize = 15;
constexpr int hintSize = 11;
constexpr QSize swatchSize(12, 12); // pixels
constexpr int repeatDelay = 400; // ms before a held button steps on
constexpr int repeatInterval = 60; // ms

ZEMButton *makeButton(const char *name, const QString &icon)
{
    auto *button = new ZEMButton;
    button->setObjectName(QLatin1String(name));
    button->setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_small.png")));
    button->setHideWhenDisabled(true);
    button->setIcon(QIcon(icon));
    button->setFixedSize(buttonSize);
    return button;
}

QString leftArrow()
{
    return QStringLiteral(":/zem/graphics/icons/arrow_left.png");
}

QString rightArrow()
{
    return QStringLiteral(":/zem/graphics/icons/arrow_right.png");
}

ZEMTextLabel *makeLabel(const char *name, int size)
{
    auto *label = new ZEMTextLabel;
    label->setObjectName(QLatin1String(name));
    label->setFont(PageLook::textFont(size));
    QPalette palette = label->palette();
    ZEMStyle(nullptr).setLabelColor(palette, ZEMStyle::White);
    label->setPalette(palette);
    return label;
}

QPixmap swatchOf(const QColor &color)
{
    QPixmap picture(swatchSize);
    picture.fill(color);
    return picture;
}

} // namespace

AnalysisPage::AnalysisPage(const EnergySource &source, QWidget *parent)
    : DisplayPage(tr("Analyse"), source, parent), powerPlot(new PowerPlot(&styler))
{
    content()->addSpacing(rowSpacing);
    content()->addWidget(makeDayRow());
    content()->addSpacing(rowSpacing);
    content()->addWidget(powerPlot, 1);
    content()->addSpacing(rowSpacing);
    content()->addWidget(makePointRow());

    connect(powerPlot, &PowerPlot::pickedChanged, this, &AnalysisPage::showPicked);
    connect(powerPlot, &PowerPlot::zoomChanged, this, &AnalysisPage::showPicked);
    connect(&source, &EnergySource::historyChanged, this, &AnalysisPage::handleHistory);
}

void AnalysisPage::showDate(const QDate &date)
{
    range = dates();
    shownDate = qBound(range.first, date, range.last);
    readDay();
}

void AnalysisPage::arrange(Shape shape)
{
    dayRow->setDirection(shape == Shape::Wide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void AnalysisPage::showEvent(QShowEvent *event)
{
    DisplayPage::showEvent(event);
    if (!isRead) {
        handleHistory();
    }
}

QWidget *AnalysisPage::makeDayRow()
{
    previousDay = makeButton("previousDay", leftArrow());
    nextDay = makeButton("nextDay", rightArrow());
    connect(previousDay, &ZEMButton::clicked, this, [this] { showDate(shownDate.addDays(-1)); });
    connect(nextDay, &ZEMButton::clicked, this, [this] { showDate(shownDate.addDays(1)); });
    dateLabel = makeLabel("date", dateSize);
    dateLabel->setAlignment(Qt::AlignCenter);
    dateLabel->setMinimumWidth(dateWidth);

    auto *day = new QHBoxLayout;
    day->addWidget(previousDay);
    day->addWidget(dateLabel);
    day->addWidget(nextDay);
    auto *colors = new QHBoxLayout;
    legend = new QHBoxLayout;
    colors->addLayout(legend);
    colors->addStretch();

    auto *row = new QWidget;
    dayRow = new QBoxLayout(QBoxLayout::LeftToRight, row);
    dayRow->setContentsMargins(0, 0, 0, 0);
    dayRow->addLayout(day);
    dayRow->addStretch();
    dayRow->addLayout(colors);
    return row;
}

QWidget *AnalysisPage::makePointRow()
{
    previousPoint = makeButton("previousPoint", leftArrow());
    nextPoint = makeButton("nextPoint", rightArrow());
    otherCurve =
        makeButton("otherCurve", QStringLiteral(":/tango/graphics/tango/actions/go-up-icon.png"));
    for (ZEMButton *button : {previousPoint, nextPoint}) {
        button->setAutoRepeat(true);
        button->setAutoRepeatDelay(repeatDelay);
        button->setAutoRepeatInterval(repeatInterval);
    }
    connect(previousPoint, &ZEMButton::clicked, powerPlot, &PowerPlot::pickPrevious);
    connect(nextPoint, &ZEMButton::clicked, powerPlot, &PowerPlot::pickNext);
    connect(otherCurve, &ZEMButton::clicked, powerPlot, &PowerPlot::pickOtherCurve);
    pointLabel = makeLabel("point", pointSize);
    pointLabel->setAlignment(Qt::AlignCenter);
    pointLabel->setWordWrap(true);

    auto *row = new QWidget;
    auto *columns = new QHBoxLayout(row);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->addWidget(previousPoint);
    columns->addWidget(nextPoint);
    columns->addWidget(pointLabel, 1);
    columns->addWidget(otherCurve);
    return row;
}

void AnalysisPage::handleHistory()
{
    isRead = false;
    if (!isVisible()) {
        return;
    }
    // Who looks at the newest day looks at the new one when it begins.
    const bool isNewest = !shownDate.isValid() || shownDate >= range.last;
    showDate(isNewest ? dates().last : shownDate);
}

void AnalysisPage::readDay()
{
    const auto *minutePower = dynamic_cast<const MinutePower *>(&energySource());
    const PowerDay day = minutePower ? minutePower->powerDay(shownDate)
                                     : powerDay(energySource().household(), shownDate);
    isRead = true;
    isKnown = !day.isEmpty();
    powerPlot->showDay(day);
    dateLabel->setText(dateText(shownDate, tr("ddd d MMMM yyyy")));
    previousDay->setEnabled(shownDate > range.first);
    nextDay->setEnabled(shownDate < range.last);
    showLegend(day);
    showPicked();
}

void AnalysisPage::showLegend(const PowerDay &day)
{
    while (QLayoutItem *item = legend->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const auto add = [&](const QPixmap &picture, const QString &name) {
        auto *swatch = new QLabel;
        swatch->setPixmap(picture);
        auto *label = makeLabel("legend", legendSize);
        label->setText(name);
        legend->addWidget(swatch);
        legend->addWidget(label);
    };
    for (const PowerCurve &curve : day.curves) {
        add(swatchOf(NightStyler::colorOf(curve.kind)), nameOf(curve.kind));
    }
    if (!day.gridByHour.empty()) {
        add(NightStyler::barSwatch(swatchSize), tr("net per uur"));
    }
}

void AnalysisPage::showPicked()
{
    const std::optional<PickedPower> picked = powerPlot->picked();
    previousPoint->setEnabled(picked.has_value());
    nextPoint->setEnabled(picked.has_value());
    otherCurve->setEnabled(picked.has_value() && powerPlot->getNumCurves() > 1);
    pointLabel->setFont(PageLook::textFont(picked ? pointSize : hintSize));
    pointLabel->setText(picked
                            ? QStringLiteral("%1   %2   %3")
                                  .arg(picked->time, powerText(picked->watts), nameOf(picked->kind))
                            : hint());
}

QString AnalysisPage::hint() const
{
    if (!isKnown) {
        return tr("Van deze dag is niets bekend");
    }
    return powerPlot->isZoomed() ? tr("Sleep naar linksboven voor de hele dag")
                                 : tr("Tik op een lijn, of sleep om in te zoomen");
}
