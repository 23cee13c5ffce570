// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef KEYBOARDPAGE_H
#define KEYBOARDPAGE_H

#include <QPointF>
#include <QWidget>

#include <memory>

/** Keyboards of 45 keys in five rows, made by different means. */
namespace Keyboards {

constexpr int rows = 5;
constexpr int columns = 9;

/** Whether a key that is held shows its character above the finger. */
enum class Popups { None, Shown };

/** A window with a keyboard in it. */
class Page
{
public:
    Page() = default;
    virtual ~Page() = default;

    virtual QWidget *window() = 0;
    virtual QWidget *board() = 0;

private:
    Q_DISABLE_COPY(Page)
};

/** The middle of a key, in the window. */
QPointF keyCentre(int row, int column);

/** The keyboard of the library, loaded from a file. */
std::shared_ptr<Page> libraryPage(Popups popups);

/**
 * The floor: bare buttons that draw a cached picture, pressed or not, and their text, in layouts
 * like those of the keyboard. All of its pixels are those of libraryPage().
 */
std::shared_ptr<Page> barePage(Popups popups);

/** Push buttons that get another style sheet when they are pressed and released. */
std::shared_ptr<Page> styleSheetPage(Popups popups);

} // namespace Keyboards

#endif
