#include "ui/main_window_layout.h"

#include "core/window_placing.h"

#include <array>

namespace zephyne {
namespace {

constexpr int kHeight = 6510;
constexpr int kWideWidth = 9000;
constexpr int kNarrowWidth = 6500;
constexpr int kCompactWidth = 2740;
constexpr int kCompactHeight = 4140;

void set_width(Form& form, int width) {
    Place place = form.place();
    place.width = width;
    form.set_place(place);
}

void move_to(Control& control, int left, int top) {
    control.set_left(left);
    control.set_top(top);
}

// The value beside a caption has the caption's tooltip.
struct Tip {
    Control& control;
    std::string_view text;
    std::vector<Control*> same{};
};

std::vector<Tip> tips(Form1& f) {
    return {
        {f.Command14, "Remember volume setting for this file"},
        {f.Slider2, "Left Volume (.mid/.rmi only)"},
        {f.Slider3, "Right Volume (.mid/.rmi only)"},
        {f.Check1, "Lock volume sliders", {&f.Label16}},
        {f.Command22, "Go to folder containing this song"},
        {f.Command23, "Explore at location of current song"},
        {f.Command19, "Play next queued song"},
        {f.Label7, "Shows text in MIDI file"},
        {f.MMControl1, "Play, pause, stop controls"},
        {f.Label3, "Songs remaining to be played", {&f.Label4}},
        {f.Dir1, "Set directory"},
        {f.Drive1, "Set drive"},
        {f.Command12, "Show Zephyne web links"},
        {f.Command3, "Shows text in current MIDI file"},
        {f.Command13, "Click for playlist editor"},
        {f.Command20, "Click to load a playlist"},
        {f.Label5, "Length of current song", {&f.Label6}},
        {f.Command4, "Delete current file"},
        {f.Command18, "Rename current file"},
        {f.Command5, "Move current file to another folder"},
        {f.Command2, "Quit the program"},
        {f.Command10, "Get Help"},
        {f.Command11, "Minimize to system tray"},
        {f.Command21, "Show Quicktips"},
        {f.Label1, "Total songs in list", {&f.Label2}},
        {f.Label12, "Amount of song played", {&f.Label13}},
        {f.Label8, "Enter filename to find in list", {&f.text2}},
        {f.File1, "Click a file to play"},
        {f.Command24, "Explore from current directory"},
        {f.Slider1, "Sets playback position"},
        {f.Command6, "Resets playback to start of list"},
        {f.Command9, "Play next song in list"},
        {f.Command1, "Set program options"},
        {f.Label9, "Click Options to change mode", {&f.Label10}},
        {f.SSCommand1, "Resets MIDI Sequencer"},
        {f.Tens, "Click to toggle time played/remaining", {&f.Ones, &f.Tenths, &f.Hundredths}},
        {f.Image2, "Click Options to toggle animation"},
        {f.Command7, "Enter/edit note on current song"},
        {f.Command8, "Click to set a preset"},
        {f.Command15, "Click to clear a preset"},
        {f.Command16, "View all presets"},
        {f.Command17, "Clear all presets"},
    };
}

}  // namespace

MainWindowLayout::MainWindowLayout(Stage& stage, WindowHost& windows)
    : stage_(stage), windows_(windows) {}

void MainWindowLayout::wide() {
    Form1& f = stage_.form;
    for (Control* control : std::array<Control*, 3>{&f.Drive1, &f.Dir1, &f.File1}) {
        control->set_width(6030);
    }
    f.text2.set_width(5535);
    set_width(f, kWideWidth);
    f.Text1.set_visible(true);
    f.Label7.set_visible(true);
}

void MainWindowLayout::narrow() {
    Form1& f = stage_.form;
    for (Control* control : std::array<Control*, 3>{&f.Drive1, &f.Dir1, &f.File1}) {
        control->set_width(3510);
    }
    f.text2.set_width(3015);
    set_width(f, kNarrowWidth);
    f.Text1.set_visible(false);
    f.Label7.set_visible(false);
}

void MainWindowLayout::follow_extended() {
    if (stage_.settings().Extended == 1) {
        wide();
    } else {
        narrow();
    }
}

void MainWindowLayout::folder_based() {
    Form1& f = stage_.form;
    for (Control* control :
         std::array<Control*, 4>{&f.Command13, &f.Command20, &f.Image5, &f.Label14}) {
        control->set_visible(false);
    }
    f.Label8.set_top(1760);
    f.text2.set_top(1760);
    f.File1.set_top(2040);
    f.File1.set_height(2205);
    for (Control* control : std::array<Control*, 4>{&f.Dir1, &f.Drive1, &f.Frame2, &f.Line4}) {
        control->set_visible(true);
    }
    f.Frame2.set_caption("Presets");
    for (Control* control :
         std::array<Control*, 4>{&f.Command4, &f.Command5, &f.Command18, &f.Command24}) {
        control->set_enabled(true);
    }
}

void MainWindowLayout::playlist_based() {
    Form1& f = stage_.form;
    for (Control* control : std::array<Control*, 4>{&f.Dir1, &f.Drive1, &f.Frame2, &f.Line4}) {
        control->set_visible(false);
    }
    f.Frame2.set_caption("");
    f.Label8.set_top(720);
    f.text2.set_top(720);
    f.File1.set_top(1010);
    f.File1.set_height(3180);
    for (Control* control :
         std::array<Control*, 4>{&f.Command13, &f.Command20, &f.Image5, &f.Label14}) {
        control->set_visible(true);
    }
    for (Control* control :
         std::array<Control*, 4>{&f.Command4, &f.Command5, &f.Command18, &f.Command24}) {
        control->set_enabled(false);
    }
}

void MainWindowLayout::compact() {
    Form1& f = stage_.form;
    f.set_place({f.place().left, f.place().top, kCompactWidth, kCompactHeight});
    f.Command19.set_visible(true);
    for (Control* control : std::array<Control*, 13>{
             &f.Label3, &f.Label4, &f.Line1, &f.Line3, &f.Shape2, &f.Label5, &f.Label6, &f.Label12,
             &f.Label13, &f.Label1, &f.Label2, &f.Label9, &f.Label10}) {
        control->set_visible(false);
    }
    move_to(f.Command4, 240, 3090);
    move_to(f.Command5, 240, 3400);
    move_to(f.Command19, 1670, 3090);
    move_to(f.Command2, 1670, 3400);
    f.Command2.set_height(f.Command22.place().height);
    f.Command2.set_width(f.Command22.place().width);
    f.Command22.set_visible(true);
    move_to(f.Command22, 980, 3090);
    f.Command23.set_visible(true);
    move_to(f.Command23, 980, 3400);
}

void MainWindowLayout::led_colour() {
    Form1& f = stage_.form;
    const Colour colour = zephyne::led_colour(stage_.settings().Display);
    for (Control* control :
         std::array<Control*, 11>{&f.Text1, &f.Label5, &f.Label12, &f.Label1, &f.Label3, &f.Label9,
                                  &f.Label6, &f.Label13, &f.Label2, &f.Label4, &f.Label10}) {
        control->set_colour(colour);
    }
}

void MainWindowLayout::settips() {
    const bool show = stage_.settings().ShowTips == 1;
    for (const Tip& tip : tips(stage_.form)) {
        const std::string text(show ? tip.text : std::string_view());
        tip.control.set_tooltip(text);
        for (Control* control : tip.same) control->set_tooltip(text);
    }
}

void MainWindowLayout::show_with_style(std::int32_t style) {
    stage_.form.set_visible(false);
    windows_.set_extended_style(stage_.form, style);
    stage_.form.set_visible(true);
}

void MainWindowLayout::shownbar() {
    show_with_style(stage_.program.TaskbarExStyle);
}

void MainWindowLayout::hidenbar() {
    show_with_style(stage_.program.NormalExStyle);
}

void MainWindowLayout::centre() {
    zephyne::centre(stage_.form, windows_);
}

void MainWindowLayout::Form_Resize() {
    Form1& f = stage_.form;
    if (f.state() != WindowState::normal) {
        if (stage_.settings().ShowBar == 0) put_away();
        return;
    }
    Place place = f.place();
    if (stage_.settings().Mode == PlayMode::Queue) {
        f.set_place({place.left, place.top, kCompactWidth, kCompactHeight});
        return;
    }
    place.height = kHeight;
    f.set_place(place);
    follow_extended();
}

void MainWindowLayout::put_away() {
    Form1& f = stage_.form;
    const Program& program = stage_.program;
    if (windows_.reachable_when_hidden()) {
        f.set_visible(false);
        // A button that stood in for the icon is needed no longer.
        if (stage_.settings().ShowBar == 0) windows_.set_extended_style(f, program.NormalExStyle);
        return;
    }
    if (windows_.extended_style(f) != program.TaskbarExStyle) {
        show_with_style(program.TaskbarExStyle);
    }
    f.set_visible(true);
    f.set_state(WindowState::minimized);
}

}  // namespace zephyne
