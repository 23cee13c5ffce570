// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef LIVEMETER_H
#define LIVEMETER_H

#include "p1telegram.h"

#include <QObject>

namespace Readings {
class Household;
}

/** What a source knows of the power in a house beside that of the grid, in W. */
struct HousePower
{
    std::optional<double> production;
    std::optional<double> battery; ///< less than 0 while it is charged
    std::optional<double> car;
};

/** A household's meter that is followed, in whatever way it is reached. */
class LiveMeter : public QObject
{
    Q_OBJECT

public:
    explicit LiveMeter(QObject *parent = nullptr) : QObject(parent) { }

    /** Told once before start(): all that is known from earlier days. */
    virtual void goOnFrom(const Readings::Household &) { }
    /** Whether it has told something and has not fallen silent since. */
    virtual bool isMetering() const = 0;
    /** As told together with the last telegram. */
    virtual HousePower housePower() const { return {}; }

public Q_SLOTS:
    /** Begins to follow, soon. To be called once. */
    virtual void start() = 0;

Q_SIGNALS:
    /** Good readings, of one moment. */
    void telegram(const P1Telegram &telegram);
    /**
     * One line: "ADDRESS: what is wrong". Lines of one @p kind are news of the same thing, of which
     * the last is worth reading; a line without one is of its own kind.
     */
    void problem(const QString &line, const QString &kind = QString());
    /**
     * True when nothing good has come for long, false with the next good thing, just before
     * telegram(). Only changes are told, and in the beginning it has not failed.
     */
    void meteringFailed(bool failed);
    /** Nothing follows, ever, as at the end of a file. */
    void ended();
};

#endif
