// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardtest.h"
#include "zemtest.h"

#include <KeyboardFactoryDefault>

#include <QApplication>
#include <QProcess>

using namespace KeyboardTest;

/** A factory without the files that every display needs. It ends the process, which the test
 * starts. */
class tst_MissingKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsTheProcess_data();
    void endsTheProcess();
};

void tst_MissingKeyboard::endsTheProcess_data()
{
    QTest::addColumn<QString>("which");
    QTest::addColumn<QByteArray>("files"); // that there are, each with a keyboard
    QTest::addColumn<QByteArray>("message"); // none if the process ends well
    QTest::newRow("no keyboard at all") << QStringLiteral("keyboard") << QByteArray("numpad")
                                        << QByteArray("Error loading default keyboard!");
    QTest::newRow("no keypad") << QStringLiteral("numpad") << QByteArray("en nl")
                               << QByteArray("Error loading default numpad keyboard!");
    QTest::newRow("keyboard") << QStringLiteral("keyboard") << QByteArray("nl") << QByteArray();
    QTest::newRow("keypad") << QStringLiteral("numpad") << QByteArray("numpad") << QByteArray();
}

void tst_MissingKeyboard::endsTheProcess()
{
    QFETCH(QString, which);
    QFETCH(QByteArray, files);
    QFETCH(QByteArray, message);
    const Files folder;
    for (const QByteArray &name : files.split(' ')) {
        folder.write(QStringLiteral("keyboard_%1.xml").arg(QString::fromLatin1(name)),
                     keyboardFile("<row><key value='a'/></row>"));
    }
    QProcess process;
    process.start(QStringLiteral(TEST_PROGRAM), {QStringLiteral("--create"), which, folder.path()});
    QVERIFY(process.waitForFinished(ZemTest::hangs));
    const QByteArray output = process.readAllStandardError();
    if (message.isEmpty()) {
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
    } else {
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        QVERIFY2(output.contains(message), output.constData());
    }
}

/** What the test starts as a process of its own. */
static int createKeyboard(const QStringList &arguments)
{
    KeyboardFactoryDefault factory(arguments.at(3), QStringLiteral("nl"));
    const std::unique_ptr<ZEMVirtualKeyboard> keyboard(
        arguments.at(2) == QLatin1String("numpad")
            ? factory.createNumericKeypad()
            : factory.createKeyboard(ZEMVirtualKeyboardFactoryIntf::PopupAbove));
    return keyboard ? 0 : 1;
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--create")) {
        return createKeyboard(arguments);
    }
    tst_MissingKeyboard test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_missingkeyboard.moc"
