// Where windows come to life: a desktop, or a test's record of what was shown.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace zephyne {

class Form;
class Label;
struct Place;

struct TwipsSize {
    int width = 0;
    int height = 0;
};

// The bit of an extended window style that gives a window a taskbar button of its own.
inline constexpr std::int32_t kAppWindowStyle = 0x40000;

class WindowHost {
  public:
    virtual ~WindowHost() = default;

    // How high the text of a label is, wrapped to the label's width, in twips.
    virtual int text_height(const Label& label) const = 0;

    // Gives the form a window, hidden until the form is shown; the form outlives it. From now on
    // the window follows the form's and its controls' properties.
    virtual void create(Form& form) = 0;
    virtual void destroy(Form& form) = 0;

    // Shows the form above all others and handles events until it is hidden or unloaded.
    virtual void run_modal(Form& form) = 0;

    // The size of the first screen's free area, in twips.
    virtual TwipsSize screen() const = 0;

    // The free areas of all screens, the first one first, in twips.
    virtual std::vector<Place> screens() const = 0;

    // The extended style of a form's window; takes effect when the window is shown next.
    virtual std::int32_t extended_style(const Form& form) const = 0;
    virtual void set_extended_style(Form& form, std::int32_t style) = 0;

    // Puts the form's window in front of others and gives it the keyboard, from whatever state.
    virtual void bring_to_front(Form& form) = 0;

    // The form of that name that has a window, the one on the screen if there are several; null
    // when there is none.
    virtual Form* find(std::string_view form_name) const = 0;

    // The modal form that alone takes input at present; null when there is none.
    virtual Form* modal_form() const = 0;

    // True when the desktop shows our icon in its notification area, so that a window hidden
    // altogether can be reached again.
    virtual bool reachable_when_hidden() const = 0;
};

}  // namespace zephyne
