// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef P1LINK_H
#define P1LINK_H

#include <QByteArray>
#include <QObject>
#include <QString>

/** Where the bytes of a smart meter come from. See P1Source, which is how the host uses it. */
class P1Link : public QObject
{
    Q_OBJECT

public:
    explicit P1Link(QObject *parent = nullptr) : QObject(parent) { }
    ~P1Link() override = default;
    Q_DISABLE_COPY(P1Link)

    /** Begins; called once. Nothing is emitted before the event loop has run. */
    virtual void start() = 0;
    /** Told with each good telegram. */
    virtual void confirm() { }
    /** Told whenever no good telegram has come for long: the time to try the link anew. */
    virtual void renew() { }

Q_SIGNALS:
    void received(const QByteArray &bytes);
    /** What comes next does not continue what came before. */
    void interrupted();
    /** What hinders, in English; told once until the link works again. */
    void problem(const QString &what);
    /** Nothing will follow, ever. */
    void ended();
};

#endif
