// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pagecontainer.h"

#include "widgettable.h"

#include <QExtensionManager>

namespace {

constexpr int leastSide = 45; // pixels

/** A page without children has no size, so that nothing could be dropped there. */
void makeHittable(QWidget *page)
{
    page->setMinimumSize(page->minimumSize().expandedTo(QSize(leastSide, leastSide)));
}

} // namespace

PageContainer::PageContainer(const WidgetEntry &ofClass, QWidget *ofPages, QObject *parent)
    : QObject(parent), entry(ofClass), container(ofPages)
{
    for (QWidget *page : pages()) {
        makeHittable(page);
    }
}

PageContainer::~PageContainer() = default;

int PageContainer::count() const
{
    return int(pages().size());
}

QWidget *PageContainer::widget(int index) const
{
    return pages().value(index);
}

int PageContainer::currentIndex() const
{
    return qMin(current, count() - 1);
}

void PageContainer::setCurrentIndex(int index)
{
    if (index >= 0 && index < count()) {
        current = index;
    }
}

void PageContainer::addWidget(QWidget *page)
{
    insertWidget(count(), page);
}

void PageContainer::insertWidget(int index, QWidget *page)
{
    if (!page || !canAddWidget()) {
        return;
    }
    QVector<QWidget *> all = pages();
    current = qBound(0, index, int(all.size()));
    all.insert(current, page);
    setPages(all);
}

void PageContainer::remove(int index)
{
    if (canRemove(index)) {
        QVector<QWidget *> all = pages();
        all.takeAt(index)->setParent(nullptr);
        setPages(all);
    }
}

bool PageContainer::canAddWidget() const
{
    return container && count() < entry.children.pages->most;
}

bool PageContainer::canRemove(int index) const
{
    return index >= 0 && index < count();
}

QVector<QWidget *> PageContainer::pages() const
{
    return container ? entry.children.pages->pages(container) : QVector<QWidget *>();
}

void PageContainer::setPages(const QVector<QWidget *> &pages)
{
    for (QWidget *page : pages) {
        page->setParent(nullptr);
    }
    entry.children.pages->clear(container);
    for (QWidget *page : pages) {
        makeHittable(page);
        entry.children.pages->add(container, page);
        page->show();
    }
}

PageContainerFactory::PageContainerFactory(const WidgetEntry &ofClass, QExtensionManager *manager)
    : QExtensionFactory(manager), entry(ofClass)
{
}

PageContainerFactory::~PageContainerFactory() = default;

QObject *PageContainerFactory::createExtension(QObject *object, const QString &iid,
                                               QObject *parent) const
{
    const bool isOurs =
        QLatin1String(object->metaObject()->className()) == QLatin1String(entry.className);
    if (!isOurs || iid != QLatin1String(Q_TYPEID(QDesignerContainerExtension))) {
        return nullptr;
    }
    return new PageContainer(entry, static_cast<QWidget *>(object), parent);
}
