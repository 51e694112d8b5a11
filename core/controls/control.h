// Controls: the objects that the logic reads and writes, without any toolkit.
//
// A control is program state: a caption that says "Play", a disabled key, a selected row. The
// logic sets properties; the user acts (click(), type(), drag_to()). The two are different calls,
// and each control decides once which of them raises an event: setting a list's selection, a box's
// value, a slider's value or a folder from code raises the same change event as the user's act,
// as the old platform did, and that is what flags such as SwitchingSong and SliderSync are for.
//
// A change of a property notifies at most one observer, the mirror that shows the control. A
// mirror reads the whole state when it attaches, and never sets a property itself.
//
// Places are twips (1/1440 inch; 15 are one pixel at 100 %), relative to the form's client area.
// Controls belong to their form, which outlives no handler of theirs. User-interface thread only.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace zephyne {

class Control;
class Form;

struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Place&) const = default;
};

// Pixels at 100 % by which the painted box is smaller than the control. For aligned edges.
struct Inset {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

enum class ControlKind {
    label,
    button,
    check_box,
    option_button,
    text_box,
    list_box,
    drive_list,
    dir_list,
    slider,
    frame,
    picture,
    transport,
    shape,
    line,
};

// The looks that a kind comes in.
enum class Style {
    plain,
    led_caption,  // label in the LED colour, at the left
    led_value,    // the same, heavier, at the right
    strong,       // label with a heavier weight
    heading,      // label above a box
    notice,       // label with several lines
    brand,        // the name on the faceplate
    message,      // text of the message box; its size is font_points()
    glass,        // shape or text box as black glass
    lock,         // check box drawn as a key with a padlock
    reset,        // key with the reset glyph
    ribbon,       // two-state key with a glyph
};

enum class Property {
    place,
    visible,
    enabled,  // also when an enclosing frame changed, or the control got its first listener
    caption,
    tooltip,
    colour,
    value,
    items,
    selection,
    text,
    image,
    focus,
    font,
    title,
    state,
    style,
};

class ControlObserver {
  public:
    virtual ~ControlObserver() = default;
    virtual void property_changed(Property property) = 0;

    // The observed control or form is about to end; it must not be touched any more.
    virtual void subject_gone() {}
};

enum class TabStop { no, yes };
enum class Shown { yes, no };

// 0xRRGGBB
using Colour = std::uint32_t;

// One row of a window's sheet.
struct ControlDesign {
    std::string_view name;
    Place place{};
    std::string_view caption{};
    int tab = -1;  // place in the tab order; -1: none
    TabStop stop = TabStop::no;
    Shown shown = Shown::yes;
    Style style = Style::plain;
    Inset inset{};
    Control* frame = nullptr;  // the frame that encloses it
};

class Control {
  public:
    Control(Form& form, ControlKind kind, const ControlDesign& design);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    // As the design gives them.
    const std::string& name() const { return name_; }
    ControlKind kind() const { return kind_; }
    Style style() const { return style_; }
    const Inset& inset() const { return inset_; }
    int tab() const { return tab_; }
    TabStop tab_stop() const { return tab_stop_; }
    Control* frame() const { return frame_; }
    Form& form() const { return form_; }

    const Place& place() const { return place_; }
    void set_place(const Place& place);
    void set_left(int left);
    void set_top(int top);
    void set_width(int width);
    void set_height(int height);

    bool visible() const { return visible_; }
    void set_visible(bool visible);
    bool shown() const;  // visible, and so is the frame around it

    // What the logic has set.
    bool enabled() const { return enabled_; }
    void set_enabled(bool enabled);

    // What the user meets: enabled, the frame around it too, and something listens to it. A key
    // that nothing listens to is shown disabled rather than dead.
    bool usable() const;

    const std::string& caption() const { return caption_; }
    void set_caption(std::string caption);

    const std::string& tooltip() const { return tooltip_; }
    void set_tooltip(std::string tooltip);

    // For screen readers: the caption, else the caption label's text that the sheet names, else
    // the last tooltip that was not empty (which stays when tooltips are switched off).
    std::string accessible_name() const;
    void set_accessible_name(std::string name) { accessible_name_ = std::move(name); }

    // What the help says about the control when the user asks what it is; "": nothing.
    const std::string& help() const { return help_; }
    void set_help(std::string text) { help_ = std::move(text); }

    Colour colour() const { return colour_; }  // of the text; 0 unless set
    void set_colour(Colour colour);

    // Gives the control the keyboard focus (nothing happens when it cannot take it).
    void set_focus();
    bool focused() const;
    std::function<void()> on_got_focus;
    std::function<void()> on_lost_focus;

    // One observer; null detaches.
    void observe(ControlObserver* observer) { observer_ = observer; }

  protected:
    void changed(Property property) const;

    // Whether the control has a handler that makes it worth touching.
    virtual bool listened_to() const { return true; }

  private:
    friend class Form;

    Form& form_;
    ControlKind kind_;
    std::string name_;
    Place place_;
    std::string caption_;
    std::string tooltip_;
    std::string last_tooltip_;  // that was not empty
    std::string accessible_name_;
    std::string help_;
    int tab_;
    TabStop tab_stop_;
    Style style_;
    Inset inset_;
    Control* frame_;
    bool visible_;
    bool enabled_ = true;
    Colour colour_ = 0;
    ControlObserver* observer_ = nullptr;
};

}  // namespace zephyne
