// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DIALOGTEST_H
#define DIALOGTEST_H

#include "formtest.h"
#include "zemtest.h"

#include <ZEMButton>

#include <QTest>
#include <QTimer>
#include <QWidget>

#include <initializer_list>

/** What the tests of the dialogs that wait for their answer share. */
namespace DialogTest {

inline ZEMButton *buttonOf(const QWidget &dialog, const char *name)
{
    return FormTest::part<ZEMButton>(dialog, name);
}

/** A touch on the button of this name, through the window. */
inline void touch(const QWidget &dialog, const char *name)
{
    ZEMButton *button = buttonOf(dialog, name);
    ZemTest::press(button, button->rect().center());
    ZemTest::release(button, button->rect().center());
}

/** Does @p action in the next loop that runs. */
template <typename Action>
void inTheLoop(Action action)
{
    QTimer::singleShot(0, action);
}

/** A page that is shown, to put dialogs on. */
class Page : public QWidget
{
public:
    Page()
    {
        resize(640, 480);
        show();
        isReady = QTest::qWaitForWindowExposed(this, ZemTest::hangs);
    }

    bool isReady = false;
};

/** Checks that exec() shows a modal dialog, on a page and without one, with these buttons enabled.
 */
template <typename Dialog>
void checkExecShowsAModalDialog(std::initializer_list<const char *> buttons)
{
    for (const bool child : {true, false}) {
        Page page;
        Dialog dialog(child ? &page : nullptr);
        for (const char *button : buttons) {
            buttonOf(dialog, button)->setEnabled(false);
        }
        bool done = false;
        inTheLoop([&] {
            QVERIFY(dialog.isVisible());
            QVERIFY(dialog.isModal());
            QVERIFY(dialog.testAttribute(Qt::WA_ShowModal));
            for (const char *button : buttons) {
                QVERIFY(buttonOf(dialog, button)->isEnabled());
            }
            done = true;
            dialog.reset();
        });
        QVERIFY(!dialog.exec());
        QVERIFY(done);
    }
}

/** Ends the program if a loop does not end: no test could go on. */
class Watchdog
{
public:
    Watchdog()
    {
        constexpr int patience = 200000; // ms
        QObject::connect(&timer, &QTimer::timeout, [] { qFatal("A local loop does not end"); });
        timer.start(patience);
    }
    Q_DISABLE_COPY(Watchdog)

private:
    QTimer timer;
};

} // namespace DialogTest

#endif
