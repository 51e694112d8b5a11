// The settings as the Options window shows them.
#pragma once

#include "core/sheets/form2.h"
#include "engine/stage.h"
#include "ui/options_services.h"

namespace zephyne {

// Copies the settings into the controls of a fresh window whose handlers are in place: checking a
// box and selecting an option runs its click handler.
void load_options(Form2& form, const Settings& settings, const OptionsServices& services);

// Gives each control the help on its topic: "options-check7" for Check7, "options-option5-3" for
// Option5(3). A label has that of the box it belongs to.
void load_options_help(Form2& form, const OptionsServices& services);

// Enables what the playback mode of an option needs, and disables the rest.
void enable_for_mode(Form2& form, const OptionButton& mode);

// The delay's seconds can be typed while its box is checked.
void enable_for_delay(Form2& form);

}  // namespace zephyne
