// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef TAPLIST_P_H
#define TAPLIST_P_H

#include <QListView>

#include <functional>
#include <utility>

/**
 * A list that may be deleted by what a tap leads to. QListView goes on after it has told of a tap,
 * so what the tap asks for waits until the view is through with the release of the finger.
 */
class TapList : public QListView
{
public:
    using QListView::QListView;

    /** Does @p action at the end of the tap that is being told, or at once if there is none. */
    void afterTap(std::function<void()> action)
    {
        if (isReleased) {
            pending = std::move(action);
        } else {
            action();
        }
    }

protected:
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        isReleased = true;
        QListView::mouseReleaseEvent(event);
        isReleased = false;
        if (const auto action = std::exchange(pending, nullptr)) {
            action();
        }
    }

private:
    std::function<void()> pending;
    bool isReleased = false;
};

#endif
