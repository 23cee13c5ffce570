// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "stage.h"

#include "look.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <ZEMPageBackground>
#include <ZEMTextLabel>
#include <limits>

namespace {

constexpr int gap = 8; // pixels between two widgets
constexpr int margin = 10; // pixels around all of them
constexpr int captionGap = 3; // pixels
constexpr int captionSize = 9; // points

QWidget *captioned(const QString &caption, QWidget *widget)
{
    auto *cell = new QWidget;
    auto *layout = new QVBoxLayout(cell);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(captionGap);
    layout->addWidget(Look::makeLabel(caption, captionSize));
    layout->addWidget(widget, 0, Qt::AlignLeft);
    layout->addStretch();
    return cell;
}

} // namespace

Stage::Stage(KeyboardFactoryDefault *keyboards, const QString &keyboardDirectory)
    : factory(keyboards), directory(keyboardDirectory)
{
}

Stage::~Stage()
{
    delete shown;
}

void Stage::add(const QString &caption, QWidget *widget)
{
    if (!rows) {
        auto *page = new ZEMPageBackground;
        page->setBackgroundColor(Look::ground());
        // A new page cannot be made smaller than a screen.
        page->setMinimumSize(0, 0);
        shown = page;
        rows = new QVBoxLayout(page);
        rows->setContentsMargins(margin, margin, margin, margin);
        rows->setSpacing(gap);
        startRow();
        rows->addStretch();
    }
    QWidget *cell = captioned(caption, widget);
    const int needed = cell->sizeHint().width() + gap;
    if (rowWidth > 0 && rowWidth + needed > width - 2 * margin + gap) {
        startRow();
    }
    rowWidth += needed;
    row->insertWidget(row->count() - 1, cell);
}

void Stage::startRow()
{
    row = new QHBoxLayout;
    row->setSpacing(gap);
    row->addStretch();
    rowWidth = 0;
    // Before the stretch that ends the rows.
    rows->insertLayout(qMax(0, rows->count() - 1), row);
}

void Stage::fill(QWidget *widget, int pixels)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(Look::ground());
    page->setMinimumSize(width, pixels);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(widget);
    shown = page;
}

void Stage::cover(QWidget *page, Qt::Corner wayBack)
{
    shown = page;
    isScreen = true;
    corner = wayBack;
}

void Stage::playWith(QObject *object)
{
    played.append(object);
}

void Stage::setRange(const QString &property, double least, double most)
{
    ranges.insert(property, {least, most});
}

void Stage::addButton(const QString &text, const std::function<void()> &pressed)
{
    ownButtons.append({text, pressed});
}

KeyboardFactoryDefault &Stage::keyboards() const
{
    return *factory;
}

QString Stage::keyboardDirectory() const
{
    return directory;
}

QWidget *Stage::sample() const
{
    return shown;
}

bool Stage::coversScreen() const
{
    return isScreen;
}

QSize Stage::pictureSize() const
{
    if (isScreen) {
        return Look::screen;
    }
    return rows ? shown->sizeHint() : shown->minimumSize();
}

Qt::Corner Stage::wayBack() const
{
    return corner;
}

QList<QPointer<QObject>> Stage::objects() const
{
    return played;
}

QPair<double, double> Stage::range(const QString &property) const
{
    constexpr double most = std::numeric_limits<double>::max();
    return ranges.value(property, {-most, most});
}

QVector<Stage::Button> Stage::buttons() const
{
    return ownButtons;
}
