// A whole player in a small world: a folder of songs, a device that plays in virtual time, and a
// log of what happened, in order.
#pragma once

#include "core/program.h"
#include "core/sheets/form1.h"
#include "core/sheets/tray_form.h"
#include "engine/engine.h"
#include "engine/media_device.h"
#include "engine/stage.h"
#include "tests/support/fakes.h"
#include "tests/support/memory_file_system.h"
#include "tests/support/simulated_backend.h"
#include "tests/support/virtual_time.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace zephyne::test {

// For tests in both styles of paths.
inline std::string style_name(const testing::TestParamInfo<PathStyle>& tested) {
    return tested.param == PathStyle::posix ? "Posix" : "Windows";
}

class World {
  public:
    // Songs are file names; they lie in `folder`, which is also the current folder. The program
    // itself, with its three reset sequences, lies in /zephyne or C:\zephyne.
    explicit World(std::initializer_list<std::string> songs, PathStyle style = PathStyle::posix);

    std::string folder;  // "/music" or "C:\music"
    std::string program_folder;
    std::string path(const std::string& name) const;

    Log log;
    VirtualClock clock;
    Scheduler scheduler{clock};
    VirtualPump pump{clock, scheduler};
    MemoryFileSystem files;
    Program program;
    Form1 form;
    TrayForm tray{scheduler};
    SimulatedBackend midi{"", clock, scheduler, log};
    SimulatedBackend wave{"wave: ", clock, scheduler, log};
    SimulatedBackend video{"video: ", clock, scheduler, log};
    MediaDevice device;
    ScriptedMessages messages{log};
    LoggedBeeper beeper{log};
    ScriptedRandom random;
    Stage stage;
    std::unique_ptr<Engine> engine;

    Settings& settings() { return program.settings; }

    // As after the normal start in Manual mode: the list is filled, nothing plays.
    void open_folder();

    // Starts the mode's cycle, as at start-up.
    void start(std::int32_t mode);

    // As after loading a playlist in Manual mode: entry lines, "name|folder".
    void open_playlist(std::initializer_list<std::string> entries);

    // The same with the start of the mode's cycle.
    void start_playlist(std::int32_t mode, std::initializer_list<std::string> entries);

    // As after the start with a song on the command line, while others wait in the queue.
    void start_queue(const std::string& song, std::initializer_list<std::string> waiting = {});

    // Clicks a song in the list, or opens a folder of the folder list.
    void click(const std::string& name);
    void open_row(const std::string& name);

    // Another copy of the program leaves a path; the poll finds it within two seconds.
    void hand_over(const std::string& path) { form.Label15.set_caption(path); }

    void run_for(Milliseconds duration) { pump.run_for(duration); }

    // The song that plays is over; and with all that follows from it at once.
    void end_song();
    void finish_song();

    // The songs that began to play from their start, without the reset sequences, since the last
    // call.
    std::vector<std::string> played();

    // Everything in the log since the last call; only what was said and asked of it.
    Log happened();
    Log said();

    // The names in a list.
    static std::vector<std::string> names(const ListBox& list);

    // A menu entry as the user sees it: "Stop", "Stop (off)".
    static std::string shown(const MenuItem& entry);

    // The file name of the song that the device holds; "" when it holds none.
    std::string open_song() const;

    // What the window counts, as "3, 2": songs in the list, songs to be played.
    std::string counts() const { return form.Label2.caption() + ", " + form.Label4.caption(); }

    // Fail the test when a guard flag is still set; when the window says something else than the
    // device does; when a key or list is left locked; on any of these.
    void expect_flags_at_rest() const;
    void expect_title_tells_the_truth() const;
    void expect_window_unlocked() const;
    void expect_in_one_piece() const;

  private:
    std::size_t played_up_to_ = 0;
    std::size_t happened_up_to_ = 0;
};

}  // namespace zephyne::test
