// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "displaypage.h"

#include "datetext.h"
#include "energysource.h"
#include "pageicons.h"
#include "pagelook.h"

#include <QFontMetrics>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <ZEMAnimatedArrows>
#include <ZEMButton>
#include <ZEMLabel>
#include <ZEMNotificationButton>
#include <ZEMPageHeader>
#include <ZEMTextLabel>
#include <ZEMUtils>
#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int margin = 16; // pixels at both sides
constexpr int tileSize = 54; // pixels, of the square tiles in the header
constexpr int dotsGap = 2 * 12; // pixels between the title, the dots and what follows
constexpr int leastTitle = 140; // pixels of a title beside the dots
// Those of the library, but dark enough to be read on the light header.
constexpr QRgb titleColor = qRgb(140, 0, 76);
constexpr QRgb timeColor = qRgb(24, 62, 84);
constexpr int secondsPerMinute = 60;
constexpr int millisecondsPerSecond = 1000;

void setTextColor(QLabel *label, const QColor &color)
{
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
}

ZEMButton *makeTileButton(const QIcon &icon, const char *name)
{
    auto *button = new ZEMButton;
    button->setObjectName(QLatin1String(name));
    button->setIcon(icon);
    button->setFixedSize(tileSize, tileSize);
    return button;
}

} // namespace

DisplayPage::DisplayPage(const QString &title, const EnergySource &source, QWidget *parent)
    : ZEMPageBackground(parent), shownSource(source), header(new ZEMPageHeader)
{
    setBackground(PageLook::background());
    setMinimumSize(0, 0);

    auto *actions = new QStackedWidget;
    auto *menu = makeTileButton(PageIcons::menu(), "menu");
    actions->addWidget(menu);
    header->setActionButton(actions);
    connect(menu, &ZEMButton::clicked, this, &DisplayPage::menuClicked);

    QWidget *powerTile = makePowerTile();
    header->addButton(powerTile);
    // A tile may otherwise shrink to its picture.
    powerTile->parentWidget()->setMinimumWidth(powerTile->width());
    messages = new ZEMNotificationButton;
    messages->setIcon(PageIcons::bell());
    messages->setFixedSize(tileSize, tileSize);
    header->addButton(messages);
    connect(messages, &ZEMNotificationButton::clicked, this, &DisplayPage::messagesClicked);

    header->setNrOfPages(0);
    // Not 0: without a minimum the header would insist on the width that it would like.
    header->setMinimumWidth(1);
    setTitle(title);
    setTextColor(header->getTitleWidget(), titleColor);
    setTextColor(header->getSubtitleWidget(), timeColor);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(header);
    contentLayout = new QVBoxLayout;
    contentLayout->setContentsMargins(margin, 0, margin, 6);
    contentLayout->setSpacing(0);
    rows->addLayout(contentLayout, 1);

    minuteTimer.setSingleShot(true);
    connect(&minuteTimer, &QTimer::timeout, this, &DisplayPage::showNow);
    connect(&source, &EnergySource::powerChanged, this, &DisplayPage::showGridPower);
    connect(&source, &EnergySource::meteringChanged, this, &DisplayPage::showGridPower);
    showGridPower();
}

void DisplayPage::setTitle(const QString &title)
{
    wholeTitle = title;
    fitHeader();
}

void DisplayPage::setPlace(int index, int count)
{
    header->setNrOfPages(count);
    header->setCurrentPage(index);
    fitHeader();
}

void DisplayPage::addBackButton()
{
    auto *back = makeTileButton(PageIcons::back(), "back");
    header->setActionButton2(back);
    fitHeader();
    connect(back, &ZEMButton::clicked, this, &DisplayPage::backClicked);
}

void DisplayPage::setMessageCount(int count)
{
    messages->setNotifyCount(count);
}

void DisplayPage::resizeEvent(QResizeEvent *event)
{
    ZEMPageBackground::resizeEvent(event);
    const Shape now = width() < height() ? Shape::Tall : Shape::Wide;
    if (now != arrangedFor) {
        arrangedFor = now;
        arrange(now);
    }
    fitHeader();
}

void DisplayPage::showEvent(QShowEvent *event)
{
    ZEMPageBackground::showEvent(event);
    showGridPower();
    showNow();
}

void DisplayPage::hideEvent(QHideEvent *event)
{
    minuteTimer.stop();
    // They would wake the processor twenty times a second, and nobody sees them.
    for (ZEMAnimatedArrows *arrows : findChildren<ZEMAnimatedArrows *>()) {
        arrows->stop();
    }
    ZEMPageBackground::hideEvent(event);
}

QWidget *DisplayPage::makePowerTile()
{
    powerCaption = PageLook::makeLabel(QString(), 10);
    powerCaption->setAlignment(Qt::AlignCenter);

    power = new ZEMLabel;
    power->setPixmap(QPixmap(QStringLiteral(":/zem/graphics/main/text_bg_small_medium.png")));
    power->setFont(PageLook::textFont(13));

    auto *tile = new QWidget;
    tile->setFixedSize(92, tileSize);
    auto *rows = new QVBoxLayout(tile);
    rows->setContentsMargins(0, 3, 0, 3);
    rows->setSpacing(0);
    rows->addWidget(powerCaption);
    rows->addWidget(power, 0, Qt::AlignCenter);
    return tile;
}

DateRange DisplayPage::dates() const
{
    const Readings::Household &household = shownSource.household();
    const QDate today = shownSource.now().date();
    return household.lastInstant() ? datesOf(household) : DateRange {today, today};
}

QString DisplayPage::dayName(const QDate &date) const
{
    return date == shownSource.now().date() ? tr("vandaag") : dateText(date, tr("d MMM yyyy"));
}

void DisplayPage::showNow()
{
    const QDateTime now = shownSource.now();
    fitHeader();
    minuteTimer.start((secondsPerMinute - now.time().second()) * millisecondsPerSecond);
    const QDate before = std::exchange(shownDay, now.date());
    if (before.isValid() && before != shownDay) {
        handleNewDay();
    }
}

/** What is told of the time, the best first; the last is the shortest. */
QStringList DisplayPage::timeTexts(const QDateTime &now) const
{
    // Beside the long names of days and months there is no room for more.
    const QString inShort = tr("ddd d MMM yyyy, HH:mm");
    const std::optional<qint64> last =
        shownSource.isLive() ? std::nullopt : shownSource.household().lastInstant();
    if (last) {
        const QDateTime then =
            QDateTime::fromSecsSinceEpoch(*last, shownSource.household().timeZone);
        const QString text = tr("stand van %1");
        return {text.arg(dateText(then, inShort)), text.arg(dateText(then, tr("d MMM yyyy"))),
                text.arg(dateText(then, tr("d-M-yyyy")))};
    }
    if (shownSource.isSimulated()) {
        const QString text = tr("simulatie, %1");
        return {text.arg(dateText(now, inShort)), text.arg(dateText(now, tr("d MMM, HH:mm"))),
                text.arg(dateText(now, tr("HH:mm")))};
    }
    return {dateText(now, tr("dddd d MMMM yyyy, HH:mm")), dateText(now, inShort),
            dateText(now, tr("ddd d MMM, HH:mm"))};
}

/** The width between the buttons of the header. */
int DisplayPage::textRoom() const
{
    constexpr int edges = 12 + 16 + 16 + 12; // pixels, of the form
    const auto *left = header->findChild<QWidget *>(QStringLiteral("widget_2"));
    const auto *right = header->findChild<QLayout *>(QStringLiteral("btnLayout"));
    return width() - edges - left->sizeHint().width() - right->sizeHint().width();
}

void DisplayPage::fitHeader()
{
    const int room = textRoom();
    const QString dots = QStringLiteral("pageIndicator");
    const int besideDots = room - header->findChild<QWidget *>(dots)->sizeHint().width() - dotsGap;
    header->showPageIndicator(besideDots >= leastTitle);
    header->setTitle(PageLook::elided(wholeTitle, header->getTitleWidget(),
                                      besideDots >= leastTitle ? besideDots : room));
    const QStringList texts = timeTexts(shownSource.now());
    const QFontMetrics metrics(header->getSubtitleWidget()->font());
    const auto fitting = std::find_if(texts.begin(), texts.end(), [&](const QString &text) {
        return metrics.horizontalAdvance(text) <= room;
    });
    header->setSubtitle(fitting == texts.end() ? texts.last() : *fitting);
}

void DisplayPage::showGridPower()
{
    // A page that is not in view is brought up to date when it comes into view.
    if (!isVisible()) {
        return;
    }
    const std::optional<PowerReport> report = shownSource.power();
    const bool known = report && shownSource.isMetering();
    messages->setWarning(!shownSource.isMetering());
    if (!known) {
        powerCaption->setText(QString());
        power->setText(QStringLiteral("?"));
        return;
    }
    // The texts of power have no sign; the caption tells the direction.
    powerCaption->setText(report->grid < 0.0 ? tr("naar het net") : tr("van het net"));
    power->setText(ZEMUtils::wattToStringAutoScale(std::fabs(report->grid)));
}
