// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEYBOARDTEST_H
#define KEYBOARDTEST_H

#include "holdtimer.h"
#include "zemtest.h"

#include <ZEMVirtualKey>
#include <ZEMVirtualKeyFactoryIntf>
#include <ZEMVirtualKeyboard>

#include <QFile>
#include <QKeyEvent>
#include <QLayout>
#include <QStackedWidget>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QVector>

#include <functional>

/** What the tests of keyboards and their dialogs share. */
namespace KeyboardTest {

constexpr int keySide = 50;
constexpr int popupSide = 40;
constexpr int hSpacing = 7;
constexpr int vSpacing = 9;
constexpr int longHold = 3600000; // ms, so that a tap is one on the slowest machine

ZEM_BEGIN_INTERFACES // the interface has no destructor

/** Makes plain keys of one colour, red while they are pressed, and notes what it is asked for. */
class FlatFactory : public ZEMVirtualKeyFactoryIntf
{
public:
    ZEMVirtualKey *createKey(const QString &name) override
    {
        log.append(QStringLiteral("key ") + name);
        ZEMVirtualKey *key = sized(new ZEMVirtualKey(name), keySide);
        if (withKey) {
            withKey(key);
        }
        return key;
    }
    ZEMVirtualKey *createAlternateKey() override
    {
        log.append(QStringLiteral("alternate"));
        return sized(new ZEMVirtualKey, popupSide);
    }
    ZEMVirtualKey *createPopupKey() override
    {
        log.append(QStringLiteral("popup"));
        preview = hasPreview ? sized(new ZEMVirtualKey, popupSide) : nullptr;
        return preview;
    }
    QWidget *createPopupKeysBackground() override
    {
        log.append(QStringLiteral("background"));
        background = new QWidget;
        background->setObjectName(QStringLiteral("background"));
        return background;
    }
    void changeKeyStylesheet(ZEMVirtualKey *key, bool pressed) override
    {
        looks.append((pressed ? QLatin1Char('+') : QLatin1Char('-')) + key->name());
        key->setBackground(ZemTest::flatPixmap(key->size(), pressed ? Qt::red : Qt::gray));
    }
    int hSpacing() const override
    {
        log.append(QStringLiteral("hSpacing"));
        return KeyboardTest::hSpacing;
    }
    int vSpacing() const override
    {
        log.append(QStringLiteral("vSpacing"));
        return KeyboardTest::vSpacing;
    }

    bool hasPreview = true;
    std::function<void(ZEMVirtualKey *)> withKey; ///< gets each key, if set, before its keyboard
    mutable QStringList log;
    QStringList looks;
    ZEMVirtualKey *preview = nullptr;
    QWidget *background = nullptr;

private:
    static ZEMVirtualKey *sized(ZEMVirtualKey *key, int side)
    {
        key->setFocusPolicy(Qt::NoFocus);
        key->setFixedSize(side, side);
        return key;
    }
};

ZEM_END_INTERFACES

/** A directory for the files of one test. */
class Files
{
public:
    QString path() const { return dir.path(); }

    QString write(const QString &name, const QByteArray &content) const
    {
        QFile file(dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("cannot write a test file");
        }
        return file.fileName();
    }
    QString write(const QByteArray &content) const
    {
        return write(QStringLiteral("keyboard.xml"), content);
    }

private:
    QTemporaryDir dir;
};

inline QByteArray keyboardFile(const QByteArray &rows, const QByteArray &attributes = QByteArray())
{
    return "<keyboard " + attributes + "><layout id=\"0\">" + rows + "</layout></keyboard>";
}

/** A target that keeps the key events it gets, in words. */
class Target : public QWidget
{
public:
    using QWidget::QWidget;

    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::KeyRelease) {
            strokes.append(QStringLiteral("release"));
        }
        if (event->type() == QEvent::KeyPress) {
            const auto *key = static_cast<QKeyEvent *>(event);
            strokes.append(inWords(key));
            texts += key->text();
        }
        return QWidget::event(event);
    }

    /** What was posted to it since the last call. */
    QStringList take()
    {
        QCoreApplication::sendPostedEvents(this);
        const QStringList taken = strokes;
        strokes.clear();
        texts.clear();
        return taken;
    }
    QString takeText()
    {
        QCoreApplication::sendPostedEvents(this);
        const QString taken = texts;
        strokes.clear();
        texts.clear();
        return taken;
    }

    static QString inWords(const QKeyEvent *key)
    {
        QStringList units;
        for (const QChar unit : key->text()) {
            units.append(QString::number(unit.unicode()));
        }
        return QStringLiteral("%1 [%2] %3 %4 %5")
            .arg(key->key())
            .arg(units.join(QLatin1Char(' ')))
            .arg(static_cast<int>(key->modifiers()))
            .arg(key->isAutoRepeat() ? QStringLiteral("repeat") : QStringLiteral("once"))
            .arg(key->count());
    }

private:
    QStringList strokes;
    QString texts;
};

/** The words of Target for a press of @p key with @p text. */
inline QString stroke(int key, const QString &text)
{
    const QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text, false, 1);
    return Target::inWords(&event);
}
inline QString stroke(QChar character)
{
    return stroke(character.unicode(), QString(character));
}

/** Calls the private slot @p slot of @p keyboard, as its mappers do. */
inline void call(ZEMVirtualKeyboard *keyboard, const char *slot, int index)
{
    QVERIFY2(QMetaObject::invokeMethod(keyboard, slot, Qt::DirectConnection, Q_ARG(int, index)),
             slot);
}
inline void call(ZEMVirtualKeyboard *keyboard, const char *slot)
{
    QVERIFY2(QMetaObject::invokeMethod(keyboard, slot, Qt::DirectConnection), slot);
}

/**
 * A keyboard at (30, 100) of a host widget of 640 by 480 pixels, with its popups there and a target
 * for what is typed.
 */
class Board
{
public:
    explicit Board(const QByteArray &rows, const QByteArray &attributes = QByteArray(),
                   bool hasPreview = true)
    {
        factory.hasPreview = hasPreview;
        host.resize(640, 480);
        target = new Target(&host);
        keyboard = new ZEMVirtualKeyboard(&host);
        keyboard->setFactory(&factory);
        loaded = keyboard->load(files.write(keyboardFile(rows, attributes)));
        keyboard->setFocusWidget(target);
        keyboard->setPopupParent(&host);
        keyboard->move(30, 100);
        keyboard->resize(keyboard->sizeHint());
        pages = keyboard->findChild<QStackedWidget *>();
        keys = pages->findChildren<ZEMVirtualKey *>();
        timer = keyboard->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
        timer->setInterval(longHold);
    }

    /** Shows the keyboard and waits for the redraw that each show brings after 50 ms. */
    bool show()
    {
        host.show();
        const bool exposed = QTest::qWaitForWindowExposed(&host, ZemTest::hangs);
        bool isDrawn = false;
        QTimer::singleShot(60, &host, [&] { isDrawn = true; });
        const bool settled = QTest::qWaitFor([&] { return isDrawn; }, ZemTest::hangs);
        factory.looks.clear();
        return loaded && exposed && settled && keyboard->isVisible();
    }

    ZEMVirtualKey *key(const char *name) const
    {
        for (ZEMVirtualKey *candidate : keys) {
            if (candidate->name() == QString::fromUtf8(name)) {
                return candidate;
            }
        }
        qFatal("no such key: %s", name);
    }
    int index(const char *name) const { return keys.indexOf(key(name)); }

    void press(const char *name) const { ZemTest::press(key(name), key(name)->rect().center()); }
    void release(const char *name) const
    {
        ZemTest::release(key(name), key(name)->rect().center());
    }
    void tap(const char *name) const
    {
        press(name);
        release(name);
    }

    bool holdOn() const { return letHoldPass(timer); }

    /** The panel with the alternative characters: the one child with a layout and keys. */
    QWidget *panel() const
    {
        for (QWidget *widget :
             host.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (widget->layout() && widget != keyboard) {
                return widget;
            }
        }
        qFatal("no panel");
    }
    bool isPanelOpen() const { return panel()->isVisible() && factory.background->isVisible(); }
    bool isPanelClosed() const { return !panel()->isVisible() && !factory.background->isVisible(); }

    /** The texts of the panel's keys that are to be seen, from left to right. */
    QString offered() const
    {
        QString texts;
        for (int i = 0; i < panel()->layout()->count(); ++i) {
            texts += alternative(i)->text();
        }
        return texts;
    }
    ZEMVirtualKey *alternative(int place) const
    {
        return qobject_cast<ZEMVirtualKey *>(panel()->layout()->itemAt(place)->widget());
    }

    QString texts() const
    {
        QStringList list;
        for (const ZEMVirtualKey *each : keys) {
            list.append(each->text());
        }
        return list.join(QLatin1Char(' '));
    }

    Files files;
    FlatFactory factory;
    QWidget host;
    Target *target;
    ZEMVirtualKeyboard *keyboard;
    QStackedWidget *pages;
    QList<ZEMVirtualKey *> keys;
    QTimer *timer;
    bool loaded;
};

} // namespace KeyboardTest

Q_DECLARE_METATYPE(ZEMVirtualKey::Type)

#endif
