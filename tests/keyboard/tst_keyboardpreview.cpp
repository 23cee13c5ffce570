// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pictures.h"
#include "previewwindow.h"
#include "zemtest.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace {

const char clean[] =
    "<keyboard><layout id=\"0\"><row><key value=\"1\" alternate=\"2\"/></row></layout>"
    "</keyboard>";
const char flawed[] = "<keyboard><layout id=\"0\">\n<row><key value=\"1\"/><space key=\"2\"/></row>"
                      "</layout></keyboard>";
const char twoPages[] =
    "<keyboard><layout id=\"0\"><row><key value=\"CAPS\"/><key value=\"+\" layout=\"1\"/></row>"
    "</layout><layout id=\"1\"><row><key value=\"-\" layout=\"0\"/></row></layout></keyboard>";

} // namespace

/** Runs zemkit-keyboard-preview as an author of keyboards would, and pages through its window. */
class tst_KeyboardPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void help_data();
    void help();
    void version();
    void refuses_data();
    void refuses();
    void cleanFile();
    void flawedFile();
    void unreadableFile();
    void readsTheOthersBesideAnUnreadableFile();
    void writesPictures();
    void capsStatesDiffer();
    void popupStylesDiffer();
    void sizeIsThatOfThePictures();
    void filesOfOneNameKeepTheirPictures();
    void cannotWritePictures();
    void examplesAreClean();
    void windowPagesThroughPictures();
    void windowFollowsArrowKeys();
    void textOfWindowIsLegible();

private:
    struct Result
    {
        int status = -1;
        QString output;
        QString errors;
    };
    static Result run(const QStringList &arguments);
    QString write(const QString &name, const char *content) const;
    QString path(const char *name) const { return dir.filePath(QString::fromLatin1(name)); }

    QTemporaryDir dir;
};

tst_KeyboardPreview::Result tst_KeyboardPreview::run(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(PREVIEW_PROGRAM), arguments);
    Result result;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit) {
        result.status = process.exitCode();
    }
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    result.errors = QString::fromUtf8(process.readAllStandardError());
    return result;
}

QString tst_KeyboardPreview::write(const QString &name, const char *content) const
{
    const QString file = dir.filePath(name);
    QFile out(file);
    if (!QFileInfo(file).dir().mkpath(QStringLiteral(".")) || !out.open(QIODevice::WriteOnly)) {
        qFatal("cannot write a keyboard file");
    }
    out.write(content);
    return file;
}

void tst_KeyboardPreview::help_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("long") << QStringLiteral("--help");
    QTest::newRow("short") << QStringLiteral("-h");
}

void tst_KeyboardPreview::help()
{
    QFETCH(QString, option);
    const Result result = run({option});
    QCOMPARE(result.status, 0);
    for (const char *text : {"FILE...", "--size", "--png", "--help", "--version", "Exit status"}) {
        QVERIFY2(result.output.contains(QLatin1String(text)), text);
    }
    QCOMPARE(result.errors, QString());
}

void tst_KeyboardPreview::version()
{
    const Result result = run({QStringLiteral("--version")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.output, QStringLiteral("zemkit-keyboard-preview 2.3.0\n"));
}

void tst_KeyboardPreview::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const QStringList &arguments, const char *reason) {
        QTest::newRow(name) << arguments << QString::fromLatin1(reason);
    };
    const QString file = QStringLiteral("a.xml");
    row("nothing", {}, "no keyboard file given");
    row("unknown option", {QStringLiteral("--frobnicate"), file}, "frobnicate");
    row("no directory", {file, QStringLiteral("--png=")}, "--png wants a directory");
    row("no value", {file, QStringLiteral("--png")}, "png");
    for (const char *size : {"640", "640x", "x480", "0x0", "99x480", "640x99", "640x9000",
                             "99999999999x480", "640x480x2", "-640x480", "640X480", ""}) {
        row(size, {file, QStringLiteral("--size=") + QLatin1String(size)},
            "--size wants two numbers");
    }
}

void tst_KeyboardPreview::refuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    const Result result = run(arguments);
    QCOMPARE(result.status, 2);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.contains(reason), qPrintable(result.errors));
    QCOMPARE(result.errors.count(QLatin1Char('\n')), 1);
}

void tst_KeyboardPreview::cleanFile()
{
    const Result result = run({write(QStringLiteral("clean.xml"), clean)});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output, QString());
    QCOMPARE(result.status, 0);
}

void tst_KeyboardPreview::flawedFile()
{
    const QString file = write(QStringLiteral("flawed.xml"), flawed);
    const Result result = run({file});
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output,
             file + QStringLiteral(":2: this space is ignored, as there is no key \"2\"\n"));
    QCOMPARE(result.status, 1);
}

void tst_KeyboardPreview::unreadableFile()
{
    const QString none = path("none.xml");
    const Result result = run({none});
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.startsWith(none + QStringLiteral(": ")), qPrintable(result.errors));
    QCOMPARE(result.errors.count(QLatin1Char('\n')), 1);
    QCOMPARE(result.status, 2);
}

void tst_KeyboardPreview::readsTheOthersBesideAnUnreadableFile()
{
    const QString broken = write(QStringLiteral("broken.xml"), "<keyboard>");
    const QString file = write(QStringLiteral("flawed.xml"), flawed);
    const Result result = run({broken, file});
    QVERIFY2(result.errors.startsWith(broken + QStringLiteral(":1: ")), qPrintable(result.errors));
    QVERIFY2(result.output.startsWith(file + QStringLiteral(":2: ")), qPrintable(result.output));
    QCOMPARE(result.status, 2);
}

void tst_KeyboardPreview::writesPictures()
{
    const QString screens = path("some/where");
    const Result result =
        run({write(QStringLiteral("clean.xml"), clean), write(QStringLiteral("two.xml"), twoPages),
             QStringLiteral("--png"), screens});
    QCOMPARE(result.errors, QString());
    const QStringList expected {
        QStringLiteral("clean-page0-small.png"),  QStringLiteral("clean-popup-above.png"),
        QStringLiteral("clean-popup-flip.png"),   QStringLiteral("two-page0-capitals.png"),
        QStringLiteral("two-page0-single.png"),   QStringLiteral("two-page0-small.png"),
        QStringLiteral("two-page1-capitals.png"), QStringLiteral("two-page1-single.png"),
        QStringLiteral("two-page1-small.png")};
    QCOMPARE(QDir(screens).entryList(QDir::Files, QDir::Name), expected);
    for (const QString &name : expected) {
        QCOMPARE(QImage(QDir(screens).filePath(name)).size(), QSize(640, 480));
    }
    // The dialog is black, the keys are not.
    const QImage page(QDir(screens).filePath(QStringLiteral("clean-page0-small.png")));
    QCOMPARE(page.pixelColor(5, 5), QColor(Qt::black));
    QVERIFY(ZemTest::inkRect(page).height() > 50);
}

void tst_KeyboardPreview::capsStatesDiffer()
{
    const QString file = write(QStringLiteral("two.xml"), twoPages);
    const QVector<Picture> pictures = drawPictures(file, QStringLiteral("x"), {640, 480});
    QCOMPARE(pictures.size(), 6);
    const QImage small = pictures.at(0).pixmap.toImage();
    const QImage single = pictures.at(1).pixmap.toImage();
    const QImage capitals = pictures.at(2).pixmap.toImage();
    QVERIFY(small != single);
    QVERIFY(single != capitals);
    QVERIFY(small != capitals);
    QVERIFY(small != pictures.at(3).pixmap.toImage());
}

void tst_KeyboardPreview::popupStylesDiffer()
{
    const QString file = write(QStringLiteral("clean.xml"), clean);
    const QVector<Picture> pictures = drawPictures(file, QStringLiteral("x"), {640, 480});
    QCOMPARE(pictures.size(), 3);
    QCOMPARE(pictures.at(1).name, QStringLiteral("x-popup-above"));
    QCOMPARE(pictures.at(2).name, QStringLiteral("x-popup-flip"));
    QVERIFY(pictures.at(0).pixmap.toImage() != pictures.at(1).pixmap.toImage());
    QVERIFY(pictures.at(1).pixmap.toImage() != pictures.at(2).pixmap.toImage());
}

void tst_KeyboardPreview::sizeIsThatOfThePictures()
{
    const Result result = run({write(QStringLiteral("clean.xml"), clean), QStringLiteral("--size"),
                               QStringLiteral("800x500"), QStringLiteral("--png"), path("sized")});
    QCOMPARE(result.status, 0);
    QCOMPARE(QImage(path("sized/clean-page0-small.png")).size(), QSize(800, 500));
    QCOMPARE(QImage(path("sized/clean-popup-flip.png")).size(), QSize(800, 500));
}

void tst_KeyboardPreview::filesOfOneNameKeepTheirPictures()
{
    const QStringList files {QStringLiteral("a/x.y.xml"), QStringLiteral("b/x.y.xml"),
                             QStringLiteral("x.y-2.xml")};
    const QStringList names {QStringLiteral("x.y"), QStringLiteral("x.y-2"),
                             QStringLiteral("x.y-2-2")};
    QCOMPARE(pictureNames(files), names);
}

void tst_KeyboardPreview::cannotWritePictures()
{
    const QString file = write(QStringLiteral("two.xml"), twoPages);
    const Result result = run({file, QStringLiteral("--png"), file});
    QCOMPARE(result.status, 2);
    QVERIFY2(result.errors.contains(QStringLiteral("cannot make the directory ") + file),
             qPrintable(result.errors));
}

void tst_KeyboardPreview::examplesAreClean()
{
    QStringList files;
    for (const QFileInfo &file :
         QDir(QStringLiteral(KEYBOARDS_DIR)).entryInfoList({QStringLiteral("*.xml")})) {
        files.append(file.filePath());
    }
    QVERIFY(!files.isEmpty());
    const Result result = run(files);
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.output, QString());
    QCOMPARE(result.status, 0);
}

static QVector<Picture> threePictures()
{
    return {{QStringLiteral("red"), ZemTest::flatPixmap({60, 40}, Qt::red)},
            {QStringLiteral("green"), ZemTest::flatPixmap({60, 40}, Qt::green)},
            {QStringLiteral("blue"), ZemTest::flatPixmap({60, 40}, Qt::blue)}};
}

void tst_KeyboardPreview::windowPagesThroughPictures()
{
    PreviewWindow window(threePictures());
    auto *previous = window.findChild<QPushButton *>(QStringLiteral("btnPrevious"));
    auto *next = window.findChild<QPushButton *>(QStringLiteral("btnNext"));
    const QLabel *view = window.findChild<QLabel *>();
    const auto shown = [&] { return view->pixmap().toImage().pixelColor(0, 0); };

    QCOMPARE(window.windowTitle(), QStringLiteral("red"));
    QCOMPARE(shown(), QColor(Qt::red));
    QVERIFY(!previous->isEnabled());
    window.showPrevious();
    QCOMPARE(window.current(), 0);
    next->click();
    QCOMPARE(shown(), QColor(Qt::green));
    QVERIFY(previous->isEnabled() && next->isEnabled());
    next->click();
    QCOMPARE(shown(), QColor(Qt::blue));
    QVERIFY(!next->isEnabled());
    window.showNext();
    QCOMPARE(window.current(), 2);
    previous->click();
    QCOMPARE(window.windowTitle(), QStringLiteral("green"));
}

void tst_KeyboardPreview::windowFollowsArrowKeys()
{
    PreviewWindow window(threePictures());
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window, ZemTest::hangs));
    QTest::keyClick(&window, Qt::Key_Right);
    QTRY_COMPARE(window.current(), 1);
    QTest::keyClick(&window, Qt::Key_Left);
    QTRY_COMPARE(window.current(), 0);
}

void tst_KeyboardPreview::textOfWindowIsLegible()
{
    constexpr int contrast = 100; // levels of grey
    const PreviewWindow window(threePictures());
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const QPalette palette = widget->palette();
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            QVERIFY(qGray(palette.color(group, QPalette::WindowText).rgb())
                    > qGray(palette.color(group, QPalette::Window).rgb()) + contrast);
            QVERIFY(qGray(palette.color(group, QPalette::ButtonText).rgb())
                    > qGray(palette.color(group, QPalette::Button).rgb()) + contrast);
        }
    }
}

QTEST_MAIN(tst_KeyboardPreview)
#include "tst_keyboardpreview.moc"
