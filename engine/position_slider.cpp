#include "engine/position_slider.h"

namespace zephyne {

PositionSlider::PositionSlider(Stage& stage, TimeDisplay& display)
    : stage_(stage), display_(display) {
    Slider& slider = stage_.form.Slider1;
    slider.on_mouse_down = [this] { Slider1_MouseDown(); };
    slider.on_mouse_up = [this] { Slider1_MouseUp(); };
    slider.on_scroll = [this] { Slider1_Scroll(); };
    slider.set_on_change([this] { Slider1_Change(); });
}

void PositionSlider::Slider1_MouseDown() {
    stage_.program.SliderDragging = true;
    stage_.program.SliderSync = true;
}

void PositionSlider::Slider1_MouseUp() {
    stage_.program.SliderDragging = false;
    stage_.form.MMControl1.set_focus();
    stage_.program.SliderSync = false;
}

void PositionSlider::Slider1_Scroll() {
    if (stage_.program.SliderSync) return;
    const DeviceMode mode = stage_.device.Mode();
    if (mode != DeviceMode::paused && mode != DeviceMode::playing) return;
    stage_.form.Label13.set_caption(percent_text(stage_.form.Slider1.value()));
}

void PositionSlider::Slider1_Change() {
    if (stage_.program.SliderSync) return;
    const int percent = stage_.form.Slider1.value();
    if (stage_.device.Mode() != DeviceMode::paused) {
        display_.StopAnimation();
        if (stage_.device.Mode() != DeviceMode::playing) {
            const FlagGuard sync(stage_.program.SliderSync);
            stage_.form.Slider1.set_value(0);
            return;
        }
    }
    stage_.device.SeekPercent(percent, stage_.events);
    display_.UpdateTimeDisplay();
}

}  // namespace zephyne
