// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEYBOARDLOADER_H
#define KEYBOARDLOADER_H

#include "../dashboard/messagelog.h"
#include "keyboardtest.h"

#include <QBoxLayout>

/** What the tests of keyboard files share: a keyboard in words, to be compared. */
namespace KeyboardTest {

inline QString keyInWords(const ZEMVirtualKey *key)
{
    static const char types[] = {'=', 'C', 'D', 'E', 'S', 'L'};
    QString words = QStringLiteral("%1%2%3")
                        .arg(key->name(), QChar::fromLatin1(types[key->type()]))
                        .arg(key->minimumWidth());
    if (key->hasAlternateKeys()) {
        words += QLatin1Char('(') + key->alternateKeys() + QLatin1Char(')');
    }
    return key->layoutId() >= 0 ? words + QStringLiteral("@%1").arg(key->layoutId()) : words;
}

inline QString inWords(const QBoxLayout *layout)
{
    QStringList words;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (const auto *row = qobject_cast<QBoxLayout *>(item->layout())) {
            words.append(QLatin1Char('[') + inWords(row) + QLatin1Char(']'));
        } else if (const auto *key = qobject_cast<ZEMVirtualKey *>(item->widget())) {
            words.append(keyInWords(key));
        } else if (item->spacerItem() && item->sizeHint().width() > 0) {
            words.append(QStringLiteral("_%1").arg(item->sizeHint().width()));
        } else {
            words.append(QStringLiteral("~%1").arg(layout->stretch(i)));
        }
    }
    return words.join(QLatin1Char(' '));
}

/** Pages in the order of the stack with "|" between them, rows in brackets, "~" for a stretch. */
inline QString inWords(const ZEMVirtualKeyboard &keyboard)
{
    const auto *pages = keyboard.findChild<QStackedWidget *>();
    QStringList words;
    for (int i = 0; i < pages->count(); ++i) {
        words.append(inWords(qobject_cast<QBoxLayout *>(pages->widget(i)->layout())));
    }
    return words.isEmpty() ? QStringLiteral("no pages") : words.join(QLatin1Char('|'));
}

/** A keyboard that was told to load one file, and what was said about it. */
class Loader
{
public:
    explicit Loader(const QByteArray &content)
    {
        keyboard.setFactory(&factory);
        MessageLog log;
        loaded = keyboard.load(files.write(content));
        messages = log.take();
    }

    Files files;
    FlatFactory factory;
    ZEMVirtualKeyboard keyboard;
    bool loaded;
    QStringList messages;
};

inline QByteArray nested(const QByteArray &open, const QByteArray &inside, const QByteArray &close,
                         int depth)
{
    return open.repeated(depth) + inside + close.repeated(depth);
}

} // namespace KeyboardTest

#endif
