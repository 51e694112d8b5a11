#include "playlists/drive_search_window.h"

#include "core/sheets/form10.h"
#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

class DriveSearchWindowTest : public testing::Test {
  protected:
    DriveSearchWindowTest() {
        world.settings().Lowercase = 0;
        world.files.add_volume("/stick", "Stick");
        world.files.add_volume("/empty", "Empty");
        windows.on_modal = [this](Form& shown) {
            auto& form = dynamic_cast<Form10&>(shown);
            opened = &form;
            form.Drive1.choose(0);
            act(form);
            opened = nullptr;
            if (form.loaded()) form.request_unload(CloseReason::user);
        };
    }

    void open(std::function<void(Form10&)> in_window) {
        act = std::move(in_window);
        EditedPlaylist playlist(world.stage, editor);
        window.show(playlist);
        world.pump.on_pump = nullptr;
        EXPECT_TRUE(playlist.lists().in_step());
        EXPECT_TRUE(editor.Command2.enabled());
    }
    void add_songs(int count) {
        for (int i = 0; i < count; ++i) {
            world.files.add_file("/stick/" + std::to_string(1000 + i) + ".mid");
        }
    }

    // What happens at every moment in which other events get through.
    void on_progress(std::function<void(int number)> happens) {
        world.pump.on_pump = [this, happens = std::move(happens)] { happens(++pumps); };
    }

    static Log keys(const Form10& f) {
        Log keys;
        for (const Button* key : {&f.Command2, &f.Command3, &f.Command4, &f.Command1}) {
            keys.push_back(key->caption() + (key->enabled() ? "" : " (off)"));
        }
        return keys;
    }

    const Log at_rest{"Find Files...", "Select All", "Clear All", "Done"};
    const Log at_work{"Cancel Search", "Select All (off)", "Clear All (off)", "Done (off)"};
    const std::string instructions =
        "Select a drive to catalog and hit the Find button.  Once cataloging is complete, select "
        "the files you want to add to the playlist and click Done.";

    World world{};
    FakeWindows windows;
    Form9 editor{world.files};
    DriveSearchWindow window{world.stage, world.scheduler, windows};
    Form10* opened = nullptr;
    std::function<void(Form10&)> act;
    int pumps = 0;
};

TEST_F(DriveSearchWindowTest, ListsTheSongsOfTheDriveAndOfEachNameTheFirstFolders) {
    for (const char* song : {"z/waltz.mid", "a/Waltz.mid", "b/waltz.mid", "b/deep/rag.RMI", "a.wav",
                             "b/a|/b.mid", "line\nend.mid"}) {
        world.files.add_file("/stick/" + std::string(song));
    }
    open([&](Form10& f) {
        EXPECT_EQ(f.title(), "Find All MIDI Files on drive");
        EXPECT_EQ(f.Label1.caption(), instructions);
        EXPECT_EQ(f.Label2.caption(), " 0 Files Found.");
        EXPECT_EQ(keys(f), at_rest);
        on_progress([&](int) {
            EXPECT_EQ(f.Label1.caption(), "Searching for Files...");
            EXPECT_EQ(keys(f), at_work);
        });
        f.Command2.click();
        EXPECT_EQ(pumps, 1) << "at the start";
        EXPECT_EQ(World::names(f.List2), (Log{"b.mid", "rag.RMI", "Waltz.mid", "waltz.mid"}));
        EXPECT_EQ(World::names(f.List3), (Log{"b.mid|/stick/b/a|/", "rag.RMI|/stick/b/deep/",
                                              "Waltz.mid|/stick/a/", "waltz.mid|/stick/b/"}));
        EXPECT_EQ(f.Label2.caption(), " 4 Files Found.");
        EXPECT_EQ(f.Label1.caption(), instructions);
        EXPECT_EQ(keys(f), at_rest);
    });
    EXPECT_EQ(world.log, Log{"beep"}) << "no entry line can hold a line end";

    world.settings().Lowercase = 1;
    world.settings().AllowWav = 1;
    world.files.add_file("/stick/A.WAV");
    open([&](Form10& f) {
        f.Command2.click();
        EXPECT_EQ(World::names(f.List3),
                  (Log{"A.WAV|/stick/", "a.wav|/stick/", "B.mid|/stick/b/a|/",
                       "Rag.rmi|/stick/b/deep/", "Waltz.mid|/stick/a/"}));
        f.Drive1.choose(1);
        f.Command2.click();
        EXPECT_TRUE(f.List2.empty() && f.List3.empty()) << "a new search begins with nothing";
        EXPECT_EQ(f.Label2.caption(), " 0 Files Found.");
    });
}

TEST_F(DriveSearchWindowTest, LetsEventsRunAndCountsEveryHundredItems) {
    add_songs(230);
    for (int i = 0; i < 80; ++i) world.files.add_folder("/stick/" + std::to_string(i));
    open([&](Form10& f) {
        Log counts;
        on_progress([&](int) { counts.push_back(f.Label2.caption()); });
        f.Command2.click();
        EXPECT_EQ(counts, (Log{" 0 Files Found.", " 99 Files Found.", " 199 Files Found.",
                               " 230 Files Found."}))
            << "the start, two hundreds of files, and 70 folders on top of 30 more";
    });
}

TEST_F(DriveSearchWindowTest, LetsEventsRunWhenASlowDiskHasFewItems) {
    for (int i = 0; i < 6; ++i) world.files.add_folder("/stick/a/" + std::to_string(i));
    struct SlowClock final : Clock {
        Milliseconds now() const override { return ++ticks * 10; }
        mutable Milliseconds ticks = 0;
    };
    const SlowClock clock;
    const Scheduler scheduler(clock);
    DriveSearchWindow slow(world.stage, scheduler, windows);
    act = [&](Form10& f) {
        on_progress([&](int) {});
        f.Command2.click();
        EXPECT_EQ(pumps, 1 + 3) << "15 steps of 10 ms between items, and a limit of 40 ms";
    };
    EditedPlaylist playlist(world.stage, editor);
    slow.show(playlist);
}

TEST_F(DriveSearchWindowTest, CancellingItLeavesNothing) {
    add_songs(1000);
    for (const int last : {1, 2, 10, 11}) {
        open([&](Form10& f) {
            pumps = 0;
            on_progress([&](int number) {
                if (number == last) f.Command2.click();
                EXPECT_LE(number, last);
            });
            f.Command2.click();
            EXPECT_EQ(pumps, last);
            EXPECT_TRUE(f.List2.empty() && f.List3.empty());
            EXPECT_EQ(f.Label2.caption(), " 0 Files Found.");
            EXPECT_EQ(f.Label1.caption(), instructions);
            EXPECT_EQ(keys(f), at_rest);

            world.pump.on_pump = nullptr;
            f.Command2.click();
            EXPECT_EQ(f.Label2.caption(), " 1000 Files Found.") << "it can be started again";
        });
    }
}

TEST_F(DriveSearchWindowTest, ClosingTheWindowOrEndingTheProgramEndsTheSearch) {
    add_songs(1000);
    const auto ends_at_second = [&](std::function<void(Form10&)> happens) {
        open([&](Form10& f) {
            pumps = 0;
            on_progress([&](int number) {
                if (number == 2) happens(f);
            });
            f.Command2.click();
            EXPECT_EQ(pumps, 2);
            EXPECT_TRUE(f.List2.empty());
        });
    };
    ends_at_second([](Form10& f) { f.request_unload(CloseReason::user); });
    ends_at_second([&](Form10&) { world.program.Ending = true; });
    EXPECT_TRUE(world.form.List3.empty());
}

TEST_F(DriveSearchWindowTest, DoneAddsWhatIsSelectedAndOfEachNameOnce) {
    world.open_playlist({"1001.mid|/a/", "1002.mid|/z/", "polka.mid|/a/"});
    add_songs(5);
    open([&](Form10& f) {
        f.Command2.click();
        for (const std::size_t row : {0, 1, 2, 4, 4}) f.List2.click(row);
        f.Command1.click();
        EXPECT_FALSE(f.loaded());
        EXPECT_EQ(keys(f), (Log{"Find Files... (off)", "Select All (off)", "Clear All (off)",
                                "Done (off)"}));
    });
    EXPECT_EQ(World::names(editor.List2), (Log{"1000.mid", "1001.mid", "1002.mid", "polka.mid"}));
    EXPECT_EQ(World::names(world.form.List3),
              (Log{"1000.mid|/stick/", "1001.mid|/a/", "1002.mid|/stick/", "polka.mid|/a/"}));
    EXPECT_EQ(editor.Label11.caption(), "4 items in playlist.");
}

TEST_F(DriveSearchWindowTest, SelectsAllOrNone) {
    add_songs(150);
    open([](Form10& f) {
        f.Command3.click();
        f.Command4.click();
        EXPECT_TRUE(f.List2.visible());
        f.Command2.click();
        f.List2.click(7);
        f.Command3.click();
        EXPECT_EQ(f.List2.selected_rows().size(), 150U);
        f.List2.click(8);
        EXPECT_EQ(f.List2.selected_rows().size(), 149U);
        f.Command4.click();
        EXPECT_TRUE(f.List2.selected_rows().empty() && f.List2.visible());
        f.Command1.click();
    });
    EXPECT_TRUE(editor.List2.empty());
    EXPECT_EQ(editor.Label11.caption(), "0 items in playlist.") << "enabled again all the same";
}

}  // namespace
}  // namespace zephyne::test
