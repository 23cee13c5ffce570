// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keptpictures.h"
#include "zemtest.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/** The pictures of the display in the README, beside those that it shows now. */
class tst_DisplayPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pictureIsNoOlderThanTheCode_data();
    void pictureIsNoOlderThanTheCode();

private:
    QTemporaryDir taken;
};

void tst_DisplayPictures::initTestCase()
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral(CAMERA), {taken.path()});
    QVERIFY(process.waitForFinished(ZemTest::hangs));
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             process.readAll().constData());
}

void tst_DisplayPictures::pictureIsNoOlderThanTheCode_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("overview") << QStringLiteral("overview.png");
    QTest::newRow("charts") << QStringLiteral("charts.png");
}

void tst_DisplayPictures::pictureIsNoOlderThanTheCode()
{
    QFETCH(QString, name);
    const QImage picture(taken.filePath(name));
    QCOMPARE(picture.size(), QSize(640, 480));
    QFile readme(QStringLiteral(SOURCE_DIR "/README.md"));
    QVERIFY(readme.open(QIODevice::ReadOnly));
    QVERIFY(readme.readAll().contains("(docs/images/" + name.toUtf8() + ")"));
    const QString difference =
        KeptPictures::difference(picture, QStringLiteral(SOURCE_DIR "/docs/images/") + name);
    QVERIFY2(difference.isEmpty(), qPrintable(difference + QStringLiteral("; scripts/pictures")));
}

QTEST_GUILESS_MAIN(tst_DisplayPictures)
#include "tst_displaypictures.moc"
