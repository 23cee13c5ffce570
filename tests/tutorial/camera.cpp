// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// Linked with a program of the tutorial, it takes a picture of the page and ends the program: to
// the file ZEM_PICTURE, after a touch on the button that ZEM_TOUCH names.

#include <QAbstractButton>
#include <QApplication>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

namespace {

constexpr int timeToSettle = 600; // milliseconds, in which layouts are done

[[noreturn]] void end(const char *problem)
{
    if (problem) {
        qCritical("%s", problem);
    }
    // A dialog that waits for an answer would hold exit() of the event loop back.
    std::_Exit(problem ? EXIT_FAILURE : EXIT_SUCCESS);
}

QWidget *page()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible()) {
            return window;
        }
    }
    end("there is no page");
}

void takePicture()
{
    end(page()->grab().save(qEnvironmentVariable("ZEM_PICTURE")) ? nullptr
                                                                 : "cannot write the picture");
}

void touch()
{
    const QString name = qEnvironmentVariable("ZEM_TOUCH");
    QTimer::singleShot(timeToSettle, qApp, &takePicture);
    if (!name.isEmpty()) {
        auto *button = page()->findChild<QAbstractButton *>(name);
        if (!button) {
            end("there is no such button");
        }
        button->click();
    }
}

void start()
{
    // A cursor that blinks would make a picture differ from the next.
    QApplication::setCursorFlashTime(0);
    QTimer::singleShot(0, qApp, &touch);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(start)
