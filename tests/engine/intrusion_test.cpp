// Whatever arrives while a procedure of the player lets events run: a click, a key, a song handed
// over, the end of a song. Each procedure is run once to count its pumps, and then once more for
// each pump and each intruder, which arrives in just that pump. Afterwards the player must be
// whole.
#include "tests/support/world.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zephyne::test {
namespace {

using Act = std::function<void(World&)>;

struct Scenario {
    std::string name;
    Act prepare;
    Act act;
};

struct Intruder {
    std::string name;
    Act arrive;
};

void take_time(World& world, Milliseconds duration) {
    world.clock.advance_to(world.clock.now() + duration);
}

void find_and_enter(World& world) {
    world.form.text2.type("d");
    world.form.text2.press_key(13);
}

void click_row(World& world, std::size_t row) {
    world.form.File1.click(std::min(row, world.form.File1.count() - 1));
}

void start_queue(World& world) {
    world.program.StartingUp = true;
    world.form.Timer5.set_enabled(true);
    world.start_queue("a.mid", {"b.mid", "d.wav"});
}

void open_playlist(World& world) {
    const std::string folder = with_separator(world.folder, world.files.path_style());
    world.open_playlist(
        {"a.mid|" + folder, "b.mid|" + folder, "c.MID|" + folder, "d.wav|" + folder});
}

Act then(Act first, Act second) {
    return [first = std::move(first), second = std::move(second)](World& world) {
        first(world);
        second(world);
    };
}

Act start_in(std::int32_t mode) {
    return [mode](World& world) { world.start(mode); };
}

Act by_hand(const std::string& song) {
    return [song](World& world) {
        world.open_folder();
        world.click(song);
    };
}

Act press(TransportKey key) {
    return [key](World& world) { world.form.MMControl1.press(key); };
}

Act hand_over(const std::string& song) {
    return [song](World& world) {
        world.hand_over(world.path(song));
        world.run_for(2000);
    };
}

void next(World& world) {
    world.form.Command9.click();
}
void next_in_queue(World& world) {
    world.form.Command19.click();
}
void reset_list(World& world) {
    world.form.Command6.click();
}
void reset_key(World& world) {
    world.form.SSCommand1.click();
}
void open_other_folder(World& world) {
    world.open_row("other");
}
void finish_song(World& world) {
    world.finish_song();
}

const std::vector<Scenario>& scenarios() {
    const Act alpha = start_in(PlayMode::Alpha);
    static const std::vector<Scenario> all = {
        {"click", alpha, [](World& w) { w.click("b.mid"); }},
        {"click in a playlist", open_playlist, [](World& w) { w.click("b.mid"); }},
        {"next", alpha, next},
        {"next, a song in capitals", then(alpha, next), next},
        {"next in a playlist",
         then(open_playlist,
              [](World& w) {
                  w.settings().Mode = PlayMode::Alpha;
                  w.engine->order.RefillAndPlayNext();
              }),
         next},
        {"next by hand", by_hand("a.mid"), next},
        {"reset list", start_in(PlayMode::Random), reset_list},
        {"other folder", alpha, open_other_folder},
        {"end in Alpha", alpha, finish_song},
        {"end in Manual", by_hand("c.MID"), finish_song},
        {"end in a wave song, Manual", by_hand("d.wav"), finish_song},
        {"end with a pause",
         [](World& w) {
             w.settings().AutoDelay = 1;
             w.settings().AutoDelayTime = .3;
             w.start(PlayMode::Alpha);
         },
         finish_song},
        {"end with repeat", then([](World& w) { w.settings().AutoRepeat = 1; }, alpha),
         finish_song},
        {"end of a preview", start_in(PlayMode::Preview), [](World& w) { w.run_for(6500); }},
        {"end in the queue", start_queue, finish_song},
        {"end of a wave song in the queue",
         [](World& w) {
             start_queue(w);
             w.form.List2.clear();
             w.start_queue("d.wav", {"b.mid"});
         },
         finish_song},
        {"next in the queue", start_queue, next_in_queue},
        {"play key", then(alpha, press(TransportKey::stop)), press(TransportKey::play)},
        {"stop key", alpha, press(TransportKey::stop)},
        {"stop key on a wave song", by_hand("d.wav"), press(TransportKey::stop)},
        {"reset key", alpha, reset_key},
        {"slider", alpha, [](World& w) { w.form.Slider1.step_to(50); }},
        {"handed over", alpha, hand_over("c.MID")},
        {"handed over to a playlist", then(open_playlist, [](World& w) { w.click("a.mid"); }),
         hand_over("c.MID")},
        {"find", alpha, find_and_enter},
        {"clock beyond 99 minutes",
         [](World& w) {
             w.midi.lengths["a.mid"] = 6'100'000;
             w.start(PlayMode::Alpha);
             take_time(w, 5'940'100);
         },
         [](World& w) { w.run_for(600); }},
        {"a song that cannot be opened", then([](World& w) { w.midi.broken = {"b.mid"}; }, alpha),
         [](World& w) { w.click("b.mid"); }},
    };
    return all;
}

const std::vector<Intruder>& intruders() {
    static const std::vector<Intruder> all = {
        {"click on the first song", [](World& w) { click_row(w, 0); }},
        {"click on the last song", [](World& w) { click_row(w, 3); }},
        {"next", next},
        {"next in the queue", next_in_queue},
        {"reset list", reset_list},
        {"reset key", reset_key},
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
        {"end of the song", [](World& w) { w.end_song(); }},
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
        for (const char* song : {"x.mid", "y.mid"}) {
            world->files.add_file(joined(other, song, GetParam()));
        }
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
        world.expect_in_one_piece();
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
                world->pump.arrive_in(at, [&] { intruder.arrive(*world); });
                scenario.act(*world);
                expect_whole(*world);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(PathStyles, AnyIntruder,
                         testing::Values(PathStyle::posix, PathStyle::windows));

}  // namespace
}  // namespace zephyne::test
