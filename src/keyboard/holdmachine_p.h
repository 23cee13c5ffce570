// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef HOLDMACHINE_P_H
#define HOLDMACHINE_P_H

/**
 * Which key is held, and whether its alternatives may open when the time of a hold is over. Time
 * itself is measured by the owner, with a single timer for all keys.
 */
class HoldMachine
{
public:
    /** The key @p index went down. True if the timer has to be started. */
    bool press(int index, bool offersAlternatives)
    {
        last = index;
        // A second key without alternatives does not end the hold of the first one.
        holding = holding || offersAlternatives;
        return offersAlternatives;
    }

    /** Some key went up, for which the timer has to be stopped. */
    void release() { holding = false; }

    /** The keyboard was hidden. The timer runs on, but to no avail. */
    void hide() { holding = false; }

    /** The timer ran out. True if the alternatives of lastPressed() have to be shown. */
    bool runOut(bool keyboardVisible)
    {
        const bool opens = holding && keyboardVisible;
        holding = false;
        return opens;
    }

    /** The key that went down last, 0 at first. */
    int lastPressed() const { return last; }

private:
    int last = 0;
    bool holding = false;
};

#endif
