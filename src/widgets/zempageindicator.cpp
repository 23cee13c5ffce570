// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zempageindicator.h"

#include "objectname_p.h"
#include "zemradiobutton.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QList>

#include <utility>

namespace {

constexpr int spacing = 3; // pixels between the dots
constexpr int margin = 3; // pixels around the row
constexpr int fewestDots = 2;
constexpr int mostDots = 9;

} // namespace

class ZEMPageIndicator::Private
{
public:
    explicit Private(ZEMPageIndicator *owner)
        : layout(new QHBoxLayout(owner)), buttonGroup(std::make_unique<QButtonGroup>())
    {
        layout->setSpacing(spacing);
        layout->setContentsMargins(margin, margin, margin, margin);
        buttonGroup->setExclusive(true);
    }

    ~Private() { clearList(); }
    Q_DISABLE_COPY(Private)

    void addDot(int page)
    {
        auto *dot = new ZEMRadioButton;
        dot->setEnabled(false);
        radioButtons.append(dot);
        buttonGroup->addButton(dot, page);
        layout->addWidget(dot, 0);
    }

    void clearList()
    {
        for (ZEMRadioButton *dot : std::as_const(radioButtons)) {
            layout->removeWidget(dot);
            buttonGroup->removeButton(dot);
            delete dot;
        }
        radioButtons.clear();
    }

    QHBoxLayout *layout;
    int currentPage = 0;
    std::unique_ptr<QButtonGroup> buttonGroup;
    QList<ZEMRadioButton *> radioButtons;
};

ZEMPageIndicator::ZEMPageIndicator(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this))
{
    setObjectNameFromClass(this, staticMetaObject);
    QMetaObject::connectSlotsByName(this);
}

ZEMPageIndicator::~ZEMPageIndicator() = default;

int ZEMPageIndicator::getCurrentPage() const
{
    return d->currentPage;
}

int ZEMPageIndicator::getNrPages() const
{
    return d->radioButtons.size();
}

void ZEMPageIndicator::setNrPages(int count)
{
    if (count < 0 || count > mostDots) {
        return;
    }
    d->clearList();
    if (count < fewestDots) {
        return;
    }
    for (int page = 0; page < count; ++page) {
        d->addDot(page);
    }
    setCurrentPage(d->currentPage);
}

void ZEMPageIndicator::setCurrentPage(int page)
{
    if (page >= 0 && page < d->radioButtons.size()) {
        d->currentPage = page;
        d->buttonGroup->button(page)->setChecked(true);
    }
}
