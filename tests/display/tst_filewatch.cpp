// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "filewatch.h"
#include "readingsfolder.h"

#include <QTest>

using Costs::FileWatch;

class tst_FileWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noFileNeverChanges();
    void writtenFileIsToldOnce();
    void fileMayComeAndGo();

private:
    ReadingsFolder folder;
};

void tst_FileWatch::noFileNeverChanges()
{
    FileWatch watch({});
    QVERIFY(!watch.hasChanged());
}

void tst_FileWatch::writtenFileIsToldOnce()
{
    const QString still = folder.write(QStringLiteral("still.csv"), "one");
    const QString path = folder.write(QStringLiteral("written.csv"), "one");
    FileWatch watch({still, path});
    QVERIFY(!watch.hasChanged());
    folder.write(QStringLiteral("written.csv"), "one, two");
    QVERIFY(watch.hasChanged());
    QVERIFY(!watch.hasChanged());
    // The same length at another time.
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTimeUtc().addDays(-1),
                             QFileDevice::FileModificationTime));
    file.close();
    QVERIFY(watch.hasChanged());
}

void tst_FileWatch::fileMayComeAndGo()
{
    const QString path = folder.filePath(QStringLiteral("guest.csv"));
    FileWatch watch({path});
    folder.write(QStringLiteral("guest.csv"), "one");
    QVERIFY(watch.hasChanged());
    QVERIFY(QFile::remove(path));
    QVERIFY(watch.hasChanged());
    QVERIFY(!watch.hasChanged());
}

QTEST_APPLESS_MAIN(tst_FileWatch)
#include "tst_filewatch.moc"
