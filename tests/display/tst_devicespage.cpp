// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "playedsource.h"

#include <QTest>
#include <ZEMCurrentStatusDetailsItem>

using Readings::Quantity;

class tst_DevicesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void powerOfTheSunStandsBesideIt();
};

void tst_DevicesPage::powerOfTheSunStandsBesideIt()
{
    constexpr int mostBetween = 8; // pixels
    PlayedSource source;
    source.count(Quantity::GridImport, 3);
    source.count(Quantity::SolarProduction, 3);
    source.report = PowerReport {300.0, 300.0, 0.0, {}};
    PlayedDisplay display(source);
    display.window.openPage(QStringLiteral("devices"));
    QVERIFY(display.show());
    const auto *sun = display.window.currentWidget()->findChild<ZEMCurrentStatusDetailsItem *>();
    QVERIFY(sun);
    const auto between = [sun] {
        return sun->findChild<QWidget *>(QStringLiteral("label"))->x()
            - sun->findChild<QWidget *>(QStringLiteral("zemPixmapFront"))->geometry().right();
    };
    QTRY_VERIFY2(between() > 0 && between() <= mostBetween, qPrintable(QString::number(between())));
    QVERIFY(!sun->getShowArrows());

    source.report = PowerReport {-300.0, 300.0, 600.0, {}};
    Q_EMIT source.powerChanged();
    QVERIFY(sun->getShowArrows());
}

QTEST_MAIN(tst_DevicesPage)
#include "tst_devicespage.moc"
