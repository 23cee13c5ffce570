// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zempageheader.h"

#include "objectname_p.h"
#include "ui_zempageheader.h"
#include "zemstyle.h"

#include <QFont>
#include <QList>
#include <QPalette>
#include <QStackedWidget>
#include <QtGlobal>

#include <utility>

namespace {

constexpr int titleSize = 18; // points
constexpr int subtitleSize = 10; // points
constexpr int mostButtons = 5;

void styleLabel(QLabel *label, int pointSize, ZEMStyle::ZEMColor color)
{
    QFont font = label->font();
    font.setPointSize(pointSize);
    label->setFont(font);

    QPalette palette = label->palette();
    ZEMStyle(nullptr).setLabelColor(palette, color);
    label->setPalette(palette);
}

} // namespace

class ZEMPageHeader::Private
{
public:
    void clearButtonList()
    {
        for (ZEMPageHeaderButton *button : std::as_const(buttons)) {
            ui.btnLayout->removeWidget(button);
            delete button;
        }
        buttons.clear();
    }

    Ui_ZEMPageHeader ui;
    QList<ZEMPageHeaderButton *> buttons;
};

ZEMPageHeader::ZEMPageHeader(QWidget *parent)
    : ZEMPageBackground(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    // The minimum of a whole page would hold up the size of the form.
    setMinimumSize(0, 0);
    d->ui.setupUi(this);
    d->ui.actionButton2->setVisible(false);
    styleLabel(d->ui.lblTitle, titleSize, ZEMStyle::Magenta);
    styleLabel(d->ui.lblSubtitle, subtitleSize, ZEMStyle::SkyBlue);
}

ZEMPageHeader::~ZEMPageHeader() = default;

void ZEMPageHeader::setActionButton(QStackedWidget *widget)
{
    d->ui.actionButton->setWidget(widget);
}

void ZEMPageHeader::enableActionButton(bool enable)
{
    d->ui.actionButton->setEnabled(enable);
}

void ZEMPageHeader::setActionButton2(QWidget *widget)
{
    d->ui.actionButton2->setWidget(widget);
    d->ui.actionButton2->setVisible(true);
}

void ZEMPageHeader::enableActionButton2(bool enable)
{
    d->ui.actionButton2->setEnabled(enable);
}

void ZEMPageHeader::addButton(QWidget *widget)
{
    if (d->buttons.size() >= mostButtons) {
        qWarning("ZEMPageHeader: Maximum number of supported app buttons reached!");
        return;
    }
    auto *button = new ZEMPageHeaderButton;
    if (widget) {
        button->setWidget(widget);
    }
    d->buttons.append(button);
    d->ui.btnLayout->addWidget(button, 0);
}

void ZEMPageHeader::removeAllButtons() { }

void ZEMPageHeader::setCurrentPage(int page)
{
    d->ui.pageIndicator->setCurrentPage(page);
}

int ZEMPageHeader::getNrOfPages() const
{
    return d->ui.pageIndicator->getNrPages();
}

void ZEMPageHeader::setNrOfPages(int count)
{
    d->ui.pageIndicator->setNrPages(count);
}

QString ZEMPageHeader::getTitle() const
{
    return d->ui.lblTitle->text();
}

QString ZEMPageHeader::getSubTitle() const
{
    return d->ui.lblSubtitle->text();
}

void ZEMPageHeader::showPageIndicator(bool show)
{
    d->ui.pageIndicator->setVisible(show);
}

int ZEMPageHeader::getNrOfButtons() const
{
    return d->buttons.size();
}

void ZEMPageHeader::setNrOfButtons(int count)
{
    if (count == d->buttons.size() || count < 0) {
        return;
    }
    d->clearButtonList();
    for (int i = 0; i < count; ++i) {
        addButton(nullptr);
    }
}

void ZEMPageHeader::enableButton(int index, bool enable)
{
    if (index >= 0 && index < d->buttons.size()) {
        d->buttons.at(index)->setEnabled(enable);
    }
}

QLabel *ZEMPageHeader::getTitleWidget() const
{
    return d->ui.lblTitle;
}

QLabel *ZEMPageHeader::getSubtitleWidget() const
{
    return d->ui.lblSubtitle;
}

void ZEMPageHeader::setTitle(QString title)
{
    d->ui.lblTitle->setText(title);
}

void ZEMPageHeader::setSubtitle(QString subtitle)
{
    d->ui.lblSubtitle->setText(subtitle);
}
