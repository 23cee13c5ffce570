// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "dialogfit.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <ZEMButton>
#include <ZEMPageBackground>
#include <ZEMPixmap>
#include <ZEMVirtualKey>
#include <ZEMVirtualKeyboard>
#include <algorithm>

namespace {

constexpr QRgb panelColor = qRgb(14, 20, 26);
constexpr int keySide = 6; // pixels at the left and right of a panel with keys, and in it
constexpr int textSide = 8; // of other panels: together the margin of a page
constexpr int answerGap = 40; // pixels between two buttons, for a finger
constexpr int gap = 12; // pixels at most between columns
constexpr int keyGap = 3; // pixels between keys
constexpr int mostHeight = 480; // pixels of a dialog; keys drift apart in more

/** Whether the item at @p index keeps two buttons apart. */
bool isBetweenButtons(const QLayout *layout, int index)
{
    const auto isButton = [layout](int i) {
        QLayoutItem *item = layout->itemAt(i);
        return item && qobject_cast<ZEMButton *>(item->widget());
    };
    return isButton(index - 1) && isButton(index + 1);
}

/** Takes from the layout, and from those in it, the space that is no use to anybody. */
void narrow(QLayout *layout, int side)
{
    QMargins margins = layout->contentsMargins();
    margins.setLeft(std::min(margins.left(), side));
    margins.setRight(std::min(margins.right(), side));
    layout->setContentsMargins(margins);
    if (auto *grid = qobject_cast<QGridLayout *>(layout)) {
        grid->setHorizontalSpacing(std::min(grid->horizontalSpacing(), gap));
    }
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (QSpacerItem *space = item->spacerItem()) {
            const int least = isBetweenButtons(layout, i) ? answerGap : 0;
            space->changeSize(std::min(space->sizeHint().width(), least),
                              space->sizeHint().height(), space->sizePolicy().horizontalPolicy(),
                              space->sizePolicy().verticalPolicy());
        } else if (item->layout()) {
            narrow(item->layout(), side);
        }
    }
    layout->invalidate();
}

/** Lets the keys of a keyboard, and what is between them, share @p width as before. */
void narrowKeys(ZEMVirtualKeyboard *keyboard, int width)
{
    const auto rows = keyboard->findChildren<QHBoxLayout *>();
    int before = 0;
    for (const QHBoxLayout *row : rows) {
        before = std::max(before, row->spacing());
    }
    const double factor = double(width + keyGap) / (keyboard->sizeHint().width() + before);
    const auto narrower = [&](int pixels) { return int((pixels + before) * factor) - keyGap; };
    for (ZEMVirtualKey *key : keyboard->findChildren<ZEMVirtualKey *>()) {
        const int keyWidth = narrower(std::max(key->width(), key->minimumWidth()));
        key->setMinimumWidth(keyWidth);
        key->setMaximumWidth(keyWidth);
        key->resize(keyWidth, key->height());
    }
    for (QHBoxLayout *row : rows) {
        row->setSpacing(keyGap);
    }
}

} // namespace

void makeSolid(QWidget *dialog)
{
    // Around its panel too: halves of texts and of fields would stand along the edges.
    if (auto *ground = qobject_cast<ZEMPageBackground *>(dialog)) {
        ground->setBackgroundColor(panelColor);
    }
    for (ZEMPageBackground *panel : dialog->findChildren<ZEMPageBackground *>()) {
        if (panel->getBackground().isNull()) {
            panel->setBackgroundColor(panelColor);
        }
    }
}

void fitDialog(QWidget *dialog, const QSize &size)
{
    dialog->setMinimumSize(0, 0);
    if (dialog->layout() && dialog->layout()->totalMinimumSize().width() > size.width()) {
        const auto keyboards = dialog->findChildren<ZEMVirtualKeyboard *>();
        const int side = keyboards.isEmpty() ? textSide : keySide;
        for (ZEMVirtualKeyboard *keyboard : keyboards) {
            const int room = size.width() - 4 * side;
            if (keyboard->sizeHint().width() > room) {
                narrowKeys(keyboard, room);
            }
        }
        narrow(dialog->layout(), side);
        for (QWidget *part : dialog->findChildren<QWidget *>()) {
            if (part->layout() && !qobject_cast<ZEMVirtualKeyboard *>(part)) {
                narrow(part->layout(), side);
            }
            const bool isPicture = qobject_cast<ZEMPixmap *>(part) != nullptr;
            if (isPicture || qobject_cast<ZEMPageBackground *>(part)) {
                part->setMinimumWidth(0);
                part->setSizePolicy(QSizePolicy::Preferred, part->sizePolicy().verticalPolicy());
            }
        }
    }
    if (dialog->layout() && size.height() > mostHeight) {
        const int spare = size.height() - mostHeight;
        dialog->layout()->setContentsMargins(dialog->layout()->contentsMargins()
                                             + QMargins(0, spare / 2, 0, spare - spare / 2));
    }
    dialog->setGeometry(QRect(QPoint(0, 0), size));
}
