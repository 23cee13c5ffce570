// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "examples.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QPalette>
#include <QPointer>
#include <QRegularExpression>
#include <QSet>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QVector>
#include <Zemkit>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

QStringList documents()
{
    return QStringLiteral(DOCUMENTS).split(QLatin1Char('\n'));
}

/** What the names of the blocks of @p document begin with. */
QByteArray stemOf(const QString &document)
{
    return QFileInfo(document).baseName().toLower().toUtf8().replace('-', '_') + '_';
}

int examplesOf(const QString &document)
{
    const QByteArray stem = stemOf(document);
    const std::vector<Example> &all = examples();
    return int(std::count_if(all.begin(), all.end(), [&](const Example &example) {
        return QByteArray(example.name).startsWith(stem);
    }));
}

/** How often a block of C++ begins in @p document. */
int beginsIn(const QString &document)
{
    QFile file(document);
    if (!file.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QByteArray text = file.readAll();
    if (document.endsWith(QLatin1String(".md"))) {
        return text.count("```cpp");
    }
    return text.count("@code\n") + text.count("@code{.cpp}");
}

/** The keyboard files that @p document tells of. */
QStringList keyboardsIn(const QString &document)
{
    QFile file(document);
    QStringList keyboards;
    if (file.open(QIODevice::ReadOnly)) {
        const QRegularExpression block(QStringLiteral("```xml\n(.*?<keyboard.*?)```"),
                                       QRegularExpression::DotMatchesEverythingOption);
        auto found = block.globalMatch(QString::fromUtf8(file.readAll()));
        while (found.hasNext()) {
            keyboards.append(found.next().captured(1));
        }
    }
    return keyboards;
}

/** Ends what waits for an answer of the user. */
void answer()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (auto *popup = qobject_cast<ZEMDialogPopup *>(widget)) {
            popup->reset();
        } else if (auto *letter = qobject_cast<ZEMDialogShowText *>(widget)) {
            letter->reset();
        }
    }
}

} // namespace

class tst_Examples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyBlockIsCompiled_data();
    void everyBlockIsCompiled();
    void everyClassHasAnExample_data();
    void everyClassHasAnExample();
    void exampleRuns_data();
    void exampleRuns();
    void everyKeyboardCanBeTypedOn_data();
    void everyKeyboardCanBeTypedOn();

private:
    static void clearAway();
};

void tst_Examples::everyBlockIsCompiled_data()
{
    QTest::addColumn<QString>("document");
    const QStringList all = documents();
    for (const QString &document : all) {
        QTest::newRow(qPrintable(QFileInfo(document).fileName())) << document;
    }
}

void tst_Examples::everyBlockIsCompiled()
{
    QFETCH(QString, document);
    QCOMPARE(examplesOf(document), beginsIn(document));
}

void tst_Examples::everyClassHasAnExample_data()
{
    QTest::addColumn<QString>("header");
    // Classes that a host meets by way of another one, whose example shows them.
    const QStringList shownElsewhere {
        QStringLiteral("qwtlegenditem.h"),
        QStringLiteral("zemhistogramlegenditem.h"),
        QStringLiteral("zemscaledraw.h"),
        QStringLiteral("zemsmartdayhistogram.h"),
        QStringLiteral("zemsmarthistogram.h"),
        QStringLiteral("zemsmartmonthhistogram.h"),
        QStringLiteral("zemsmartweekhistogram.h"),
        QStringLiteral("zemweekhistogram.h"),
        QStringLiteral("zemplotzoomer.h"),
        QStringLiteral("zemplotzoomeradvanced.h"),
        QStringLiteral("zemqwtpickerdraw.h"),
        QStringLiteral("zemqwtpickerdrawadvanced.h"),
        QStringLiteral("zemtrackerpickermachine.h"),
    };
    const QStringList all = documents();
    for (const QString &document : all) {
        const QString name = QFileInfo(document).fileName();
        if (name.endsWith(QLatin1String(".h")) && !shownElsewhere.contains(name)) {
            QTest::newRow(qPrintable(name)) << document;
        }
    }
}

void tst_Examples::everyClassHasAnExample()
{
    QFETCH(QString, header);
    QVERIFY(examplesOf(header) > 0);
}

/**
 * Deletes the pages that an example makes and leaves to its host, and the hidden keys from which a
 * keyboard factory takes its pictures. None of them may be on the screen any more.
 */
void tst_Examples::clearAway()
{
    QVector<QPointer<QWidget>> left;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        // Qt 5 keeps the desktop as a widget.
        if (!window->inherits("QDesktopWidget")) {
            left.append(window);
        }
    }
    for (const QPointer<QWidget> &window : std::as_const(left)) {
        if (window) {
            QVERIFY2(!window->isVisible(), window->metaObject()->className());
            delete window;
        }
    }
}

void tst_Examples::exampleRuns_data()
{
    QTest::addColumn<int>("index");
    const std::vector<Example> &all = examples();
    for (std::size_t i = 0; i < all.size(); ++i) {
        QTest::newRow(all[i].name) << int(i);
    }
}

void tst_Examples::exampleRuns()
{
    QFETCH(int, index);
    const QPalette palette = QApplication::palette();
    const QFont font = QApplication::font();
    QTimer user;
    connect(&user, &QTimer::timeout, &user, &answer);
    user.start(10);

    examples().at(std::size_t(index)).run();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    clearAway();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette);
    QApplication::setFont(font);
    ZEMPageHeaderButton::setDefaultBackgroundImage(QString());
}

void tst_Examples::everyKeyboardCanBeTypedOn_data()
{
    QTest::addColumn<QString>("text");
    const QStringList all = documents();
    for (const QString &document : all) {
        const QStringList keyboards = keyboardsIn(document);
        for (int i = 0; i < keyboards.size(); ++i) {
            QTest::addRow("%s, %d", qPrintable(QFileInfo(document).fileName()), i) << keyboards[i];
        }
    }
}

void tst_Examples::everyKeyboardCanBeTypedOn()
{
    QFETCH(QString, text);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("keyboard_xx.xml")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
    file.close();
    KeyboardFactoryDefault factory(folder.path(), QStringLiteral("xx"));
    const std::unique_ptr<ZEMVirtualKeyboard> keyboard(
        factory.createKeyboard(KeyboardFactoryDefault::PopupAbove));
    QVERIFY(keyboard);
    QSet<QString> names;
    const auto keys = keyboard->findChildren<ZEMVirtualKey *>();
    for (const ZEMVirtualKey *key : keys) {
        names.insert(key->text());
    }
    QCOMPARE(text.count(QLatin1String("<key ")), text.count(QLatin1String("<key value=")));
    // Words are labelled in another way.
    auto values =
        QRegularExpression(QStringLiteral("<key value=\"([^\"A-Z]+)\"")).globalMatch(text);
    QVERIFY(values.hasNext());
    while (values.hasNext()) {
        const QString value = values.next().captured(1);
        QVERIFY2(names.contains(value), qPrintable(value));
    }
}

QTEST_MAIN(tst_Examples)
#include "tst_examples.moc"
