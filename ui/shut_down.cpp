#include "ui/shut_down.h"

#include "core/settings_file.h"

namespace zephyne {

ShutDown::ShutDown(Stage& stage, Engine& engine) : stage_(stage), engine_(engine) {
    stage_.form.on_query_unload = [this](CloseReason reason, bool& cancel) {
        Form_QueryUnload(reason, cancel);
    };
    stage_.form.on_unload = [this] { Form_Unload(); };
}

void ShutDown::Form_QueryUnload(CloseReason reason, bool& cancel) {
    if (reason == CloseReason::session_end) {
        stage_.program.SessionEnded = true;
        return;
    }
    if (stage_.settings().ConfirmExit != 1) return;
    cancel = stage_.messages.ShowDlgMessage("Are you sure you want to quit Zephyne?", 1,
                                            "Confirm Exit") != Answer::yes;
}

void ShutDown::Form_Unload() {
    Form1& f = stage_.form;
    if (close_notes) close_notes();
    engine_.player.StopDevice();
    WriteSettings(stage_.program, f, stage_.files, stage_.messages);
    if (stage_.settings().ShowTray == 1 && unload_tray) unload_tray();
    for (RepeatingTimer* timer :
         {&f.Timer1, &f.Timer2, &f.Timer3, &f.Timer4, &f.Timer5, &f.Timer6}) {
        timer->set_enabled(false);
    }
    stage_.events.pump();
    if (close_help) close_help();

    // Whatever handlers are still on the stack find a program that has ended.
    stage_.program.Ending = true;
    stage_.device.shut_down();
    if (end_program) end_program();
}

}  // namespace zephyne
