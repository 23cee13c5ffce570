// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "keyboardtest.h"

using namespace WidgetTest;
using namespace ZemTest;

class tst_ZEMVirtualKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namelessKey();
    void namedKey_data();
    void namedKey();
    void typesHaveTheirNumbers();
    void declaresNothing();
    void alternatesAreSetEvenByNothing();
    void layoutIdIsNeverNegative();
    void storesWhatItIsGiven();
    void cases_data();
    void cases();
    void capsKeyShowsTheStateItself();
    void sharpSStaysOneAlternative();
    void nameSurvivesAllStates();
    void isPaintedAsAButton();
};

void tst_ZEMVirtualKey::namelessKey()
{
    const ZEMVirtualKey key;
    QVERIFY(key.name().isNull());
    QVERIFY(key.text().isEmpty());
    QCOMPARE(key.type(), ZEMVirtualKey::Character);
    QCOMPARE(key.key(), QChar(0));
    QVERIFY(!key.hasAlternateKeys());
    QVERIFY(key.alternateKeys().isNull());
    QCOMPARE(key.layoutId(), -1);
    QCOMPARE(key.objectName(), QStringLiteral("ZEMVirtualKey"));
    QCOMPARE(key.size(), QSize(50, 50));
    QVERIFY(key.getBackground().isNull());

    QWidget parent;
    QCOMPARE((new ZEMVirtualKey(&parent))->parentWidget(), &parent);
    QCOMPARE((new ZEMVirtualKey(QStringLiteral("a"), &parent))->parentWidget(), &parent);
}

void tst_ZEMVirtualKey::namedKey_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QChar>("character");
    QTest::newRow("letter") << QStringLiteral("a") << QChar('a');
    QTest::newRow("word") << QStringLiteral("www.") << QChar('w');
    QTest::newRow("special word") << QStringLiteral("ENTER") << QChar('E');
    QTest::newRow("empty") << QStringLiteral("") << QChar(0);
    QTest::newRow("euro") << QString(QChar(0x20AC)) << QChar(0x20AC);
    QTest::newRow("beyond 16 bits") << QString::fromUtf8("😀") << QChar(0xD83D);
}

void tst_ZEMVirtualKey::namedKey()
{
    QFETCH(QString, name);
    const ZEMVirtualKey key(name);
    QCOMPARE(key.name(), name);
    QCOMPARE(key.text(), name);
    QTEST(key.key(), "character");
    QCOMPARE(key.type(), ZEMVirtualKey::Character);
    QVERIFY(!key.hasAlternateKeys());
    QCOMPARE(key.layoutId(), -1);
}

void tst_ZEMVirtualKey::typesHaveTheirNumbers()
{
    QCOMPARE(int(ZEMVirtualKey::Character), 0);
    QCOMPARE(int(ZEMVirtualKey::Caps), 1);
    QCOMPARE(int(ZEMVirtualKey::Delete), 2);
    QCOMPARE(int(ZEMVirtualKey::Enter), 3);
    QCOMPARE(int(ZEMVirtualKey::Space), 4);
    QCOMPARE(int(ZEMVirtualKey::Layout), 5);
}

void tst_ZEMVirtualKey::declaresNothing()
{
    const QMetaObject &metaObject = ZEMVirtualKey::staticMetaObject;
    QCOMPARE(metaObject.className(), "ZEMVirtualKey");
    QCOMPARE(metaObject.superClass()->className(), "ZEMButton");
    QCOMPARE(ownMethodCount(metaObject), 0);
    QVERIFY(ownProperties(metaObject).isEmpty());
}

void tst_ZEMVirtualKey::alternatesAreSetEvenByNothing()
{
    ZEMVirtualKey key(QStringLiteral("a"));
    key.setAlternateKeys(QString());
    QVERIFY(key.hasAlternateKeys());
    QVERIFY(key.alternateKeys().isEmpty());
    key.setAlternateKeys(QStringLiteral("xyz"));
    QCOMPARE(key.alternateKeys(), QStringLiteral("xyz"));
}

void tst_ZEMVirtualKey::layoutIdIsNeverNegative()
{
    ZEMVirtualKey key;
    key.setLayoutId(-5);
    QCOMPARE(key.layoutId(), -1);
    key.setLayoutId(0);
    QCOMPARE(key.layoutId(), 0);
    key.setLayoutId(3);
    key.setLayoutId(-1);
    QCOMPARE(key.layoutId(), 3);
}

void tst_ZEMVirtualKey::storesWhatItIsGiven()
{
    ZEMVirtualKey key(QStringLiteral("a"));
    key.setType(ZEMVirtualKey::Layout);
    QCOMPARE(key.type(), ZEMVirtualKey::Layout);
    key.setKey(QLatin1Char('z'));
    QCOMPARE(key.key(), QChar('z'));
    QCOMPARE(key.text(), QStringLiteral("a"));
    key.setText(QStringLiteral("shown"));
    QCOMPARE(key.key(), QChar('z'));
    QCOMPARE(key.name(), QStringLiteral("a"));
}

void tst_ZEMVirtualKey::cases_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("alternates");
    QTest::addColumn<QString>("upperText");
    QTest::addColumn<QChar>("upperKey");
    QTest::addColumn<QString>("upperAlternates");
    QTest::addColumn<QString>("lowerText"); // after the upper case
    const auto row = [](const char *name, const char *alternates, const char *upperText,
                        QChar upperKey, const char *upperAlternates, const char *lowerText) {
        QTest::addRow("%s (%s)", name, alternates)
            << QString::fromUtf8(name) << QString::fromUtf8(alternates)
            << QString::fromUtf8(upperText) << upperKey << QString::fromUtf8(upperAlternates)
            << QString::fromUtf8(lowerText);
    };
    row("a", "áà", "A", QLatin1Char('A'), "ÁÀ", "a");
    row("Q", "", "Q", QLatin1Char('Q'), "", "q");
    row("1", "!½", "1", QLatin1Char('1'), "!½", "1");
    row("", "", "", QChar(0), "", "");
    row("www.", "", "WWW.", QLatin1Char('W'), "", "www.");
    row("ß", "", "SS", QChar(0xDF), "", "ss");
    row("s", "śßš", "S", QLatin1Char('S'), "ŚßŠ", "s");
    row("s", "ss", "S", QLatin1Char('S'), "ß", "s");
    row("s", "sss", "S", QLatin1Char('S'), "ßS", "s");
    row("s", "ßß", "S", QLatin1Char('S'), "ßß", "s");
    row("s", "ßs", "S", QLatin1Char('S'), "ßS", "s");
    row("é", "é", "É", QChar(0xC9), "É", "é");
}

void tst_ZEMVirtualKey::cases()
{
    QFETCH(QString, name);
    QFETCH(QString, alternates);
    QFETCH(QChar, upperKey);
    for (const bool single : {false, true}) {
        ZEMVirtualKey key(name);
        key.setAlternateKeys(alternates);
        if (single) {
            key.toUpperSingle();
        } else {
            key.toUpper();
        }
        QTEST(key.text(), "upperText");
        QCOMPARE(key.key(), upperKey);
        QTEST(key.alternateKeys(), "upperAlternates");
        const QString upperAlternates = key.alternateKeys();
        key.toLower();
        QTEST(key.text(), "lowerText");
        QCOMPARE(key.key(), upperKey.toLower());
        QCOMPARE(key.alternateKeys(), upperAlternates.toLower());
    }
}

void tst_ZEMVirtualKey::capsKeyShowsTheStateItself()
{
    ZEMVirtualKey key(QStringLiteral("CAPS"));
    key.setType(ZEMVirtualKey::Caps);
    key.toLower();
    QCOMPARE(key.text(), QStringLiteral("caps"));
    QCOMPARE(key.key(), QChar('c'));
    key.setAlternateKeys(QStringLiteral("xy"));
    key.toUpperSingle();
    QCOMPARE(key.text(), QStringLiteral("Caps"));
    QCOMPARE(key.key(), QChar('c'));
    QCOMPARE(key.alternateKeys(), QStringLiteral("xy"));
    key.toUpper();
    QCOMPARE(key.text(), QStringLiteral("CAPS"));
    QCOMPARE(key.key(), QChar('C'));
    key.toUpperSingle();
    QCOMPARE(key.text(), QStringLiteral("CAPS")); // only ever adds a capital

    ZEMVirtualKey bare;
    bare.setType(ZEMVirtualKey::Caps);
    bare.toUpperSingle();
    QVERIFY(bare.text().isEmpty());

    ZEMVirtualKey enter(QStringLiteral("enter"));
    enter.setType(ZEMVirtualKey::Enter);
    enter.toUpperSingle();
    QCOMPARE(enter.text(), QStringLiteral("ENTER"));
}

void tst_ZEMVirtualKey::sharpSStaysOneAlternative()
{
    ZEMVirtualKey key(QStringLiteral("s"));
    const QString tenAlternatives = QString::fromUtf8("ßśšşſßzßxß");
    key.setAlternateKeys(tenAlternatives);
    key.toUpper();
    QCOMPARE(key.alternateKeys().size(), tenAlternatives.size());
}

void tst_ZEMVirtualKey::nameSurvivesAllStates()
{
    ZEMVirtualKey key(QStringLiteral("aB"));
    key.toUpper();
    QCOMPARE(key.name(), QStringLiteral("aB"));
    key.toLower();
    QCOMPARE(key.name(), QStringLiteral("aB"));
    key.toUpperSingle();
    QCOMPARE(key.name(), QStringLiteral("aB"));
}

void tst_ZEMVirtualKey::isPaintedAsAButton()
{
    ZEMVirtualKey key(QStringLiteral("a"));
    key.setBackground(flatPixmap(QSize(60, 40), Qt::blue));
    QCOMPARE(key.size(), QSize(60, 40));
    QImage image = render(&key);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::blue));
    key.setDown(true);
    QCOMPARE(render(&key), image);
    key.setText(QString());
    QVERIFY(render(&key) != image);
}

QTEST_MAIN(tst_ZEMVirtualKey)
#include "tst_zemvirtualkey.moc"
