// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keptpictures.h"
#include "zemtest.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QTransform>

#include <utility>

/** Runs zemkit-gallery as a user would. */
class tst_GalleryProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void help();
    void version();
    void listHasEveryClass();
    void refusals_data();
    void refusals();
    void pageOpensAndStays();
    void screenshotsOfEveryClassAndNothingElse();
    void keptPicturesAreNoOlderThanTheCode();
    void picturesOfUnlikeThingsHaveLittleInCommon();
    void screenshotsIntoAFile();

private:
    struct Result
    {
        int status = -1;
        QString output;
        QString errors;
    };
    static Result run(const QStringList &arguments);
    QString pictures();

    QTemporaryDir dir;
};

static QStringList classes()
{
    return QStringLiteral(CLASSES).split(QLatin1Char(','));
}

tst_GalleryProgram::Result tst_GalleryProgram::run(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(GALLERY_PROGRAM), arguments);
    Result result;
    if (process.waitForFinished(ZemTest::hangs) && process.exitStatus() == QProcess::NormalExit) {
        result.status = process.exitCode();
    }
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    for (const QByteArray &line : process.readAllStandardError().split('\n')) {
        // What the offscreen platform says of each window with a fixed size.
        if (!line.isEmpty() && !line.contains("propagateSizeHints")) {
            result.errors += QString::fromUtf8(line) + QLatin1Char('\n');
        }
    }
    return result;
}

/** The folder with the pictures, which are taken once. */
QString tst_GalleryProgram::pictures()
{
    const QString folder = dir.filePath(QStringLiteral("screens"));
    if (!QDir(folder).exists()) {
        const Result result = run({QStringLiteral("--screenshots"), folder});
        [&] {
            QCOMPARE(result.errors, QString());
            QCOMPARE(result.status, 0);
        }();
    }
    return folder;
}

void tst_GalleryProgram::help()
{
    const Result result = run({QStringLiteral("--help")});
    QCOMPARE(result.status, 0);
    for (const char *option :
         {"--page", "--list", "--language", "--screenshots", "--help", "--version"}) {
        QVERIFY2(result.output.contains(QLatin1String(option)), option);
    }
    QCOMPARE(result.errors, QString());
}

void tst_GalleryProgram::version()
{
    const Result result = run({QStringLiteral("--version")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QStringLiteral("zemkit-gallery 2.3.0\n"));
}

void tst_GalleryProgram::listHasEveryClass()
{
    const Result result = run({QStringLiteral("--list")});
    QCOMPARE(result.status, 0);
    QStringList listed;
    for (const QString &line : result.output.trimmed().split(QLatin1Char('\n'))) {
        listed.append(line.section(QLatin1Char(' '), 0, 0));
        QVERIFY2(!line.section(QLatin1Char(' '), 1).trimmed().isEmpty(), qPrintable(line));
    }
    QStringList all = classes();
    all.sort();
    QCOMPARE(listed, all);
}

void tst_GalleryProgram::refusals_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("reason");
    QTest::newRow("unknown option") << QStringList {"--frobnicate"} << 1 << "frobnicate";
    QTest::newRow("unknown class") << QStringList {"--page", "ZEMButon"} << 2
                                   << "no class 'ZEMButon'; did you mean ZEMButton?";
    QTest::newRow("empty class") << QStringList {"--page="} << 2 << "no class ''";
    QTest::newRow("argument") << QStringList {"ZEMButton"} << 1
                              << "unexpected argument 'ZEMButton'";
    QTest::newRow("no directory") << QStringList {"--screenshots="} << 1
                                  << "--screenshots wants a directory";
    QTest::newRow("unknown language")
        << QStringList {"--language", "el"} << 1
        << "no language 'el'; there is de, en, es, fr, it, nl, pl, sv";
    QTest::newRow("no value") << QStringList {"--page"} << 1 << "page";
}

void tst_GalleryProgram::refusals()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, reason);
    const Result result = run(arguments);
    QCOMPARE(result.status, status);
    QVERIFY2(result.errors.contains(reason), qPrintable(result.errors));
    QVERIFY(result.errors.contains(QStringLiteral("Try 'zemkit-gallery --help'")));
    QCOMPARE(result.output, QString());
}

void tst_GalleryProgram::pageOpensAndStays()
{
    QProcess process;
    process.start(QStringLiteral(GALLERY_PROGRAM),
                  {QStringLiteral("--page"), QStringLiteral("zemthrobber")});
    QVERIFY(process.waitForStarted(ZemTest::hangs));
    // A gallery goes on until its window is closed.
    QVERIFY(!process.waitForFinished(1000));
    QCOMPARE(process.state(), QProcess::Running);
    process.kill();
    QVERIFY(process.waitForFinished(ZemTest::hangs));
}

static bool isOfOneColor(const QImage &image)
{
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != first) {
                return false;
            }
        }
    }
    return true;
}

void tst_GalleryProgram::screenshotsOfEveryClassAndNothingElse()
{
    const QString screens = pictures();
    QStringList expected;
    for (const QString &name : classes()) {
        expected.append(name.toLower() + QStringLiteral(".png"));
    }
    expected.sort();
    QCOMPARE(QDir(screens).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), expected);
    for (const QString &name : std::as_const(expected)) {
        const QImage image(screens + QLatin1Char('/') + name);
        QVERIFY2(!image.isNull() && !isOfOneColor(image), qPrintable(name));
        QVERIFY2(image.width() <= 640 && image.height() <= 480, qPrintable(name));
    }
}

void tst_GalleryProgram::keptPicturesAreNoOlderThanTheCode()
{
    const QString screens = pictures();
    QStringList differences;
    const QStringList names = QDir(screens).entryList({QStringLiteral("*.png")});
    for (const QString &name : names) {
        const QString difference = KeptPictures::difference(
            QImage(screens + QLatin1Char('/') + name), QStringLiteral(PICTURES_DIR "/") + name);
        if (!difference.isEmpty()) {
            differences.append(difference);
        }
    }
    QVERIFY2(differences.isEmpty(),
             qPrintable(QStringLiteral("scripts/pictures takes them anew: ")
                        + differences.join(QLatin1String(", "))));
}

// Where letters are drawn otherwise, colours alone tell whether a picture is of the right thing.
void tst_GalleryProgram::picturesOfUnlikeThingsHaveLittleInCommon()
{
    const auto kept = [](const char *name) {
        return QImage(QStringLiteral(PICTURES_DIR "/") + QLatin1String(name))
            .convertToFormat(QImage::Format_RGB32);
    };
    const QImage icons = kept("zemenergyicon.png");
    QCOMPARE(KeptPictures::commonColors(icons, icons), 1.0);
    QCOMPARE(KeptPictures::commonColors(icons, icons.transformed(QTransform().rotate(180.0))), 1.0);
    for (const char *other : {"zempixmap.png", "zembutton.png", "zemplot.png", "zemlistview.png"}) {
        const double common = KeptPictures::commonColors(icons, kept(other));
        QVERIFY2(common < 0.7, qPrintable(QStringLiteral("%1: %2").arg(other).arg(common)));
    }
}

void tst_GalleryProgram::screenshotsIntoAFile()
{
    const QString path = dir.filePath(QStringLiteral("file"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    const Result result = run({QStringLiteral("--screenshots"), path});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(QStringLiteral("cannot make the directory")),
             qPrintable(result.errors));
}

QTEST_GUILESS_MAIN(tst_GalleryProgram)
#include "tst_galleryprogram.moc"
