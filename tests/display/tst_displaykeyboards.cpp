// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardfiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

class tst_DisplayKeyboards : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ownKeyboardsAreGood();
    void languagesAreThoseOfTheFiles();
    void problemsNameThePlace_data();
    void problemsNameThePlace();
    void missingFilesAreNamed();
    void otherFilesAreLeftAlone();

private:
    void write(const QString &name, const QByteArray &text) const;

    std::unique_ptr<QTemporaryDir> directory;
};

void tst_DisplayKeyboards::init()
{
    directory = std::make_unique<QTemporaryDir>();
    for (const char *name : {"keyboard_en.xml", "keyboard_nl.xml", "keyboard_numpad.xml"}) {
        write(QLatin1String(name), "<keyboard>\n<layout id=\"0\"/>\n</keyboard>\n");
    }
}

void tst_DisplayKeyboards::write(const QString &name, const QByteArray &text) const
{
    QFile file(directory->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

void tst_DisplayKeyboards::ownKeyboardsAreGood()
{
    QCOMPARE(KeyboardFiles::problemsIn(QStringLiteral(KEYBOARD_DIR)), QStringList());
    QVERIFY(KeyboardFiles::languagesIn(QStringLiteral(KEYBOARD_DIR)).contains("nl"));
}

void tst_DisplayKeyboards::languagesAreThoseOfTheFiles()
{
    QCOMPARE(KeyboardFiles::languagesIn(directory->path()), (QStringList {"en", "nl"}));
    QCOMPARE(KeyboardFiles::problemsIn(directory->path()), QStringList());
}

void tst_DisplayKeyboards::problemsNameThePlace_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("line");
    QTest::newRow("cut") << QByteArray("<keyboard>\n<layout>\n") << 3;
    QTest::newRow("a tag that is not closed") << QByteArray("<keyboard>\n<a>\n</keyboard>\n") << 3;
    QTest::newRow("another root") << QByteArray("\n<menu/>\n") << 2;
    QTest::newRow("empty") << QByteArray() << 1;
    QTest::newRow("no XML") << QByteArray("keyboard\n") << 1;
}

void tst_DisplayKeyboards::problemsNameThePlace()
{
    QFETCH(QByteArray, text);
    QFETCH(int, line);
    write(QStringLiteral("keyboard_nl.xml"), text);
    const QStringList problems = KeyboardFiles::problemsIn(directory->path());
    QCOMPARE(problems.size(), 1);
    const QString place = QStringLiteral("%1:%2: ")
                              .arg(directory->filePath(QStringLiteral("keyboard_nl.xml")))
                              .arg(line);
    QVERIFY2(problems.constFirst().startsWith(place), qPrintable(problems.constFirst()));
}

void tst_DisplayKeyboards::missingFilesAreNamed()
{
    for (const char *name : {"keyboard_en.xml", "keyboard_numpad.xml"}) {
        init();
        const QString path = directory->filePath(QLatin1String(name));
        QVERIFY(QFile::remove(path));
        const QStringList problems = KeyboardFiles::problemsIn(directory->path());
        QCOMPARE(problems.size(), 1);
        QVERIFY2(problems.constFirst().startsWith(path), qPrintable(problems.constFirst()));
    }
}

void tst_DisplayKeyboards::otherFilesAreLeftAlone()
{
    write(QStringLiteral("keyboard_nl.xml~"), "<");
    write(QStringLiteral("notes.xml"), "<");
    QCOMPARE(KeyboardFiles::problemsIn(directory->path()), QStringList());
}

QTEST_GUILESS_MAIN(tst_DisplayKeyboards)
#include "tst_displaykeyboards.moc"
