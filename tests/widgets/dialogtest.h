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
        isReady = QTest::qWaitForWindowExposed(this);
    }

    bool isReady = false;
};

/** Ends the program if a loop does not end: no test could go on. */
class Watchdog
{
public:
    Watchdog()
    {
        constexpr int patience = 20000; // ms
        QObject::connect(&timer, &QTimer::timeout, [] { qFatal("A local loop does not end"); });
        timer.start(patience);
    }
    Q_DISABLE_COPY(Watchdog)

private:
    QTimer timer;
};

} // namespace DialogTest

#endif
