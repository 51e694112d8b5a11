#include "ui/main_window_commands.h"

#include <utility>

namespace zephyne {
namespace {

constexpr int kF2 = 113;

}  // namespace

MainWindowCommands::MainWindowCommands(Stage& stage, MainWindowLayout& layout,
                                       CommandTargets targets)
    : stage_(stage), layout_(layout), targets_(std::move(targets)) {
    Form1& f = stage_.form;
    f.Command1.set_on_click(targets_.show_options);
    f.Command2.set_on_click([&f] { f.request_unload(CloseReason::program); });
    f.Command10.set_on_click(targets_.show_help);
    f.Command11.set_on_click([this] { Command11_Click(); });
    f.Command12.set_on_click(targets_.show_web_links);
    f.on_key_up = [this](int key) { Form_KeyUp(key); };
}

// "Hide". A minimised window without a taskbar button could not be found again.
void MainWindowCommands::Command11_Click() {
    if (stage_.settings().ShowBar == 0) {
        layout_.put_away();
    } else {
        stage_.form.set_state(WindowState::minimized);
    }
}

void MainWindowCommands::Form_KeyUp(int key) {
    // A playlist leaves the key "Rename" disabled, and F2 with it.
    if (key != kF2 || stage_.program.SwitchingSong || !stage_.form.Command18.enabled()) return;
    if (targets_.renamefile) targets_.renamefile();
}

}  // namespace zephyne
