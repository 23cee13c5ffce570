// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "lifetime.h"

#include <QTest>

using namespace Lifetime;

namespace {

/** Tells of an answer, and says nothing after it. */
class Oracle : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

Q_SIGNALS:
    void answered(const QString &text);
    void silent();
};

/** Refuses to die. */
class Immortal : public Oracle
{
public:
    using Oracle::Oracle;

protected:
    bool event(QEvent *event) override
    {
        return event->type() == QEvent::DeferredDelete || Oracle::event(event);
    }
};

template <class Kind>
Stage stageOf()
{
    QWidget *page = shownPage();
    auto *oracle = new Kind(page);
    return {page, oracle, [oracle] { Q_EMIT oracle->answered(QStringLiteral("yes")); }};
}

} // namespace

/** The kit for objects that end while one of their signals is delivered, on an object that may. */
class tst_Lifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void objectEnds_data();
    void objectEnds();
    void unknownSignalIsTold();
    void signalThatIsNotEmittedIsTold();
    void objectThatLivesOnIsTold();
    void unheardSignalsAreNamed();
};

void tst_Lifetime::objectEnds_data()
{
    QTest::addColumn<int>("end");
    for (const End end : {End::Delete, End::DeleteLater, End::DeletePage}) {
        QTest::newRow(nameOf(end)) << int(end);
    }
}

void tst_Lifetime::objectEnds()
{
    QFETCH(int, end);
    const Stage stage = stageOf<Oracle>();
    QCOMPARE(endIn(stage, "answered(QString)", End(end)), QString());
    QVERIFY(stage.object.isNull());
    QVERIFY(stage.page.isNull());
}

void tst_Lifetime::unknownSignalIsTold()
{
    const Stage stage = stageOf<Oracle>();
    const QString fault = endIn(stage, "asked(QString)", End::Delete);
    QVERIFY2(fault.endsWith(QStringLiteral("has no signal asked(QString)")), qPrintable(fault));
    delete stage.page;
}

void tst_Lifetime::signalThatIsNotEmittedIsTold()
{
    QCOMPARE(endIn(stageOf<Oracle>(), "silent()", End::Delete),
             QStringLiteral("silent() was not emitted"));
}

void tst_Lifetime::objectThatLivesOnIsTold()
{
    QCOMPARE(endIn(stageOf<Immortal>(), "answered(QString)", End::DeleteLater),
             QStringLiteral("what should end lives on"));
}

void tst_Lifetime::unheardSignalsAreNamed()
{
    const QMetaObject &oracle = Oracle::staticMetaObject;
    const QMetaObject &widget = QWidget::staticMetaObject;
    QCOMPARE(unheardSignals(oracle, widget, {"answered(QString)"}),
             QStringList(QStringLiteral("silent()")));
    QCOMPARE(unheardSignals(oracle, widget, {"answered(QString)", "silent()"}), QStringList());
}

QTEST_MAIN(tst_Lifetime)
#include "tst_lifetime.moc"
