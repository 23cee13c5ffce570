// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keptpictures.h"
#include "zemtest.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

/** The programs of docs/tutorial.md, and whether it quotes and shows them as they are. */
class tst_Tutorial : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void programShowsItsPicture_data();
    void programShowsItsPicture();
    void stepIsQuotedAsItIs_data();
    void stepIsQuotedAsItIs();
    void lastStepIsWholeInQuotes();
    void keyboardOfBothStepsIsTheSame();

private:
    QTemporaryDir dir;
    QString text; ///< of the tutorial
};

namespace {

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/** The folders of the steps, with the programs. */
QStringList programs()
{
    return QStringLiteral(PROGRAMS).split(QLatin1Char('\n'));
}

void addSteps()
{
    QTest::addColumn<QString>("step");
    QTest::addColumn<QString>("program");
    const QStringList all = programs();
    for (const QString &each : all) {
        const QString step = each.section(QLatin1Char('='), 0, 0);
        QTest::newRow(qPrintable(step)) << step << each.section(QLatin1Char('='), 1);
    }
}

QString pathOf(const QString &step, const QString &file)
{
    return QStringLiteral(TUTORIAL_DIR "/%1/%2").arg(step, file);
}

/** The lines of @p code without licence and margin, so that a quote may begin in the middle of a
 * function.
 */
QStringList bareLines(const QString &code)
{
    QStringList lines;
    const QStringList all = code.split(QLatin1Char('\n'));
    for (const QString &line : all) {
        if (!line.trimmed().isEmpty() && !line.contains(QLatin1String("SPDX-"))) {
            lines.append(line.trimmed());
        }
    }
    return lines;
}

QString bare(const QString &code)
{
    return bareLines(code).join(QLatin1Char('\n'));
}

/** The blocks of code in the section of @p text that is about @p step: its heading begins with its
 * number. */
QStringList quotes(const QString &text, const QString &step)
{
    const QString heading = QStringLiteral("\n## %1. ").arg(step.at(0));
    const int begin = text.indexOf(heading);
    if (begin < 0) {
        return {};
    }
    const int end = text.indexOf(QLatin1String("\n## "), begin + 1);
    const QString section = text.mid(begin, end < 0 ? -1 : end - begin);
    QStringList found;
    const QRegularExpression block(QStringLiteral("```(?:cpp|cmake|xml)\n(.*?)```"),
                                   QRegularExpression::DotMatchesEverythingOption);
    QRegularExpressionMatchIterator matches = block.globalMatch(section);
    while (matches.hasNext()) {
        found.append(matches.next().captured(1));
    }
    return found;
}

} // namespace

void tst_Tutorial::init()
{
    text = contents(QStringLiteral(DOCS_DIR "/tutorial.md"));
    QVERIFY(!text.isEmpty());
}

void tst_Tutorial::programShowsItsPicture_data()
{
    addSteps();
}

void tst_Tutorial::programShowsItsPicture()
{
    QFETCH(QString, step);
    QFETCH(QString, program);
    const QString picture = dir.filePath(step + QStringLiteral(".png"));
    const QString touched = step.startsWith(QLatin1Char('4')) ? QStringLiteral("name")
        : step.startsWith(QLatin1Char('5'))                   ? QStringLiteral("close")
                                                              : QString();
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ZEM_PICTURE"), picture);
    environment.insert(QStringLiteral("ZEM_TOUCH"), touched);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, QStringList());
    QVERIFY(process.waitForFinished(ZemTest::hangs));
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
             process.readAll().constData());

    const QImage shown(picture);
    QCOMPARE(shown.size(), QSize(640, 480));
    QVERIFY(text.contains(QStringLiteral("(images/tutorial/%1.png)").arg(step)));
    const QString kept = QStringLiteral(DOCS_DIR "/images/tutorial/%1.png").arg(step);
    const QString difference = KeptPictures::difference(shown, kept);
    QVERIFY2(difference.isEmpty(), qPrintable(difference + QStringLiteral("; scripts/pictures")));
}

void tst_Tutorial::stepIsQuotedAsItIs_data()
{
    addSteps();
}

void tst_Tutorial::stepIsQuotedAsItIs()
{
    QFETCH(QString, step);
    const QStringList files {
        bare(contents(pathOf(step, QStringLiteral("main.cpp")))),
        bare(contents(pathOf(step, QStringLiteral("CMakeLists.txt")))),
        bare(contents(pathOf(step, QStringLiteral("keyboards/keyboard_en.xml"))))};
    const QStringList all = quotes(text, step);
    QVERIFY(!all.isEmpty());
    for (const QString &quote : all) {
        QVERIFY2(files.filter(bare(quote)).size() == 1, qPrintable(quote));
    }
}

// A reader who has copied all quotes has the program: no line of it is left untold.
void tst_Tutorial::lastStepIsWholeInQuotes()
{
    QStringList quoted;
    const QStringList all = programs();
    for (const QString &each : all) {
        quoted += bareLines(quotes(text, each.section(QLatin1Char('='), 0, 0)).join(QString()));
    }
    const QStringList lines =
        bareLines(contents(pathOf(QStringLiteral("5-dialog"), QStringLiteral("main.cpp"))))
        + bareLines(contents(pathOf(QStringLiteral("5-dialog"), QStringLiteral("CMakeLists.txt"))))
        + bareLines(contents(
            pathOf(QStringLiteral("5-dialog"), QStringLiteral("keyboards/keyboard_en.xml"))));
    QVERIFY(lines.size() > 100);
    for (const QString &line : lines) {
        // A header may be named in a sentence.
        const bool isHeader = line.startsWith(QLatin1String("#include "));
        const QString told = isHeader ? line.section(QLatin1Char(' '), 1) : QString();
        QVERIFY2(quoted.contains(line) || (isHeader && text.contains(told)), qPrintable(line));
    }
}

void tst_Tutorial::keyboardOfBothStepsIsTheSame()
{
    const QString file = QStringLiteral("keyboards/keyboard_en.xml");
    QVERIFY(!contents(pathOf(QStringLiteral("4-keyboard"), file)).isEmpty());
    QCOMPARE(contents(pathOf(QStringLiteral("4-keyboard"), file)),
             contents(pathOf(QStringLiteral("5-dialog"), file)));
}

QTEST_GUILESS_MAIN(tst_Tutorial)
#include "tst_tutorial.moc"
