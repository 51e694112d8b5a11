// Where a window comes up: where it was closed last, but always where the mouse can take hold of
// it. And how it comes back.
#pragma once

#include "core/ports/window_host.h"

#include <vector>

namespace zephyne {

struct Place;

// The left and top edge of a window, twips.
struct Corner {
    int left = 0;
    int top = 0;
    bool operator==(const Corner&) const = default;
};

// The corner that puts the form in the middle of the first screen.
Corner centred(const Form& form, const WindowHost& windows);

// Moves the form there.
void centre(Form& form, const WindowHost& windows);

// Moves the form to its saved corner, each edge for itself where it is saved (not 0), else to the
// usual one. A corner saved on another scale or on a screen that is gone is not taken as it is:
// see reachable().
void put_in_place(Form& form, const WindowHost& windows, Corner saved, Corner usual);

// Brings the form back from wherever it is, hidden or minimised, in front and with the keyboard.
void bring_back(Form& form, WindowHost& windows);

// The corner of that place while enough of its title bar lies on one of the screens. Otherwise that
// of the nearest place on the screen that shows most of the window, or on the first one. Without
// any screen, the corner as it is.
Corner reachable(const Place& place, const std::vector<Place>& screens);

}  // namespace zephyne
