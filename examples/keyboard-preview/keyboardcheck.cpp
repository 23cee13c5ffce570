// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardcheck.h"

#include "keyboardoutline.h"
#include "shownkeyboard.h"
#include "typing.h"

#include <ZEMVirtualKey>

#include <QStringList>

#include <algorithm>
#include <utility>

namespace {

constexpr int fingerWidth = 40; // pixels
constexpr char16_t firstPrintable = 0x20;
constexpr char16_t lastPrintable = 0x7E;

QString quoted(const QString &text)
{
    return QStringLiteral("\"%1\"").arg(text);
}

QString inWords(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

bool hasSurrogate(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c.isSurrogate(); });
}

class Checker
{
public:
    Checker(const KeyboardOutline &fileOutline, const QString &fileName, const QSize &pageSize)
        : outline(fileOutline), order(fileOutline.pageOrder()),
          keyboard(fileName, ZEMVirtualKeyboardFactoryIntf::PopupAbove, pageSize),
          flipping(fileName, ZEMVirtualKeyboardFactoryIntf::PopupFlip, pageSize), size(pageSize),
          findings(fileOutline.findings)
    {
    }

    bool isLoaded() const { return keyboard.isLoaded(); }

    QVector<Finding> check()
    {
        typing = tryTyping(&keyboard, outline.alternatives);
        checkSpaces();
        checkPages();
        for (int page = 0; page < order.size(); ++page) {
            const QList<ZEMVirtualKey *> keys = keyboard.keys(page);
            for (int i = 0; i < keys.size(); ++i) {
                checkKey(*keys.at(i), keyLine(page, i));
            }
        }
        checkChanges();
        checkAscii();
        checkSizes();
        std::stable_sort(findings.begin(), findings.end(),
                         [](const Finding &a, const Finding &b) { return a.line < b.line; });
        return findings;
    }

private:
    void report(int line, const QString &text)
    {
        // Both kinds of keyboard have the same to say of many keys.
        const auto same = [&](const Finding &each) {
            return each.line == line && each.text == text;
        };
        if (std::none_of(findings.cbegin(), findings.cend(), same)) {
            findings.append({line, text});
        }
    }

    int pageLine(int page) const { return outline.pages.at(order.at(page)).line; }
    int keyLine(int page, int key) const
    {
        return outline.pages.at(order.at(page)).keyLines.at(key);
    }

    /** The names of all keys in the order of the file. */
    QStringList namesInFile() const
    {
        QStringList names;
        for (int i = 0; i < outline.pages.size(); ++i) {
            for (const ZEMVirtualKey *key : keyboard.keys(order.indexOf(i))) {
                names.append(key->name());
            }
        }
        return names;
    }

    void checkSpaces()
    {
        const QStringList names = namesInFile();
        for (const KeyboardOutline::Space &space : outline.spaces) {
            const int place = names.indexOf(space.key);
            if (place < 0) {
                report(space.line,
                       QStringLiteral("this space is ignored, as there is no key %1")
                           .arg(quoted(space.key)));
            } else if (place >= space.keysBefore) {
                report(
                    space.line,
                    QStringLiteral("this space is ignored, as the key %1 comes later in the file")
                        .arg(quoted(space.key)));
            }
        }
    }

    void checkPages()
    {
        if (order.isEmpty()) {
            report(outline.rootLine, QStringLiteral("the keyboard has no pages"));
        }
        for (int page = 0; page < order.size(); ++page) {
            const int id = outline.pages.at(order.at(page)).id;
            if (id != page) {
                report(pageLine(page),
                       QStringLiteral("the page with id %1 is the one that layout=\"%2\" opens")
                           .arg(id)
                           .arg(page));
            }
            if (!typing.pages.contains(page)) {
                report(pageLine(page),
                       QStringLiteral("this page cannot be reached, as no key leads to it"));
            }
            if (typing.traps.contains(page)) {
                report(pageLine(page),
                       QStringLiteral("no key leads from this page back to the first one"));
            }
        }
    }

    void checkKey(const ZEMVirtualKey &key, int line)
    {
        if (key.type() == ZEMVirtualKey::Layout && key.layoutId() >= order.size()) {
            report(line,
                   QStringLiteral("the key %1 does nothing, as there is no page %2")
                       .arg(quoted(key.name()))
                       .arg(key.layoutId()));
        }
        if (key.type() == ZEMVirtualKey::Character) {
            checkCharacter(key.name(), line);
        }
        checkAlternates(key, line);
    }

    void checkCharacter(const QString &name, int line)
    {
        if (name.isEmpty()) {
            report(line, QStringLiteral("this key has no character to type"));
        } else if (name.at(0).isSurrogate()) {
            report(line,
                   QStringLiteral("%1 cannot be typed, as it is beyond U+FFFF").arg(quoted(name)));
        } else if (name.size() > 1) {
            QString text = QStringLiteral("the key %1 types only its first character, %2")
                               .arg(quoted(name), quoted(name.at(0)));
            const QStringList words {QStringLiteral("CAPS"), QStringLiteral("DELETE"),
                                     QStringLiteral("ENTER"), QStringLiteral("SPACE")};
            if (words.contains(name.toUpper())) {
                text += QStringLiteral("; the special key is %1").arg(quoted(name.toUpper()));
            }
            report(line, text);
        }
    }

    void checkAlternates(const ZEMVirtualKey &key, int line)
    {
        if (!key.hasAlternateKeys()) {
            return;
        }
        const QString alternates = quoted(key.alternateKeys());
        if (key.alternateKeys().isEmpty()) {
            report(line, QStringLiteral("this key opens an empty panel of alternatives"));
        } else if (key.type() != ZEMVirtualKey::Character) {
            report(
                line,
                QStringLiteral("the alternatives %1 cannot be reached, as %2 is not the key of a "
                               "character")
                    .arg(alternates, quoted(key.name())));
        } else if (!outline.alternatives) {
            report(line,
                   QStringLiteral("the alternatives %1 cannot be reached, as the keyboard has "
                                  "popup=\"0\"")
                       .arg(alternates));
        } else if (hasSurrogate(key.alternateKeys())) {
            report(line,
                   QStringLiteral("among the alternatives %1 is one beyond U+FFFF, which cannot be "
                                  "typed")
                       .arg(alternates));
        }
    }

    void checkChanges()
    {
        for (const Typing::Change &change : std::as_const(typing.changes)) {
            report(keyLine(change.page, change.key),
                   QStringLiteral("%1 becomes %2 once capitals have been switched on and off")
                       .arg(quoted(change.before), quoted(change.after)));
        }
    }

    /** Passwords need all of them; a keypad for numbers need not have them. */
    void checkAscii()
    {
        const bool hasLetters = std::any_of(typing.characters.cbegin(), typing.characters.cend(),
                                            [](QChar c) { return c.isLetter(); });
        QStringList missing;
        for (char16_t code = firstPrintable; hasLetters && code <= lastPrintable; ++code) {
            const QChar character(code);
            if (!typing.characters.contains(character)) {
                missing.append(character == QLatin1Char(' ') ? QStringLiteral("space")
                                                             : QString(character));
            }
        }
        if (!missing.isEmpty()) {
            report(outline.rootLine,
                   QStringLiteral("cannot be typed: %1").arg(missing.join(QLatin1Char(' '))));
        }
    }

    void checkSizes()
    {
        for (ShownKeyboard *each : {&keyboard, &flipping}) {
            for (int page = 0; page < order.size(); ++page) {
                each->open(page, ZEMVirtualKeyboard::CapsOff);
                checkSizesOfPage(*each, page);
            }
        }
        const QSize needed = keyboard.neededSize().expandedTo(flipping.neededSize());
        if (needed.width() > size.width() || needed.height() > size.height()) {
            report(outline.rootLine,
                   QStringLiteral("the keyboard with its dialog needs %1 pixels and does not fit "
                                  "into %2")
                       .arg(inWords(needed), inWords(size)));
        }
    }

    void checkSizesOfPage(const ShownKeyboard &shown, int page)
    {
        const QList<ZEMVirtualKey *> keys = shown.keys(page);
        for (int i = 0; i < keys.size(); ++i) {
            if (isTooSmall(keys.at(i)->size())) {
                report(keyLine(page, i),
                       QStringLiteral("the key %1 has %2 pixels; a finger needs %3")
                           .arg(quoted(keys.at(i)->name()), inWords(keys.at(i)->size()),
                                inWords({fingerWidth, fingerWidth})));
            }
        }
    }

    const KeyboardOutline outline;
    const QVector<int> order;
    ShownKeyboard keyboard;
    ShownKeyboard flipping;
    const QSize size;
    Typing typing;
    QVector<Finding> findings;
};

} // namespace

bool isTooSmall(const QSize &size)
{
    return size.width() < fingerWidth || size.height() < fingerWidth;
}

KeyboardReport checkKeyboard(const QString &fileName, const QSize &size)
{
    const KeyboardOutline outline = readOutline(fileName);
    KeyboardReport report;
    if (!outline.problem.isEmpty()) {
        report.problem = outline.problemLine > 0
            ? QStringLiteral("%1:%2: %3")
                  .arg(fileName)
                  .arg(outline.problemLine)
                  .arg(outline.problem)
            : QStringLiteral("%1: %2").arg(fileName, outline.problem);
        return report;
    }
    Checker checker(outline, fileName, size);
    if (!checker.isLoaded()) {
        report.problem = QStringLiteral("%1: the keyboard cannot load it").arg(fileName);
        return report;
    }
    report.findings = checker.check();
    return report;
}
