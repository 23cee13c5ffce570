// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "sourcelines.h"

#include <QTest>

class tst_SourceLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesOnPages_data();
    void linesOnPages();
};

void tst_SourceLines::linesOnPages_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("pages");
    QTest::newRow("nothing") << "" << QStringList();
    QTest::newRow("one page") << "a\nb\n" << QStringList {"a\nb"};
    QTest::newRow("two pages") << "a\nb\nc\nd\n" << QStringList {"a\nb\nc", "d"};
    QTest::newRow("licence") << "// SPDX-x\n// SPDX-y\n\na\n\nb\n" << QStringList {"a\n\nb"};
    QTest::newRow("broken at a blank")
        << "int one = two(three);" << QStringList {"int one =\n        two(three);"};
    QTest::newRow("without a blank")
        << QString(25, 'x') << QStringList {QString(20, 'x') + "\n        xxxxx"};
    QTest::newRow("just wide enough") << QString(20, 'x') << QStringList {QString(20, 'x')};
}

void tst_SourceLines::linesOnPages()
{
    QFETCH(QString, text);
    QFETCH(QStringList, pages);
    QCOMPARE(pagesOfSource(text, 20, 3), pages);
}

QTEST_GUILESS_MAIN(tst_SourceLines)
#include "tst_sourcelines.moc"
