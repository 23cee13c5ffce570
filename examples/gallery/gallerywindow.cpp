// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "gallerywindow.h"

#include "classpage.h"
#include "indexpage.h"
#include "look.h"
#include "pagetable.h"
#include "propertyrow.h"
#include "sourcepage.h"
#include "stage.h"

#include <ZEMButton>
#include <ZEMKeyboardInputHandler>
#include <ZEMLineEditDialog>

namespace {

constexpr QSize wayBackSize(48, 48);

QPoint placeInCorner(Qt::Corner corner)
{
    const bool isRight = corner == Qt::TopRightCorner || corner == Qt::BottomRightCorner;
    const bool isBottom = corner == Qt::BottomLeftCorner || corner == Qt::BottomRightCorner;
    return {isRight ? Look::screen.width() - wayBackSize.width() : 0,
            isBottom ? Look::screen.height() - wayBackSize.height() : 0};
}

} // namespace

GalleryWindow::GalleryWindow(const QString &keyboardDirectory, QWidget *parent)
    : QWidget(parent), directory(keyboardDirectory),
      keyboards(keyboardDirectory, QStringLiteral("en")), screen(new QWidget(this)),
      wayBack(Look::makeButton(QStringLiteral("btnWayBack"), tr("back"), wayBackSize)),
      index(new IndexPage(this))
{
    setWindowTitle(QStringLiteral("zemkit-gallery"));
    setFixedSize(Look::screen);
    screen->setGeometry(rect());
    wayBack->setParent(screen);
    connect(wayBack, &ZEMButton::clicked, this, [this] { classPage->raise(); });
    connect(index, &IndexPage::classClicked, this, &GalleryWindow::openClass);
}

GalleryWindow::~GalleryWindow()
{
    // Its sample may have keyboards, which end before their factory does.
    delete classPage;
}

void GalleryWindow::openIndex()
{
    closePage();
    index->raise();
}

void GalleryWindow::openClass(const QString &name)
{
    if (const GalleryPage *page = pageOf(name)) {
        openPage(*page);
    }
}

void GalleryWindow::openPage(const GalleryPage &page)
{
    closePage();
    auto stage = std::make_unique<Stage>(&keyboards, directory);
    page.show(*stage);
    classPage = new ClassPage(page, std::move(stage), screen, this);
    classPage->setGeometry(rect());
    connect(classPage, &ClassPage::backClicked, this, &GalleryWindow::openIndex);
    connect(classPage, &ClassPage::sourceClicked, this, [this, &page] { openSource(page); });
    connect(classPage, &ClassPage::previousClicked, this,
            [this, &page] { openNeighbour(page, -1); });
    connect(classPage, &ClassPage::nextClicked, this, [this, &page] { openNeighbour(page, 1); });
    connect(classPage, &ClassPage::fullSizeClicked, this, &GalleryWindow::showFullSize);
    connect(classPage, &ClassPage::textWanted, this, &GalleryWindow::askText);
    classPage->show();
}

void GalleryWindow::openNeighbour(const GalleryPage &page, int step)
{
    const QVector<GalleryPage> &all = allPages();
    const int place = int(&page - all.constData());
    openPage(all.at((place + step + all.size()) % all.size()));
}

void GalleryWindow::openSource(const GalleryPage &page)
{
    sourcePage = new SourcePage(page, this);
    sourcePage->setGeometry(rect());
    connect(sourcePage, &SourcePage::backClicked, sourcePage, &QWidget::hide);
    connect(sourcePage, &SourcePage::backClicked, sourcePage, &QObject::deleteLater);
    sourcePage->show();
}

void GalleryWindow::showFullSize()
{
    wayBack->move(placeInCorner(classPage->stage().wayBack()));
    wayBack->raise();
    screen->raise();
}

void GalleryWindow::closePage()
{
    if (classPage) {
        // One of its buttons is being clicked.
        classPage->hide();
        classPage->deleteLater();
        classPage = nullptr;
    }
    index->raise();
}

void GalleryWindow::askText(PropertyRow *row)
{
    auto *dialog = new ZEMLineEditDialog(
        keyboards.createKeyboard(ZEMVirtualKeyboardFactoryIntf::PopupAbove), this);
    dialog->setTitle(row->name());
    dialog->setText(row->value().toString());
    auto *handler = new ZEMKeyboardInputHandler(dialog);
    connect(handler, &ZEMKeyboardInputHandler::sigSelect, row,
            [row, dialog] { row->write(dialog->text()); });
    for (const auto end :
         {&ZEMKeyboardInputHandler::sigSelect, &ZEMKeyboardInputHandler::sigCancel}) {
        connect(handler, end, dialog, &QWidget::hide);
        connect(handler, end, dialog, &QObject::deleteLater);
    }
    dialog->setActiveInputHandler(handler);
    dialog->setGeometry(rect());
    dialog->show();
}
