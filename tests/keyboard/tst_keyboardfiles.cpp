// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "typist.h"
#include "zemtest.h"

#include <KeyboardFactoryDefault>
#include <ZEMLineEditSearchDialog>
#include <ZEMNumericKeypad>

#include <QDir>
#include <QFontInfo>
#include <QFontMetrics>
#include <QRawFont>
#include <QSet>
#include <QTest>

#include <utility>

namespace {

constexpr QSize screen(640, 480);
constexpr int finger = 40; // pixels
constexpr int offeredAlternatives = 10;
constexpr int shortRow = 30; // pixels that it leaves free on each side
constexpr int keyBorder = 2; // pixels, on each side

const auto above = ZEMVirtualKeyboardFactoryIntf::PopupAbove;
const auto flip = ZEMVirtualKeyboardFactoryIntf::PopupFlip;

QString directory()
{
    return QStringLiteral(KEYBOARDS_DIR);
}

/** What stands in the file names for the language, of all files that there are. */
QStringList languages()
{
    QStringList names;
    for (const QString &file : QDir(directory()).entryList({QStringLiteral("*.xml")})) {
        names.append(file.mid(9).chopped(4)); // keyboard_XX.xml
    }
    return names;
}

bool isKeypad(const QString &language)
{
    return language == QLatin1String("numpad");
}

QString printableAscii()
{
    QString text;
    for (char16_t code = 0x20; code <= 0x7E; ++code) {
        text += QChar(code);
    }
    return text;
}

void addRows(bool withKeypad, bool withAscii)
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages()) {
        if ((withKeypad || !isKeypad(language))
            && (withAscii || language != QLatin1String("ascii"))) {
            QTest::newRow(qPrintable(language)) << language;
        }
    }
}

} // namespace

/** The keyboards of the example display. */
class tst_KeyboardFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isThere_data();
    void isThere();
    void namesAreWhatTheFactoryAsksFor();
    void fitsIntoDialog_data() { addRows(false, true); }
    void fitsIntoDialog();
    void keypadFitsIntoDialog();
    void keysAreFitForFingers_data() { addRows(true, true); }
    void keysAreFitForFingers();
    void rowsEndAtOneEdge_data() { addRows(true, true); }
    void rowsEndAtOneEdge();
    void labelsFitIntoKeys_data() { addRows(true, true); }
    void labelsFitIntoKeys();
    void alternativesAreOffered_data() { addRows(true, true); }
    void alternativesAreOffered();
    void capsGoRoundWithoutTrace_data() { addRows(false, true); }
    void capsGoRoundWithoutTrace();
    void pagesLeadBackToLetters_data() { addRows(false, true); }
    void pagesLeadBackToLetters();
    void typesPrintableAscii_data() { addRows(false, true); }
    void typesPrintableAscii();
    void typesEuroSign_data() { addRows(false, false); }
    void typesEuroSign();
    void lettersStandInOrder_data();
    void lettersStandInOrder();
    void typesItsLanguage_data();
    void typesItsLanguage();
    void asciiHasNothingElse();
    void keypadTypesNumbers();
    void fontHasAllCharacters_data() { addRows(true, true); }
    void fontHasAllCharacters();
};

void tst_KeyboardFiles::isThere_data()
{
    QTest::addColumn<QString>("language");
    for (const char *name : {"nl", "en", "de", "fr", "es", "it", "pl", "sv", "ascii", "numpad"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_KeyboardFiles::isThere()
{
    QFETCH(QString, language);
    QVERIFY(QFile::exists(QStringLiteral("%1/keyboard_%2.xml").arg(directory(), language)));
}

void tst_KeyboardFiles::namesAreWhatTheFactoryAsksFor()
{
    for (const QString &file : QDir(directory()).entryList({QStringLiteral("*.xml")})) {
        QVERIFY2(file.startsWith(QStringLiteral("keyboard_")), qPrintable(file));
    }
}

void tst_KeyboardFiles::fitsIntoDialog()
{
    QFETCH(QString, language);
    for (const auto style : {above, flip}) {
        Typist typist(directory(), language, style);
        ZEMLineEditSearchDialog search(typist.factory.createKeyboard(style), nullptr);
        QVERIFY(typist.show());
        for (int page = 0; page < typist.stack->count(); ++page) {
            QVERIFY(typist.goTo(page));
            QCoreApplication::processEvents();
            for (const QWidget *dialog :
                 {static_cast<QWidget *>(typist.dialog), static_cast<QWidget *>(&search)}) {
                const QSize needed = dialog->minimumSizeHint();
                QVERIFY2(needed.width() <= screen.width(),
                         qPrintable(QString::number(needed.width())));
                QVERIFY2(needed.height() <= screen.height(),
                         qPrintable(QString::number(needed.height())));
            }
        }
    }
}

void tst_KeyboardFiles::keypadFitsIntoDialog()
{
    KeyboardFactoryDefault factory(directory(), QStringLiteral("nl"));
    ZEMNumericKeypad dialog(factory.createNumericKeypad(), nullptr);
    dialog.resize(screen);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog, ZemTest::hangs));
    QCOMPARE(dialog.minimumSizeHint().boundedTo(screen), dialog.minimumSizeHint());
}

void tst_KeyboardFiles::keysAreFitForFingers()
{
    QFETCH(QString, language);
    for (const auto style : {above, flip}) {
        Typist typist(directory(), language, style);
        QVERIFY(typist.show());
        for (int page = 0; page < typist.stack->count(); ++page) {
            QVERIFY(typist.goTo(page));
            QCoreApplication::processEvents();
            const QList<ZEMVirtualKey *> keys = typist.keys(page);
            for (int i = 0; i < keys.size(); ++i) {
                const QRect rect = keys.at(i)->geometry();
                QVERIFY2(rect.width() >= finger && rect.height() >= finger,
                         qPrintable(keys.at(i)->name()));
                QVERIFY2(typist.keyboard->rect().contains(rect), qPrintable(keys.at(i)->name()));
                for (int other = 0; other < i; ++other) {
                    QVERIFY2(!rect.intersects(keys.at(other)->geometry()),
                             qPrintable(keys.at(i)->name()));
                }
            }
        }
    }
}

void tst_KeyboardFiles::rowsEndAtOneEdge()
{
    QFETCH(QString, language);
    Typist typist(directory(), language);
    QVERIFY(typist.show());
    for (int page = 0; page < typist.stack->count(); ++page) {
        QVERIFY(typist.goTo(page));
        QCoreApplication::processEvents();
        QMap<int, QRect> rows;
        for (const ZEMVirtualKey *key : typist.keys(page)) {
            rows[key->y()] |= key->geometry();
        }
        QCOMPARE(rows.size(), 4);
        QRect whole;
        for (const QRect &row : std::as_const(rows)) {
            whole |= row;
        }
        for (const QRect &row : std::as_const(rows)) {
            // A row that is short of a key stands in the middle.
            const int left = row.left() - whole.left();
            const int right = whole.right() - row.right();
            QVERIFY2(qAbs(left - right) <= 1 && left <= shortRow, qPrintable(language));
        }
    }
}

void tst_KeyboardFiles::labelsFitIntoKeys()
{
    QFETCH(QString, language);
    Typist typist(directory(), language);
    QVERIFY(typist.show());
    for (ZEMVirtualKey *key : typist.allKeys()) {
        for (int caps = 0; caps < 2; ++caps) {
            const int width = QFontMetrics(key->font()).horizontalAdvance(key->text());
            QVERIFY2(width <= key->width() - 2 * keyBorder, qPrintable(key->text()));
            key->toUpper();
        }
    }
}

void tst_KeyboardFiles::alternativesAreOffered()
{
    QFETCH(QString, language);
    Typist typist(directory(), language);
    for (const ZEMVirtualKey *key : typist.allKeys()) {
        const QString alternates = key->alternateKeys();
        QVERIFY2(alternates.size() <= offeredAlternatives, qPrintable(key->name()));
        QVERIFY2(!key->hasAlternateKeys() || !alternates.isEmpty(), qPrintable(key->name()));
        QVERIFY2(alternates.isEmpty() || key->type() == ZEMVirtualKey::Character,
                 qPrintable(key->name()));
        const QSet<QChar> different(alternates.cbegin(), alternates.cend());
        QVERIFY2(different.size() == alternates.size(), qPrintable(key->name()));
        QVERIFY2(!different.contains(key->key()), qPrintable(key->name()));
    }
}

void tst_KeyboardFiles::capsGoRoundWithoutTrace()
{
    QFETCH(QString, language);
    Typist typist(directory(), language);
    for (ZEMVirtualKey *key : typist.allKeys()) {
        key->toLower();
        const QString text = key->text();
        const QChar character = key->key();
        const QString alternates = key->alternateKeys();
        key->toUpper();
        QCOMPARE(key->alternateKeys().size(), alternates.size());
        key->toLower();
        QCOMPARE(key->text(), text);
        QCOMPARE(key->key(), character);
        QCOMPARE(key->alternateKeys(), alternates);
    }
}

void tst_KeyboardFiles::pagesLeadBackToLetters()
{
    QFETCH(QString, language);
    Typist typist(directory(), language);
    QVERIFY(typist.stack->count() > 1);
    for (int page = 1; page < typist.stack->count(); ++page) {
        const auto leadsBack = [](const ZEMVirtualKey *key) {
            return key->type() == ZEMVirtualKey::Layout && key->layoutId() == 0;
        };
        const QList<ZEMVirtualKey *> keys = typist.keys(page);
        QVERIFY(std::any_of(keys.cbegin(), keys.cend(), leadsBack));
    }
}

void tst_KeyboardFiles::typesPrintableAscii()
{
    QFETCH(QString, language);
    Typist typist(directory(), language);
    QVERIFY(typist.show());
    QCOMPARE(typist.type(printableAscii()), printableAscii());
}

void tst_KeyboardFiles::typesEuroSign()
{
    QFETCH(QString, language);
    Typist typist(directory(), language);
    QVERIFY(typist.show());
    QCOMPARE(typist.type(QStringLiteral("€ 9")), QStringLiteral("€ 9"));
}

void tst_KeyboardFiles::lettersStandInOrder_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("letters");
    const QString qwerty = QStringLiteral("qwertyuiopasdfghjklzxcvbnm");
    for (const char *language : {"nl", "en", "it", "pl", "sv", "ascii"}) {
        QTest::newRow(language) << QString::fromLatin1(language) << qwerty;
    }
    QTest::newRow("de") << QStringLiteral("de") << QStringLiteral("qwertzuiopasdfghjklyxcvbnm");
    QTest::newRow("fr") << QStringLiteral("fr") << QStringLiteral("azertyuiopqsdfghjklmwxcvbn");
    QTest::newRow("es") << QStringLiteral("es") << QStringLiteral("qwertyuiopasdfghjklñzxcvbnm");
}

void tst_KeyboardFiles::lettersStandInOrder()
{
    QFETCH(QString, language);
    QFETCH(QString, letters);
    Typist typist(directory(), language);
    QString found;
    for (const ZEMVirtualKey *key : typist.keys(0)) {
        if (key->type() == ZEMVirtualKey::Character && key->key().isLetter()) {
            found += key->key();
        }
    }
    QCOMPARE(found.left(letters.size()), letters);
}

void tst_KeyboardFiles::typesItsLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *language, const QString &text) {
        QTest::newRow(language) << QString::fromLatin1(language) << text;
    };
    row("nl", QStringLiteral("Eén café, knieën, zeeën; Één 50%"));
    row("en", QStringLiteral("It's £5 – naïve “Café”?"));
    row("de", QStringLiteral("Straße 12, €-Tarif: 0,31 Äpfel Öl Über „ä ö ü“"));
    row("fr", QStringLiteral("L'été à Noël, où ça? Œuf «ÇÀÊÉ» ÿ"));
    row("es", QStringLiteral("¿Qué? ¡Añón, pingüino! ÁÉÍÓÚÑ 2º 1ª"));
    row("it", QStringLiteral("Perché no? Città, lunedì, però, più, È"));
    row("pl", QStringLiteral("Zażółć gęślą jaźń ŻÓŁW „Ł”"));
    row("sv", QStringLiteral("Åäö på Öland är ÄLG ”é”"));
}

void tst_KeyboardFiles::typesItsLanguage()
{
    QFETCH(QString, language);
    QFETCH(QString, text);
    Typist typist(directory(), language, flip);
    QVERIFY(typist.show());
    QCOMPARE(typist.type(text), text);
}

void tst_KeyboardFiles::asciiHasNothingElse()
{
    Typist typist(directory(), QStringLiteral("ascii"));
    for (const ZEMVirtualKey *key : typist.allKeys()) {
        for (const QChar character : key->name() + key->alternateKeys()) {
            QVERIFY2(printableAscii().contains(character), qPrintable(key->name()));
        }
    }
}

void tst_KeyboardFiles::keypadTypesNumbers()
{
    const QString text = QStringLiteral("-12:34,56.7890");
    Typist typist(directory(), QStringLiteral("numpad"));
    QVERIFY(typist.show());
    QCOMPARE(typist.type(text), text);
    for (ZEMVirtualKey *key : typist.keys(0)) {
        // It has no room for the popups of its upper row.
        QVERIFY(!key->hasAlternateKeys());
        if (key->type() == ZEMVirtualKey::Delete) {
            typist.tap(key);
        }
    }
    QCOMPARE(typist.field->text(), text.chopped(1));
}

void tst_KeyboardFiles::fontHasAllCharacters()
{
    QFETCH(QString, language);
    // Cabin does not have them; another font of the system has to step in.
    const QString without =
        language == QLatin1String("pl") ? QStringLiteral("ąćęłńśźż") : QString();
    QString missing;
    Typist typist(directory(), language);
    const QFont keyFont = typist.allKeys().first()->font();
    if (QFontInfo(keyFont).family() != keyFont.family()) {
        QSKIP("the font of the keys is not installed", );
    }
    for (const ZEMVirtualKey *key : typist.allKeys()) {
        const QRawFont font = QRawFont::fromFont(key->font());
        for (const QChar character : key->name() + key->alternateKeys()) {
            const bool has =
                font.supportsCharacter(character) && font.supportsCharacter(character.toUpper());
            if (!has && !without.contains(character)) {
                missing += character;
            }
        }
    }
    QCOMPARE(missing, QString());
}

QTEST_MAIN(tst_KeyboardFiles)
#include "tst_keyboardfiles.moc"
