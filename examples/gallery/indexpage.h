// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef INDEXPAGE_H
#define INDEXPAGE_H

#include "pagetable.h"

#include <QStandardItemModel>
#include <ZEMPageBackground>

class QListView;
class ZEMButton;
class ZEMListViewLogic;
class ZEMPageHeader;

/** All classes of the library, by subsystem, on pages of a list. */
class IndexPage : public ZEMPageBackground
{
    Q_OBJECT

public:
    explicit IndexPage(QWidget *parent = nullptr);
    ~IndexPage() override;

Q_SIGNALS:
    void classClicked(const QString &name);

private:
    QWidget *makeTabs();
    QWidget *makeList();
    void showSubsystem(Subsystem subsystem);

    ZEMPageHeader *header;
    QListView *list;
    ZEMListViewLogic *pages;
    QStandardItemModel model;
};

#endif
