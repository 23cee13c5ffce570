// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "dialogtest.h"
#include "modalloop_p.h"

#include <ZEMButton>
#include <ZEMDialogPopup>
#include <ZEMDialogShowText>

#include <QApplication>
#include <QPointer>
#include <QStringList>
#include <QTest>

#include <functional>
#include <memory>

using namespace DialogTest;

namespace {

/** The least that a dialog does with its loop. */
class Question : public QWidget
{
public:
    explicit Question(QWidget *parent) : QWidget(parent) { hide(); }

    bool exec()
    {
        show();
        accepted = false;
        return loop.run(this) && accepted;
    }
    void accept()
    {
        accepted = true;
        reset();
    }
    void reset()
    {
        loop.exit();
        hide();
    }

private:
    ModalLoop loop;
    bool accepted = false;
};

void acceptIn(Question *question)
{
    question->accept();
}

template <typename Dialog>
void acceptIn(Dialog *dialog)
{
    touch(*dialog, "btnAccepted");
}

/** One of the classes with a loop, as if they had a base in common. */
struct Kind
{
    std::function<QWidget *(QWidget *)> make;
    std::function<bool(QWidget *)> exec;
    std::function<void(QWidget *)> accept;
    std::function<void(QWidget *)> reset;
};

template <typename Dialog>
Kind kind()
{
    const auto cast = [](QWidget *dialog) { return static_cast<Dialog *>(dialog); };
    return {[](QWidget *page) { return new Dialog(page); },
            [cast](QWidget *dialog) { return cast(dialog)->exec(); },
            [cast](QWidget *dialog) { acceptIn(cast(dialog)); },
            [cast](QWidget *dialog) { cast(dialog)->reset(); }};
}

Kind kindInRow()
{
    const QByteArray name = QByteArray(QTest::currentDataTag()).split(',').constFirst();
    if (name == "ZEMDialogPopup") {
        return kind<ZEMDialogPopup>();
    }
    return name == "ZEMDialogShowText" ? kind<ZEMDialogShowText>() : kind<Question>();
}

/** A dialog of the kind of the present row, on a page. */
class Asked
{
public:
    Asked() : dialog(kind.make(&page)) { }

    /** "outer accepted" or just "outer", as the dialog that is called so was answered. */
    QString ask(const char *name, QWidget *asked) const
    {
        const bool accepted = kind.exec(asked);
        return QLatin1String(name) + (accepted ? QStringLiteral(" accepted") : QString());
    }
    bool ask() const { return kind.exec(dialog); }
    void accept() const { kind.accept(dialog); }
    void reset() const { kind.reset(dialog); }

    Kind kind = kindInRow();
    Page page;
    QPointer<QWidget> dialog;
};

void rows()
{
    QTest::addColumn<bool>("later");
    QTest::newRow("ModalLoop") << false;
    QTest::newRow("ZEMDialogPopup") << false;
    QTest::newRow("ZEMDialogShowText") << false;
}

} // namespace

/** The loop alone and in the dialogs that wait in it. */
class tst_ModalLoop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { watchdog = std::make_unique<Watchdog>(); }
    void cleanup() { watchdog.reset(); }

    void resetEndsTheLoop_data() { rows(); }
    void resetEndsTheLoop();
    void everyLoopBeginsAnew_data() { rows(); }
    void everyLoopBeginsAnew();
    void displayLivesOnMeanwhile_data() { rows(); }
    void displayLivesOnMeanwhile();
    void hidingDoesNotEndTheLoop_data() { rows(); }
    void hidingDoesNotEndTheLoop();
    void resetWithoutALoopHides_data() { rows(); }
    void resetWithoutALoopHides();
    void resetOfOneDialogLeavesTheOther_data() { rows(); }
    void resetOfOneDialogLeavesTheOther();
    void outerDialogEndsAfterTheInner_data() { rows(); }
    void outerDialogEndsAfterTheInner();
    void nestedCallsOfOneDialogEndTheInnerOnly_data() { rows(); }
    void nestedCallsOfOneDialogEndTheInnerOnly();
    void deletedDialogEndsItsLoop_data();
    void deletedDialogEndsItsLoop();
    void deletedPageEndsTheLoopOfItsDialog_data() { rows(); }
    void deletedPageEndsTheLoopOfItsDialog();
    void deletedDialogEndsAllOfItsLoops_data() { rows(); }
    void deletedDialogEndsAllOfItsLoops();
    void quitOfTheHostEndsTheLoop_data() { rows(); }
    void quitOfTheHostEndsTheLoop();

private:
    std::unique_ptr<Watchdog> watchdog;
};

void tst_ModalLoop::resetEndsTheLoop()
{
    Asked asked;
    QTimer timer;
    connect(&timer, &QTimer::timeout, asked.dialog, [&] { asked.reset(); });
    timer.start(10);
    QVERIFY(!asked.ask());
    QVERIFY(asked.dialog->isHidden());
    timer.stop();

    // From a slot of the host, which is told by another widget.
    ZEMButton other(&asked.page);
    connect(&other, &ZEMButton::clicked, asked.dialog, [&] { asked.reset(); });
    inTheLoop([&] { other.click(); });
    QVERIFY(!asked.ask());
    QVERIFY(asked.dialog->isHidden());
}

void tst_ModalLoop::everyLoopBeginsAnew()
{
    const Asked asked;
    for (int round = 0; round < 2; ++round) {
        inTheLoop([&] { asked.accept(); });
        QVERIFY(asked.ask());
        inTheLoop([&] { asked.reset(); });
        QVERIFY(!asked.ask());
    }
}

void tst_ModalLoop::displayLivesOnMeanwhile()
{
    const Asked asked;
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, asked.dialog, [&] {
        if (++ticks == 5) {
            asked.reset();
        }
    });
    timer.start(1);
    QVERIFY(!asked.ask());
    QCOMPARE(ticks, 5);
}

void tst_ModalLoop::hidingDoesNotEndTheLoop()
{
    const Asked asked;
    bool stillRunning = false;
    inTheLoop([&] {
        asked.dialog->hide();
        QTimer::singleShot(20, asked.dialog, [&] {
            stillRunning = true;
            asked.reset();
        });
    });
    QVERIFY(!asked.ask());
    QVERIFY(stillRunning);
}

void tst_ModalLoop::resetWithoutALoopHides()
{
    const Asked asked;
    asked.reset();
    QVERIFY(!asked.dialog->isVisible());
    asked.dialog->show();
    asked.reset();
    QVERIFY(asked.dialog->isHidden());
    asked.reset();
    QVERIFY(asked.dialog->isHidden());

    // A loop that has ended is not touched again, and a later one is not ended by an old reset.
    for (int round = 0; round < 2; ++round) {
        inTheLoop([&] { asked.accept(); });
        QVERIFY(asked.ask());
        asked.reset();
    }
}

void tst_ModalLoop::resetOfOneDialogLeavesTheOther()
{
    const Asked first;
    const Asked second;
    bool stillRunning = false;
    inTheLoop([&] {
        second.reset();
        QTimer::singleShot(10, first.dialog, [&] {
            stillRunning = first.dialog->isVisible();
            first.accept();
        });
    });
    QVERIFY(first.ask());
    QVERIFY(stillRunning);
}

void tst_ModalLoop::outerDialogEndsAfterTheInner()
{
    Asked outer;
    QWidget *inner = outer.kind.make(&outer.page);
    QStringList order;
    inTheLoop([&] {
        inTheLoop([&] {
            outer.reset(); // its loop waits for the inner one
            order.append(QStringLiteral("outer reset"));
            QTimer::singleShot(10, inner, [&] { outer.kind.accept(inner); });
        });
        order.append(outer.ask("inner", inner));
    });
    order.append(outer.ask("outer", outer.dialog));
    QCOMPARE(order, FormTest::strings({"outer reset", "inner accepted", "outer"}));
}

void tst_ModalLoop::nestedCallsOfOneDialogEndTheInnerOnly()
{
    Asked asked;
    QStringList order;
    inTheLoop([&] {
        inTheLoop([&] { asked.accept(); });
        order.append(asked.ask("inner", asked.dialog));
        asked.reset(); // finds no loop any more
        QTimer::singleShot(20, &asked.page, [&] {
            order.append(QStringLiteral("outer still runs"));
            delete asked.dialog;
        });
    });
    order.append(asked.ask("outer", asked.dialog));
    QCOMPARE(order, FormTest::strings({"inner accepted", "outer still runs", "outer"}));
}

void tst_ModalLoop::deletedDialogEndsItsLoop_data()
{
    rows();
    QTest::newRow("ModalLoop, later") << true;
    QTest::newRow("ZEMDialogPopup, later") << true;
    QTest::newRow("ZEMDialogShowText, later") << true;
}

void tst_ModalLoop::deletedDialogEndsItsLoop()
{
    QFETCH(bool, later);
    const Asked asked;
    inTheLoop([&] {
        if (later) {
            asked.dialog->deleteLater();
        } else {
            delete asked.dialog;
        }
    });
    QVERIFY(!asked.ask());
    QVERIFY(asked.dialog.isNull());
}

void tst_ModalLoop::deletedPageEndsTheLoopOfItsDialog()
{
    auto *page = new Page;
    const Kind kind = kindInRow();
    const QPointer<QWidget> dialog = kind.make(page);
    inTheLoop([&] { delete page; });
    QVERIFY(!kind.exec(dialog));
    QVERIFY(dialog.isNull());
}

void tst_ModalLoop::deletedDialogEndsAllOfItsLoops()
{
    const Asked asked;
    QStringList order;
    inTheLoop([&] {
        inTheLoop([&] { delete asked.dialog; });
        order.append(asked.ask("inner", asked.dialog));
    });
    order.append(asked.ask("outer", asked.dialog));
    QCOMPARE(order, FormTest::strings({"inner", "outer"}));
}

void tst_ModalLoop::quitOfTheHostEndsTheLoop()
{
    const Asked asked;
    for (const int code : {0, 3}) {
        bool answer = true;
        bool returned = false;
        inTheLoop([&] {
            inTheLoop([code] { QCoreApplication::exit(code); });
            answer = asked.ask();
            returned = true;
        });
        QCOMPARE(QApplication::exec(), code);
        QVERIFY(returned);
        QVERIFY(!answer);
    }

    // The loops are gone, so a late reset does no harm, and the dialog can be used again.
    asked.reset();
    QVERIFY(asked.dialog->isHidden());
    inTheLoop([&] { asked.accept(); });
    QVERIFY(asked.ask());
}

QTEST_MAIN(tst_ModalLoop)
#include "tst_modalloop.moc"
