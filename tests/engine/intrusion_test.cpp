// Whatever arrives while a procedure of the player lets events run: a click, a key, a song handed
// over, the end of a song. Each procedure is run once to count its pumps, and then once more for
// each pump and each intruder, which arrives in just that pump. Afterwards the player must be
// whole.
#include "tests/support/world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace zephyne::test {
namespace {

struct Scenario {
    std::string name;
    std::function<void(World&)> prepare;
    std::function<void(World&)> act;
};

struct Intruder {
    std::string name;
    std::function<void(World&)> arrive;
};

void take_time(World& world, Milliseconds duration) {
    world.clock.advance_to(world.clock.now() + duration);
}

void end_song(World& world) {
    for (SimulatedBackend* backend : {&world.midi, &world.wave, &world.video}) {
        if (backend->mode() == DeviceMode::playing) backend->finish();
    }
}

void open_other_folder(World& world) {
    const auto& rows = world.form.Dir1.rows();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].text == "other") return world.form.Dir1.open(row);
    }
}

void find_and_enter(World& world) {
    world.form.text2.type("d");
    world.form.text2.press_key(13);
}

void click_row(World& world, std::size_t row) {
    world.form.File1.click(std::min(row, world.form.File1.count() - 1));
}

void start_queue(World& world) {
    world.settings().Mode = PlayMode::Queue;
    world.program.StartingUp = true;
    world.form.Timer5.set_enabled(true);
    for (const char* song : {"b.mid", "d.wav"}) world.form.List2.add({world.path(song), {}});
    world.program.CurrentSongName = world.program.CurrentSongPath = world.path("a.mid");
    world.engine->player.restart();
    world.form.Command19.set_visible(true);
}

void open_playlist(World& world) {
    const std::string folder = with_separator(world.folder, world.files.path_style());
    world.open_playlist(
        {"a.mid|" + folder, "b.mid|" + folder, "c.MID|" + folder, "d.wav|" + folder});
}

std::function<void(World&)> start_in(std::int32_t mode) {
    return [mode](World& world) { world.start(mode); };
}

std::function<void(World&)> press(TransportKey key) {
    return [key](World& world) { world.form.MMControl1.press(key); };
}

void end_and_go_on(World& world) {
    end_song(world);
    world.pump.pump();
}

const std::vector<Scenario>& scenarios() {
    static const std::vector<Scenario> all = {
        {"click", start_in(PlayMode::Alpha), [](World& w) { w.click("b.mid"); }},
        {"click in a playlist", open_playlist, [](World& w) { w.click("b.mid"); }},
        {"next", start_in(PlayMode::Alpha), [](World& w) { w.form.Command9.click(); }},
        {"next, a song in capitals",
         [](World& w) {
             w.start(PlayMode::Alpha);
             w.form.Command9.click();
         },
         [](World& w) { w.form.Command9.click(); }},
        {"next in a playlist",
         [](World& w) {
             open_playlist(w);
             w.settings().Mode = PlayMode::Alpha;
             w.engine->order.RefillAndPlayNext();
         },
         [](World& w) { w.form.Command9.click(); }},
        {"next by hand",
         [](World& w) {
             w.open_folder();
             w.click("a.mid");
         },
         [](World& w) { w.form.Command9.click(); }},
        {"reset list", start_in(PlayMode::Random), [](World& w) { w.form.Command6.click(); }},
        {"other folder", start_in(PlayMode::Alpha), open_other_folder},
        {"end in Alpha", start_in(PlayMode::Alpha), end_and_go_on},
        {"end in Manual",
         [](World& w) {
             w.open_folder();
             w.click("c.MID");
         },
         end_and_go_on},
        {"end in a wave song, Manual",
         [](World& w) {
             w.open_folder();
             w.click("d.wav");
         },
         end_and_go_on},
        {"end with a pause",
         [](World& w) {
             w.settings().AutoDelay = 1;
             w.settings().AutoDelayTime = .3;
             w.start(PlayMode::Alpha);
         },
         end_and_go_on},
        {"end with repeat",
         [](World& w) {
             w.settings().AutoRepeat = 1;
             w.start(PlayMode::Alpha);
         },
         end_and_go_on},
        {"end of a preview", start_in(PlayMode::Preview), [](World& w) { w.run_for(6500); }},
        {"end in the queue", start_queue, end_and_go_on},
        {"end of a wave song in the queue",
         [](World& w) {
             start_queue(w);
             w.form.List2.clear();
             w.form.List2.add({w.path("b.mid"), {}});
             w.program.CurrentSongName = w.program.CurrentSongPath = w.path("d.wav");
             w.engine->player.restart();
         },
         end_and_go_on},
        {"next in the queue", start_queue, [](World& w) { w.form.Command19.click(); }},
        {"play key",
         [](World& w) {
             w.start(PlayMode::Alpha);
             w.form.MMControl1.press(TransportKey::stop);
         },
         press(TransportKey::play)},
        {"stop key", start_in(PlayMode::Alpha), press(TransportKey::stop)},
        {"stop key on a wave song",
         [](World& w) {
             w.open_folder();
             w.click("d.wav");
         },
         press(TransportKey::stop)},
        {"reset key", start_in(PlayMode::Alpha), [](World& w) { w.form.SSCommand1.click(); }},
        {"slider", start_in(PlayMode::Alpha), [](World& w) { w.form.Slider1.step_to(50); }},
        {"handed over", start_in(PlayMode::Alpha),
         [](World& w) {
             w.hand_over(w.path("c.MID"));
             w.run_for(2000);
         }},
        {"handed over to a playlist",
         [](World& w) {
             open_playlist(w);
             w.click("a.mid");
         },
         [](World& w) {
             w.hand_over(w.path("c.MID"));
             w.run_for(2000);
         }},
        {"find", start_in(PlayMode::Alpha), find_and_enter},
        {"clock beyond 99 minutes",
         [](World& w) {
             w.midi.lengths["a.mid"] = 6'100'000;
             w.start(PlayMode::Alpha);
             take_time(w, 5'940'100);
         },
         [](World& w) { w.run_for(600); }},
        {"a song that cannot be opened",
         [](World& w) {
             w.midi.broken = {"b.mid"};
             w.start(PlayMode::Alpha);
         },
         [](World& w) { w.click("b.mid"); }},
    };
    return all;
}

const std::vector<Intruder>& intruders() {
    static const std::vector<Intruder> all = {
        {"click on the first song", [](World& w) { click_row(w, 0); }},
        {"click on the last song", [](World& w) { click_row(w, 3); }},
        {"next", [](World& w) { w.form.Command9.click(); }},
        {"next in the queue", [](World& w) { w.form.Command19.click(); }},
        {"reset list", [](World& w) { w.form.Command6.click(); }},
        {"reset key", [](World& w) { w.form.SSCommand1.click(); }},
        {"play key", press(TransportKey::play)},
        {"pause key", press(TransportKey::pause)},
        {"stop key", press(TransportKey::stop)},
        {"find", find_and_enter},
        {"find and leave",
         [](World& w) {
             w.form.text2.set_focus();
             w.form.text2.type("d");
             w.form.set_focused(nullptr);
         }},
        {"slider",
         [](World& w) {
             w.form.Slider1.press();
             w.form.Slider1.drag_to(40);
             w.form.Slider1.release();
         }},
        {"other folder", open_other_folder},
        {"song handed over",
         [](World& w) {
             w.hand_over(w.path("b.mid"));
             take_time(w, 1000);
         }},
        {"new cycle", [](World& w) { w.engine->order.RefillAndPlayNext(); }},
        {"timers", [](World& w) { take_time(w, 600); }},
        {"end of the song", end_song},
        {"a long time", [](World& w) { take_time(w, 200'000); }},
    };
    return all;
}

class AnyIntruder : public testing::TestWithParam<PathStyle> {
  protected:
    static std::unique_ptr<World> world_for(const Scenario& scenario) {
        auto world = std::make_unique<World>(
            std::initializer_list<std::string>{"a.mid", "b.mid", "c.MID", "d.wav"}, GetParam());
        const std::string other = joined(world->folder, "other", GetParam());
        world->files.add_file(joined(other, "x.mid", GetParam()));
        world->files.add_file(joined(other, "y.mid", GetParam()));
        world->form.Dir1.refresh();
        world->settings().AllowWav = 1;
        world->settings().Lowercase = 0;
        scenario.prepare(*world);
        return world;
    }

    static void expect_whole(World& world) {
        const bool queue = world.settings().Mode == PlayMode::Queue;
        if (queue) world.program.StartingUp = false;  // as it always is there
        world.run_for(3000);
        world.expect_flags_at_rest();
        world.expect_title_tells_the_truth();
        world.expect_window_unlocked();
        const bool told = std::any_of(world.log.begin(), world.log.end(), [](const auto& line) {
            return line.starts_with("message: ");
        });
        EXPECT_TRUE(!told || !world.midi.broken.empty());
        if (queue) return;

        world.settings().AutoDelay = 0;
        for (std::size_t row : {0U, 1U}) {
            world.form.File1.click(row);
            const std::string song(world.form.File1.item(row).text);
            EXPECT_EQ(world.open_song(), world.midi.broken.contains(song) ? "" : song);
            world.expect_title_tells_the_truth();
        }
    }
};

TEST_P(AnyIntruder, LeavesThePlayerWholeInWhicheverPumpItArrives) {
    for (const Scenario& scenario : scenarios()) {
        int pumps = 0;
        {
            SCOPED_TRACE("nobody in pump 0 of " + scenario.name);
            auto world = world_for(scenario);
            world->pump.on_pump = [&] { ++pumps; };
            scenario.act(*world);
            world->pump.on_pump = nullptr;
            expect_whole(*world);
        }
        for (const Intruder& intruder : intruders()) {
            for (int at = 1; at <= pumps; ++at) {
                SCOPED_TRACE(intruder.name + " in pump " + std::to_string(at) + " of " +
                             scenario.name);
                auto world = world_for(scenario);
                int pump = 0;
                world->pump.on_pump = [&] {
                    if (++pump == at) intruder.arrive(*world);
                };
                scenario.act(*world);
                world->pump.on_pump = nullptr;
                expect_whole(*world);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(PathStyles, AnyIntruder,
                         testing::Values(PathStyle::posix, PathStyle::windows));

}  // namespace
}  // namespace zephyne::test
