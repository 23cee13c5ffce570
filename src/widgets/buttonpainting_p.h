// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef BUTTONPAINTING_P_H
#define BUTTONPAINTING_P_H

#include <QIcon>
#include <QPalette>

/** What the picture buttons draw in which state, without a painter. */
namespace ButtonPainting {

/** All of a button that its look depends on, but for the pictures themselves. */
struct State
{
    bool checkable;
    bool checked; ///< never without checkable
    bool enabled;
    bool hideWhenDisabled;
    bool hideUncheckedIcon;
};

/** Whether the button shows its on look: enabled and, if it is a toggle, checked. */
constexpr bool isOn(const State &state)
{
    return state.enabled && (state.checked || !state.checkable);
}

enum class Background { None, On, Off, Disabled };

/**
 * The background to draw, given which of the pictures for off and disabled there are. Only a toggle
 * has a look of its own for disabled; the picture for on stands in for the others.
 */
constexpr Background background(const State &state, bool hasOff, bool hasDisabled)
{
    if (isOn(state)) {
        return Background::On;
    }
    if (state.hideWhenDisabled) {
        return Background::None;
    }
    if (state.checkable && !state.enabled && hasDisabled) {
        return Background::Disabled;
    }
    return hasOff ? Background::Off : Background::On;
}

struct IconLook
{
    bool drawn;
    QIcon::Mode mode;
    QIcon::State state;
};

/** How the icon is drawn. An unchecked toggle has a disabled-looking icon, enabled or not. */
constexpr IconLook iconLook(const State &state)
{
    const bool unchecked = state.checkable && !state.checked;
    const bool hidden = state.hideWhenDisabled || (unchecked && state.hideUncheckedIcon);
    if (isOn(state)) {
        return {true, QIcon::Normal, QIcon::On};
    }
    return {!hidden, QIcon::Disabled, QIcon::Off};
}

/** The group of the palette that holds the colour of the text. */
constexpr QPalette::ColorGroup textGroup(const State &state)
{
    return isOn(state) ? QPalette::Active : QPalette::Disabled;
}

} // namespace ButtonPainting

#endif
