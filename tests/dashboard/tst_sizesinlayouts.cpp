// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/formtest.h"

#include <ZEMCurrentStatusDetails>
#include <ZEMCurrentStatusWidget>
#include <ZEMEnergyIcon>
#include <ZEMEnergyTab>
#include <ZEMEnergyTabWidget>
#include <ZEMProfileButton>
#include <ZEMWidgetLabel>

#include <QGridLayout>
#include <QTest>

/** Widgets of a told size that layouts make larger, by as much as their headers tell. */
class tst_SizesInLayouts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void styleAddsItsMargins();
    void titleIsAddedToThePicture();
    void rowIsAsWideAsItsTabs();
};

namespace {

/** The size of @p widget in a layout that has more room than it wants. */
QSize sizeWithRoom(QWidget *widget)
{
    QWidget page;
    auto *grid = new QGridLayout(&page);
    grid->addWidget(widget, 0, 0, Qt::AlignCenter);
    page.resize(1200, 900);
    page.show();
    QCoreApplication::processEvents();
    const QSize size = widget->size();
    widget->setParent(nullptr);
    return size;
}

/** What the style gives to a layout on a widget that is no window. */
int heightOfMargins()
{
    QWidget page;
    auto *child = new QWidget(&page);
    const QMargins margins = (new QGridLayout(child))->contentsMargins();
    return margins.top() + margins.bottom();
}

template <typename Tile>
int titleHeight(const Tile &tile)
{
    return FormTest::part<ZEMWidgetLabel>(tile, "title")->sizeHint().height();
}

} // namespace

void tst_SizesInLayouts::styleAddsItsMargins()
{
    ZEMEnergyTab tab;
    QCOMPARE(tab.size(), QSize(47, 40));
    QCOMPARE(sizeWithRoom(&tab), QSize(47, qMax(40, 25 + heightOfMargins())));
    ZEMProfileButton row;
    QCOMPARE(row.size(), QSize(233, 50));
    QCOMPARE(sizeWithRoom(&row), QSize(233, qMax(50, 35 + heightOfMargins())));
}

void tst_SizesInLayouts::titleIsAddedToThePicture()
{
    constexpr int spacing = 2;
    ZEMCurrentStatusWidget status;
    QCOMPARE(status.size(), QSize(322, 174));
    QCOMPARE(sizeWithRoom(&status), QSize(322, titleHeight(status) + spacing + 152));
    ZEMCurrentStatusDetails details;
    QCOMPARE(details.size(), QSize(493, 262));
    QCOMPARE(sizeWithRoom(&details), QSize(493, titleHeight(details) + spacing + 242));
}

void tst_SizesInLayouts::rowIsAsWideAsItsTabs()
{
    ZEMEnergyTabWidget row;
    QCOMPARE(row.size(), QSize(289, 50));
    QCOMPARE(sizeWithRoom(&row), QSize(295, qMax(40, 25 + heightOfMargins())));
}

QTEST_MAIN(tst_SizesInLayouts)
#include "tst_sizesinlayouts.moc"
