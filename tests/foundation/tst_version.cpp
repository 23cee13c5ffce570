// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <zemkit_version.h>

#include <QTest>
#include <QVersionNumber>

class tst_Version : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsTheVersionOfTheProject();
    void numberHasAByteForEachPart();
    void preprocessorComparesTheNumber();
    void libraryTellsItsOwn();
};

void tst_Version::textIsTheVersionOfTheProject()
{
    QCOMPARE(ZEMKIT_VERSION_STR, ZEM_TEST_VERSION);
}

void tst_Version::numberHasAByteForEachPart()
{
    const QVersionNumber parts((ZEMKIT_VERSION >> 16) & 0xff, (ZEMKIT_VERSION >> 8) & 0xff,
                               ZEMKIT_VERSION & 0xff);
    QCOMPARE(parts.toString(), QStringLiteral(ZEMKIT_VERSION_STR));
    QCOMPARE(ZEMKIT_VERSION >> 24, 0);
}

void tst_Version::preprocessorComparesTheNumber()
{
#if ZEMKIT_VERSION >= 0x020300 && ZEMKIT_VERSION < 0x030000
    const bool isOfThisMajorVersion = true;
#else
    const bool isOfThisMajorVersion = false;
#endif
    QVERIFY(isOfThisMajorVersion);
}

void tst_Version::libraryTellsItsOwn()
{
    QCOMPARE(zemkitVersion(), ZEMKIT_VERSION_STR);
}

QTEST_APPLESS_MAIN(tst_Version)
#include "tst_version.moc"
