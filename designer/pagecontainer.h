// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PAGECONTAINER_H
#define PAGECONTAINER_H

#include <QExtensionFactory>
#include <QPointer>
#include <QVector>
#include <QWidget>
#include <QtDesigner/QDesignerContainerExtension>

struct WidgetEntry;

/** How Designer gives widgets to a container that has a method for them: each is a page to it. */
class PageContainer : public QObject, public QDesignerContainerExtension
{
    Q_OBJECT
    Q_INTERFACES(QDesignerContainerExtension)

public:
    PageContainer(const WidgetEntry &ofClass, QWidget *ofPages, QObject *parent);
    ~PageContainer() override;

    int count() const override;
    QWidget *widget(int index) const override;

    int currentIndex() const override;
    /** All pages are seen at once: the current one is that which takes what is dropped. */
    void setCurrentIndex(int index) override;

    void addWidget(QWidget *page) override;
    void insertWidget(int index, QWidget *page) override;
    /** Takes the page out. It is nobody's afterwards. */
    void remove(int index) override;

    bool canAddWidget() const override;
    bool canRemove(int index) const override;

private:
    QVector<QWidget *> pages() const;
    /** Gives the container @p pages instead of those that it has. */
    void setPages(const QVector<QWidget *> &pages);

    const WidgetEntry &entry;
    QPointer<QWidget> container;
    int current = 0;
};

/** Makes them for the widgets of one class. */
class PageContainerFactory : public QExtensionFactory
{
    Q_OBJECT

public:
    PageContainerFactory(const WidgetEntry &ofClass, QExtensionManager *manager);
    ~PageContainerFactory() override;

protected:
    QObject *createExtension(QObject *object, const QString &iid, QObject *parent) const override;

private:
    const WidgetEntry &entry;
};

#endif
