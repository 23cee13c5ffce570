// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pagetable.h"

#include <QDir>
#include <QTest>

class tst_PageTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPublicClassHasOnePage();
    void everyFileIsAPage();
    void caseOfANameDoesNotMatter();
    void nearestClass_data();
    void nearestClass();
};

void tst_PageTable::everyPublicClassHasOnePage()
{
    QStringList classes = QStringLiteral(CLASSES).split(QLatin1Char(','));
    classes.sort();
    QCOMPARE(allClasses(), classes);
}

void tst_PageTable::everyFileIsAPage()
{
    QStringList files;
    for (const GalleryPage &page : allPages()) {
        files.append(page.file + QStringLiteral(".cpp"));
        QCOMPARE(page.file, page.classes.constFirst().toLower());
        QVERIFY2(!page.summary.isEmpty(), qPrintable(page.file));
    }
    files.sort();
    QCOMPARE(files, QDir(QStringLiteral(PAGES_DIR)).entryList({QStringLiteral("*.cpp")}));
}

void tst_PageTable::caseOfANameDoesNotMatter()
{
    QCOMPARE(pageOf(QStringLiteral("zembutton")), pageOf(QStringLiteral("ZEMButton")));
    QCOMPARE(pageOf(QStringLiteral("ZEMButton"))->file, QStringLiteral("zembutton"));
    QVERIFY(!pageOf(QStringLiteral("ZEMSofa")));
    QVERIFY(!pageOf(QString()));
}

void tst_PageTable::nearestClass_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("nearest");
    QTest::newRow("a letter missing") << "ZEMButon"
                                      << "ZEMButton";
    QTest::newRow("a letter too many") << "ZEMPlotty"
                                       << "ZEMPlot";
    QTest::newRow("another letter") << "ZEMLadel"
                                    << "ZEMLabel";
    QTest::newRow("no prefix") << "throbber"
                               << "ZEMThrobber";
    QTest::newRow("nothing") << ""
                             << "ZEM";
}

void tst_PageTable::nearestClass()
{
    QFETCH(QString, name);
    QFETCH(QString, nearest);
    QCOMPARE(::nearestClass(name), nearest);
}

QTEST_GUILESS_MAIN(tst_PageTable)
#include "tst_pagetable.moc"
