// The controls with little more to them than a caption: labels, keys, boxes, pictures, frames.
#pragma once

#include "core/controls/control.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace zephyne {

class Label final : public Control {
  public:
    Label(Form& form, const ControlDesign& design) : Control(form, ControlKind::label, design) {}

    void click();
    std::function<void()> on_click;

    int font_points() const { return font_points_; }  // only of Style::message
    void set_font_points(int points);

  private:
    int font_points_ = 12;
};

// A push button; with Style::ribbon a two-state key of which one at most in its group is down.
class Button final : public Control {
  public:
    Button(Form& form, const ControlDesign& design) : Control(form, ControlKind::button, design) {}

    // The user pressed it. Nothing happens unless it is shown and usable.
    void click();
    void set_on_click(std::function<void()> handler);

    bool latched() const { return latched_; }  // ribbon only
    void set_latched(bool latched);

    // The glyph of a key without a caption, by its name in the glyph pictures.
    const std::string& glyph() const { return glyph_; }
    void set_glyph(std::string glyph) { glyph_ = std::move(glyph); }

  protected:
    bool listened_to() const override { return static_cast<bool>(on_click_); }

  private:
    std::function<void()> on_click_;
    std::string glyph_;
    bool latched_ = false;
};

// A box that is checked (1) or not (0). A change of its value runs its click handler, whoever
// made the change. One without a handler can be checked all the same: what counts is its value.
class CheckBox final : public Control {
  public:
    CheckBox(Form& form, const ControlDesign& design)
        : Control(form, ControlKind::check_box, design) {}

    std::int16_t value() const { return value_; }
    void set_value(std::int16_t value);  // any value but 0 checks the box and is kept as 1
    void click();                        // the user toggled it
    void set_on_click(std::function<void()> handler) { on_click_ = std::move(handler); }

  private:
    std::function<void()> on_click_;
    std::int16_t value_ = 0;
};

class Frame final : public Control {
  public:
    Frame(Form& form, const ControlDesign& design) : Control(form, ControlKind::frame, design) {}
};

// The sets of pictures that a Picture shows one of.
enum class ImageList {
    digits,       // Display * 10 + 1 + digit; blank Display + 31; reset Display + 34
    status,       // Display * 4 + frame: 1 normal, 2 blink, 3 and 4 stopped
    roll,         // frames 1..30
    banner,       // one still picture
    loudspeaker,  // one still picture
    sound_waves,  // frames 1..7
    note_pad,     // one still picture
    light_bulb,   // one still picture
    emblem,       // one still picture: the program's own
};

// The image indexes, in one place.
int digit_image(int display, int digit);
int blank_image(int display);
int reset_image(int display);
int status_image(int display, int frame);

class Picture final : public Control {
  public:
    Picture(Form& form, ImageList list, const ControlDesign& design)
        : Control(form, ControlKind::picture, design), list_(list) {}

    ImageList image_list() const { return list_; }
    int image() const { return image_; }
    void set_image(int image);

    void click();
    std::function<void()> on_click;

  private:
    ImageList list_;
    int image_ = 1;
};

// A decoration: a glass behind other controls, or a groove line.
class Decoration final : public Control {
  public:
    Decoration(Form& form, ControlKind kind, const ControlDesign& design)
        : Control(form, kind, design) {}
};

// The three transport keys of a media device. While the device says that it is switching songs
// (set_transport_enabled(false)) presses are ignored; each key can be switched off by itself, too.
enum class TransportKey { play, pause, stop };
enum class TransportLight { none, play, pause };

class Transport final : public Control {
  public:
    Transport(Form& form, const ControlDesign& design)
        : Control(form, ControlKind::transport, design) {}

    bool transport_enabled() const { return transport_enabled_; }
    void set_transport_enabled(bool enabled);

    // Whether a press of the key comes through.
    bool key_enabled(TransportKey key) const;
    void set_key_enabled(TransportKey key, bool enabled);

    TransportLight light() const { return light_; }  // which key is lit
    void set_light(TransportLight light);

    void press(TransportKey key);
    std::function<void(TransportKey)> on_press;

  private:
    bool transport_enabled_ = true;
    std::array<bool, 3> keys_enabled_ = {true, true, true};
    TransportLight light_ = TransportLight::none;
};

}  // namespace zephyne
