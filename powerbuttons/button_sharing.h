// SPDX-License-Identifier: MIT
// From the row of PowerButtons to what is passed on, and back.
#pragma once

#include "powerbuttons/button_file.h"

namespace tolvo {

/// The button of a number from 1 with all that it runs, or the trouble that keeps it from being passed on: it
/// has no steps, or one that could not run elsewhere.
[[nodiscard]] SharedButtons gatherButtons(const CPowerButtonCollection &buttons, int number);

/// Buttons and the numbers, from 1, that they are to have.
struct PlacedButtons {
    struct Place {
        int number;
        std::shared_ptr<CPowerButton> button;
    };
    QList<Place> places; ///< the main one comes last; one that is there already is left out
    QString trouble;     ///< why there are none, for the user
};

/// Finds a place for each of `shared`: the main one takes `number`, whatever is there; the others take empty
/// places, or the place of an equal one.
[[nodiscard]] PlacedButtons placeButtons(const SharedButtons &shared, const CPowerButtonCollection &buttons,
                                         int number);

/// True if nobody has defined the button of a number: it has neither name nor steps.
[[nodiscard]] bool isEmptyPlace(const CPowerButtonCollection &buttons, int number);
/// The first such number; 0 if there is none.
[[nodiscard]] int firstEmptyPlace(const CPowerButtonCollection &buttons);

} // namespace tolvo
