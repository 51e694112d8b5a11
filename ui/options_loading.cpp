#include "ui/options_loading.h"

#include "core/text/letter_case.h"
#include "core/text/numbers.h"

#include <array>
#include <string>
#include <utility>

namespace zephyne {
namespace {

void load_modes(Form2& form, const Settings& settings) {
    constexpr std::int32_t kUnset = 0;
    form.text2.set_text(settings.PreviewTime == kUnset
                            ? "5"
                            : decimal(static_cast<std::int64_t>(settings.PreviewTime)));
    switch (settings.Mode) {
        case PlayMode::Random:
            form.Option1.select();
            break;
        case PlayMode::Alpha:
            form.Option2.select();
            break;
        case PlayMode::Manual:
            form.Option3.select();
            break;
        case PlayMode::Preview:
            form.Option6.select();
            break;
        default:
            break;
    }
}

void load_choices(Form2& form, const Settings& settings) {
    (settings.PresetPathOnly == 1 ? form.Option4_1 : form.Option4_2).select();
    (settings.Playlist != 0 ? form.Option11 : form.Option10).select();
    if (settings.ResetType == 0) form.Option5_3.select();
    if (settings.ResetType == 1) form.Option5_1.select();
    if (settings.ResetType == 2) form.Option5_2.select();
    if (settings.Display == 0) form.Option7.select();
    if (settings.Display == 1) form.Option8.select();
    if (settings.Display == 2) form.Option9.select();
}

std::string topic_of(const Control& control) {
    std::string topic = "options-";
    for (const char c : lower_case(control.name())) {
        if (c == ')') continue;
        topic += c == '(' ? '-' : c;
    }
    return topic;
}

}  // namespace

void enable_for_mode(Form2& form, const OptionButton& mode) {
    const bool alpha = &mode == &form.Option2;
    const bool manual = &mode == &form.Option3;
    const bool preview = &mode == &form.Option6;
    form.Check7.set_enabled(alpha);
    form.Label3.set_enabled(alpha);
    form.text2.set_enabled(preview);
    form.Label2.set_enabled(preview);
    form.Check6.set_enabled(!manual);
    form.Label4.set_enabled(!manual);
}

void enable_for_delay(Form2& form) {
    const bool wanted = form.Check4.value() != 0;
    form.Text1.set_enabled(wanted);
    form.Label1.set_enabled(wanted);
}

void load_options(Form2& form, const Settings& settings, const OptionsServices& services) {
    load_modes(form, settings);
    load_choices(form, settings);
    const bool tips = services.tips_at_start && services.tips_at_start();
    const std::array<std::pair<CheckBox*, bool>, 16> boxes = {{
        {&form.Check7, settings.Reverse == 1},
        {&form.Check6, settings.Continuous == 1},
        {&form.Check1, settings.AutoReset == 1},
        {&form.Check2, settings.AutoRepeat == 1},
        {&form.Check3, settings.AutoHide == 1},
        {&form.Check8, settings.AutoNotes == 1},
        {&form.Check9, settings.AllowWav == 1},
        {&form.Check10, settings.Extended == 1},
        {&form.Check11, settings.Animated == 1},
        {&form.Check12, settings.Lowercase == 1},
        {&form.Check13, settings.ConfirmExit == 1},
        {&form.Check5, tips},
        {&form.Check14, settings.ShowTips == 1},
        {&form.Check15, settings.Beeps == 1},
        {&form.Check16, settings.ShowTray == 1},
        {&form.Check17, settings.ShowBar == 1},
    }};
    for (const auto& [box, checked] : boxes) box->set_value(checked ? 1 : 0);
    form.Text1.set_text(decimal(settings.AutoDelayTime));
    form.Check4.set_value(settings.AutoDelay != 0 ? 1 : 0);
    enable_for_delay(form);
}

void load_options_help(Form2& form, const OptionsServices& services) {
    if (!services.help_text) return;
    for (Control* control : form.controls())
        control->set_help(services.help_text(topic_of(*control)));
    form.Label3.set_help(form.Check7.help());
    form.Label2.set_help(form.text2.help());
    form.Label4.set_help(form.Check6.help());
    form.Label1.set_help(form.Text1.help());
}

}  // namespace zephyne
