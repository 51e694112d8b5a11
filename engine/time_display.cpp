#include "engine/time_display.h"

#include "core/text/numbers.h"

#include <algorithm>

namespace zephyne {
namespace {

constexpr Milliseconds kHour = 3'600'000;
constexpr Milliseconds kLastShownPosition = 5'940'000;  // 99 minutes
constexpr int kFrames = 30;

std::array<Picture*, 4> digits_of(Form1& form) {
    return {&form.Tens, &form.Ones, &form.Tenths, &form.Hundredths};
}

}  // namespace

std::string length_text(Milliseconds length) {
    if (length >= kHour) return "1+ Hr.";
    const auto seconds = length / 1000;
    return two_digits(seconds / 60) + ":" + two_digits(seconds % 60);
}

std::string percent_text(int percent) {
    return std::string(" ").append(decimal(static_cast<std::int64_t>(percent))).append("%");
}

TimeDisplay::TimeDisplay(Stage& stage) : stage_(stage) {
    stage_.form.Timer3.set_kind(EventKind::display);
    stage_.form.Timer4.set_kind(EventKind::display);
    stage_.form.Timer3.on_tick = [this] { blink(); };
    stage_.form.Timer4.on_tick = [this] { animate(); };
    for (Picture* digit : digits_of(stage_.form)) {
        digit->on_click = [this] { toggle_time_method(); };
    }
    stage_.form.Image1.on_click = [this] { toggle_time_method(); };
}

void TimeDisplay::UpdateTimeDisplay() {
    Program& program = stage_.program;
    if (program.DisplayBusy || program.SwitchingSong) return;
    const DeviceMode mode = stage_.device.Mode();
    if (mode != DeviceMode::playing && mode != DeviceMode::paused) return;
    const Milliseconds length = stage_.device.Length();
    if (length <= 0) return;

    const FlagGuard busy(program.DisplayBusy);
    const Milliseconds position = stage_.device.Position();
    show_percentage(position, length);
    if (position > kLastShownPosition) {
        stage_.events.pump();
        return;
    }
    const Milliseconds played = position / 1000;
    show_digits(stage_.settings().TimeMethod == 1 ? length / 1000 - played : played);
}

void TimeDisplay::show_percentage(Milliseconds position, Milliseconds length) {
    const int percent = static_cast<int>(position * 100 / length);
    Slider& slider = stage_.form.Slider1;
    if (stage_.program.SliderDragging || slider.value() == percent) return;
    const FlagGuard sync(stage_.program.SliderSync);
    slider.set_value(percent);
    stage_.form.Label13.set_caption(percent_text(percent));
}

void TimeDisplay::show_digits(Milliseconds seconds) {
    const std::string m = two_digits(seconds / 60);
    const std::string s = two_digits(seconds % 60);
    const std::array<char, 4> characters = {m.front(), m.back(), s.front(), s.back()};
    const auto pictures = digits_of(stage_.form);
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const auto digit = static_cast<std::int16_t>(characters[i] - '0');
        if (stage_.program.DigitCache[i] == digit) continue;
        pictures[i]->set_image(digit_image(stage_.settings().Display, digit));
        stage_.program.DigitCache[i] = digit;
    }
}

void TimeDisplay::draw_all(int image) {
    for (Picture* digit : digits_of(stage_.form)) digit->set_image(image);
}

void TimeDisplay::ClearTimeDisplay() {
    const int display = stage_.settings().Display;
    draw_all(digit_image(display, 0));
    stage_.form.Image1.set_image(status_image(display, 1));
    stage_.program.DigitCache.fill(0);
}

void TimeDisplay::recolour() {
    const int display = stage_.settings().Display;
    const auto pictures = digits_of(stage_.form);
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const int digit = std::max<int>(stage_.program.DigitCache[i], 0);
        pictures[i]->set_image(digit_image(display, digit));
    }
    stage_.form.Image1.set_image(status_image(display, 1));
}

void TimeDisplay::forget_digits() {
    stage_.program.DigitCache.fill(-1);
}

void TimeDisplay::show_reset_glyphs() {
    draw_all(reset_image(stage_.settings().Display));
}

void TimeDisplay::StopAnimation() {
    if (!stage_.form.Timer3.enabled()) return;
    stage_.form.Timer3.set_enabled(false);
    stage_.form.Image1.set_image(status_image(stage_.settings().Display, 1));
}

void TimeDisplay::start_blinking(std::int16_t reason, Milliseconds interval) {
    stage_.program.BlinkReason = reason;
    stage_.form.Timer3.set_interval(interval);
    stage_.form.Timer3.set_enabled(true);
}

void TimeDisplay::blink() {
    blink_phase_ = !blink_phase_;
    const int display = stage_.settings().Display;
    Picture& status = stage_.form.Image1;
    switch (stage_.program.BlinkReason) {
        case Blink::Paused:
            status.set_image(status_image(display, blink_phase_ ? 2 : 1));
            break;
        case Blink::Stopped:
            status.set_image(status_image(display, blink_phase_ ? 3 : 4));
            break;
        case Blink::LastTenSeconds:
            if (blink_phase_) {
                forget_digits();
                draw_all(blank_image(display));
                status.set_image(status_image(display, 2));
            } else {
                UpdateTimeDisplay();
                status.set_image(status_image(display, 1));
            }
            break;
        default:
            break;
    }
}

void TimeDisplay::animate() {
    const DeviceMode mode = stage_.device.Mode();
    const bool moving = mode == DeviceMode::playing || mode == DeviceMode::paused;
    if (stage_.settings().Animated == 1 && moving) {
        frame_ = frame_ % kFrames + 1;
        stage_.form.Image2.set_image(frame_);
    } else {
        stage_.form.Image2.set_image(1);
    }
}

void TimeDisplay::rewind_slider() {
    if (stage_.program.ResumePosition != 0) return;
    const FlagGuard sync(stage_.program.SliderSync);
    stage_.form.Slider1.set_value(0);
}

void TimeDisplay::toggle_time_method() {
    stage_.settings().TimeMethod = stage_.settings().TimeMethod == 0 ? 1 : 0;
    UpdateTimeDisplay();
}

}  // namespace zephyne
