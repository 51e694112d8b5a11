// The Information window: the facts about the current MIDI song, and its texts in six boxes.
#pragma once

#include "core/ports/window_host.h"
#include "core/sheets/form3.h"
#include "engine/stage.h"
#include "songdata/midi_text_scanner.h"

namespace zephyne {

class InformationWindow {
  public:
    // Takes the main window's key "Song Information...".
    InformationWindow(Stage& stage, WindowHost& windows);

  private:
    void Command3_Click();
    void show();
    void Form_Load(Form3& form);
    void Form_Activate(Form3& form);
    void Form_Unload(const Form3& form);
    void fill(Form3& form);
    void show_texts(Form3& form, const MidiImage& image);

    // Returns false when the window has been closed meanwhile.
    [[nodiscard]] bool let_events_run(const Form3& form);

    Stage& stage_;
    WindowHost& windows_;
    bool filling_ = false;
};

}  // namespace zephyne
