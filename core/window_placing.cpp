#include "core/window_placing.h"

#include "core/controls/form.h"

#include <algorithm>
#include <cstdint>

namespace zephyne {
namespace {

// The piece of a title bar that a hand still finds.
constexpr int kGripWidth = 1500;
constexpr int kGripHeight = kTitleBarHeight / 2;

struct Overlap {
    std::int64_t width = 0;
    std::int64_t height = 0;
};

// A saved edge may be any number at all.
std::int64_t shared(std::int64_t from, std::int64_t length, std::int64_t other_from,
                    std::int64_t other_length) {
    const std::int64_t end = std::min(from + length, other_from + other_length);
    return std::max<std::int64_t>(0, end - std::max(from, other_from));
}

Overlap overlap(const Place& a, const Place& b) {
    return {shared(a.left, a.width, b.left, b.width), shared(a.top, a.height, b.top, b.height)};
}

bool can_be_gripped(const Place& window, const Place& screen) {
    const Place title_bar{window.left, window.top, window.width, kTitleBarHeight};
    const Overlap grip = overlap(title_bar, screen);
    return grip.width >= std::min(window.width, kGripWidth) && grip.height >= kGripHeight;
}

// A window larger than the screen begins with it.
int nearest(int from, int length, int screen_from, int screen_length) {
    return std::max(screen_from, std::min(from, screen_from + screen_length - length));
}

}  // namespace

Corner centred(const Form& form, const WindowHost& windows) {
    const TwipsSize screen = windows.screen();
    return {(screen.width - form.place().width) / 2, (screen.height - form.place().height) / 2};
}

void centre(Form& form, const WindowHost& windows) {
    put_in_place(form, windows, {}, centred(form, windows));
}

void put_in_place(Form& form, const WindowHost& windows, Corner saved, Corner usual) {
    Place place = form.place();
    place.left = saved.left != 0 ? saved.left : usual.left;
    place.top = saved.top != 0 ? saved.top : usual.top;
    const Corner corner = reachable(place, windows.screens());
    form.move_to(corner.left, corner.top);
}

void bring_back(Form& form, WindowHost& windows) {
    form.set_state(WindowState::normal);
    form.set_visible(true);
    windows.bring_to_front(form);
}

Corner reachable(const Place& place, const std::vector<Place>& screens) {
    const Corner wanted{place.left, place.top};
    const auto grips = [&](const Place& screen) { return can_be_gripped(place, screen); };
    if (screens.empty() || std::any_of(screens.begin(), screens.end(), grips)) return wanted;
    const auto area_on = [&](const Place& screen) {
        const Overlap seen = overlap(place, screen);
        return seen.width * seen.height;
    };
    const auto best =
        std::max_element(screens.begin(), screens.end(),
                         [&](const Place& a, const Place& b) { return area_on(a) < area_on(b); });
    return {nearest(place.left, place.width, best->left, best->width),
            nearest(place.top, place.height, best->top, best->height)};
}

}  // namespace zephyne
