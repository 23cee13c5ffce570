// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "previewwindow.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

/** White on grey: the text of the display's style is white, whatever is behind it. */
QPalette darkPalette()
{
    QPalette palette(QColor(70, 70, 70), QColor(40, 40, 40));
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Disabled, role, Qt::gray);
    }
    return palette;
}

} // namespace

PreviewWindow::PreviewWindow(const QVector<Picture> &allPictures, QWidget *parent)
    : QWidget(parent), pictures(allPictures), view(new QLabel), caption(new QLabel),
      btnPrevious(new QPushButton(tr("Previous"))), btnNext(new QPushButton(tr("Next")))
{
    setPalette(darkPalette());
    btnPrevious->setObjectName(QStringLiteral("btnPrevious"));
    btnNext->setObjectName(QStringLiteral("btnNext"));
    btnPrevious->setShortcut(QKeySequence(Qt::Key_Left));
    btnNext->setShortcut(QKeySequence(Qt::Key_Right));
    connect(btnPrevious, &QPushButton::clicked, this, &PreviewWindow::showPrevious);
    connect(btnNext, &QPushButton::clicked, this, &PreviewWindow::showNext);

    auto *bar = new QHBoxLayout;
    bar->addWidget(btnPrevious);
    bar->addWidget(caption, 1, Qt::AlignCenter);
    bar->addWidget(btnNext);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(view, 1, Qt::AlignCenter);
    layout->addLayout(bar);
    showPicture(0);
}

PreviewWindow::~PreviewWindow() = default;

void PreviewWindow::showNext()
{
    showPicture(place + 1);
}

void PreviewWindow::showPrevious()
{
    showPicture(place - 1);
}

void PreviewWindow::showPicture(int number)
{
    if (number < 0 || number >= pictures.size()) {
        return;
    }
    place = number;
    const Picture &picture = pictures.at(number);
    view->setPixmap(picture.pixmap);
    caption->setText(
        QStringLiteral("%1 (%2 / %3)").arg(picture.name).arg(number + 1).arg(pictures.size()));
    setWindowTitle(picture.name);
    btnPrevious->setEnabled(number > 0);
    btnNext->setEnabled(number + 1 < pictures.size());
}
