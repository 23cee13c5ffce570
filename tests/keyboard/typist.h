// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef TYPIST_H
#define TYPIST_H

#include "holdtimer.h"
#include "zemtest.h"

#include <KeyboardFactoryDefault>
#include <ZEMLineEditDialog>
#include <ZEMVirtualKey>
#include <ZEMVirtualKeyboard>

#include <QCoreApplication>
#include <QLineEdit>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>
#include <QVector>

#include <memory>
#include <utility>

/** Types on a keyboard in its dialog, on a page of 640 by 480 pixels, with a finger. */
class Typist
{
public:
    using PopupStyle = ZEMVirtualKeyboardFactoryIntf::KeyboardPopupStyle;

    /** @p language as KeyboardFactoryDefault takes it, "ascii" and "numpad" included. */
    Typist(const QString &directory, const QString &language,
           PopupStyle style = ZEMVirtualKeyboardFactoryIntf::PopupAbove)
        : factory(directory, language), keyboard(factory.createKeyboard(style))
    {
        host.resize(640, 480);
        dialog = new ZEMLineEditDialog(keyboard, &host);
        dialog->setAutoSelect(false);
        dialog->setGeometry(host.rect());
        stack = keyboard->findChild<QStackedWidget *>();
        timer = keyboard->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
        timer->setInterval(3600000); // ms, so that a tap is one on the slowest machine
        field = dialog->findChild<QLineEdit *>();
    }

    bool show()
    {
        host.show();
        return QTest::qWaitForWindowExposed(&host, ZemTest::hangs);
    }

    QList<ZEMVirtualKey *> keys(int page) const
    {
        return stack->widget(page)->findChildren<ZEMVirtualKey *>();
    }
    QList<ZEMVirtualKey *> allKeys() const { return stack->findChildren<ZEMVirtualKey *>(); }

    /** What is in the field after @p text was typed into it; less if there is no way to type it. */
    QString type(const QString &text)
    {
        field->clear();
        for (const QChar character : text) {
            if (!typeCharacter(character)) {
                break;
            }
        }
        return field->text();
    }

    void tap(ZEMVirtualKey *key) const
    {
        ZemTest::press(key, key->rect().center());
        ZemTest::release(key, key->rect().center());
        QCoreApplication::sendPostedEvents();
    }

    /** Opens the page @p target by the keys that lead there. */
    bool goTo(int target)
    {
        QVector<int> seen {stack->currentIndex()};
        QVector<QVector<ZEMVirtualKey *>> ways {{}};
        for (int i = 0; i < seen.size(); ++i) {
            if (seen.at(i) == target) {
                for (ZEMVirtualKey *key : std::as_const(ways[i])) {
                    tap(key);
                }
                return stack->currentIndex() == target;
            }
            for (ZEMVirtualKey *key : keys(seen.at(i))) {
                if (key->type() == ZEMVirtualKey::Layout && key->layoutId() < stack->count()
                    && !seen.contains(key->layoutId())) {
                    seen.append(key->layoutId());
                    ways.append(ways.at(i) + QVector<ZEMVirtualKey *> {key});
                }
            }
        }
        return false;
    }

    KeyboardFactoryDefault factory;
    QWidget host;
    ZEMVirtualKeyboard *keyboard;
    ZEMLineEditDialog *dialog;
    QStackedWidget *stack;
    QTimer *timer;
    QLineEdit *field;

private:
    struct Place
    {
        int page = -1;
        ZEMVirtualKey *key = nullptr;
        bool alternate = false;
    };

    /** The key for @p character, rather a key of its own than an alternative. */
    Place find(QChar character) const
    {
        for (const bool alternate : {false, true}) {
            for (int page = 0; page < stack->count(); ++page) {
                for (ZEMVirtualKey *key : keys(page)) {
                    const bool blank =
                        character == QLatin1Char(' ') && key->type() == ZEMVirtualKey::Space;
                    const QString offered = alternate ? key->alternateKeys() : key->key();
                    if (blank
                        || (key->type() == ZEMVirtualKey::Character
                            && offered.contains(character, Qt::CaseInsensitive))) {
                        return {page, key, alternate};
                    }
                }
            }
        }
        return {};
    }

    ZEMVirtualKey *capsKey(int *page) const
    {
        for (*page = 0; *page < stack->count(); ++*page) {
            for (ZEMVirtualKey *key : keys(*page)) {
                if (key->type() == ZEMVirtualKey::Caps) {
                    return key;
                }
            }
        }
        return nullptr;
    }

    bool tapCaps(int times)
    {
        int page = 0;
        ZEMVirtualKey *caps = capsKey(&page);
        if (!caps || !goTo(page)) {
            return false;
        }
        for (int i = 0; i < times; ++i) {
            tap(caps);
        }
        return true;
    }

    bool typeCharacter(QChar character)
    {
        const Place place = find(character);
        const bool capital = character.toLower() != character;
        if (!place.key || (capital && !tapCaps(1)) || !goTo(place.page)) {
            return false;
        }
        if (!place.alternate) {
            tap(place.key);
            return true;
        }
        // One capital is not used up by an alternative: two more taps end it.
        return pick(place.key, character) && (!capital || tapCaps(2));
    }

    /** Holds @p key and takes @p character from the panel. */
    bool pick(ZEMVirtualKey *key, QChar character)
    {
        ZemTest::press(key, key->rect().center());
        if (!timer->isActive()) {
            return false;
        }
        const bool ranOut = letHoldPass(timer);
        ZemTest::release(key, key->rect().center());
        for (ZEMVirtualKey *each : dialog->findChildren<ZEMVirtualKey *>()) {
            if (ranOut && each->name().isNull() && each->isVisible() && each->key() == character) {
                tap(each);
                return true;
            }
        }
        return false;
    }
};

#endif
