// The sequencer's back end as the media device sees it, over a synthesizer whose sound is pumped
// by the test, or by a clock where it is about threads. No sound font is needed here.
#include "platform/desktop/steady_clock.h"
#include "platform/sound/sequencer_backend.h"
#include "pumped_output.h"
#include "smf_builder.h"
#include "temporary_folder.h"
#include "tests/support/virtual_time.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <atomic>
#include <thread>

namespace zephyne::test {
namespace {

class SongFolder : public TemporaryFolder {
  public:
    std::string write(const std::string& name, const Bytes& bytes) const {
        return add_file(name, {bytes.begin(), bytes.end()});
    }
    std::string song(std::uint32_t milliseconds) const {
        return write(
            std::to_string(milliseconds) + ".mid",
            smf(0, kTicksAreMilliseconds, {Track().note_on(0, 60, 1).end_at(milliseconds)}));
    }
};

void sleep_a_moment() {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

class BackendTest : public testing::Test {
  protected:
    BackendTest() {
        engine_.begin_to_load();
        while (!engine_.ready()) sleep_a_moment();
        backend_.on_finished = [this] {
            EXPECT_EQ(backend_.mode(), DeviceMode::stopped);
            EXPECT_EQ(backend_.position(), backend_.length());
            ++finished_;
        };
    }

    void open(std::uint32_t milliseconds) {
        ASSERT_TRUE(backend_.open(folder_.song(milliseconds)).has_value());
    }
    void play(std::uint32_t milliseconds) {
        open(milliseconds);
        backend_.play();
    }
    void pump(Milliseconds time) { output_.pump(frame_at_millisecond(time)); }

    SongFolder folder_;
    VirtualClock clock_;
    Scheduler scheduler_{clock_};
    VirtualPump events_{clock_, scheduler_};
    std::unique_ptr<PumpedOutput> owned_output_ = std::make_unique<PumpedOutput>();
    PumpedOutput& output_ = *owned_output_;
    SynthesizerEngine engine_{scheduler_, {.usual_places = {}}, std::move(owned_output_)};
    SequencerBackend backend_{scheduler_, engine_};
    int finished_ = 0;
};

TEST_F(BackendTest, OpensOnlyOrdinaryMidiFilesAndSaysWhyNot) {
    const std::string pipe = folder_.path("pipe.mid");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::string huge = folder_.add_file("huge.mid", "MThd");
    std::filesystem::resize_file(huge, (std::uintmax_t{64} << 20) + 1);
    for (const std::string& path : {folder_.path("missing.mid"), pipe, huge, folder_.root,
                                    std::string("/dev/zero"), folder_.add_file("text.mid", "x")}) {
        open(1);
        const auto opened = backend_.open(path);
        ASSERT_FALSE(opened.has_value()) << path;
        EXPECT_FALSE(opened.error().empty());
        EXPECT_NE(opened.error().back(), '.');
        EXPECT_EQ(backend_.mode(), DeviceMode::not_open);
        EXPECT_EQ(backend_.length(), 0);
        backend_.play();
        backend_.pause();
        backend_.stop();
        EXPECT_EQ(backend_.mode(), DeviceMode::not_open);
    }
}

TEST_F(BackendTest, LengthAndPositionAreExactToTheMillisecond) {
    open(1234);
    EXPECT_EQ(backend_.mode(), DeviceMode::stopped);
    EXPECT_EQ(backend_.length(), 1234);
    EXPECT_EQ(backend_.position(), 0);
    backend_.pause();
    EXPECT_EQ(backend_.mode(), DeviceMode::paused);
    EXPECT_EQ(output_.woken, 0);
    backend_.play();
    EXPECT_EQ(backend_.mode(), DeviceMode::playing);
    pump(700);
    EXPECT_LE(backend_.position(), 700);
    backend_.pause();
    pump(50);
    EXPECT_EQ(backend_.mode(), DeviceMode::paused);
    EXPECT_EQ(backend_.position(), 700);
    backend_.play_from(33);
    EXPECT_EQ(backend_.position(), 33);  // before and after the synthesizer knows
    backend_.pause();
    pump(50);
    EXPECT_EQ(backend_.position(), 33);
    backend_.play();
    pump(100);
    backend_.stop();
    pump(50);
    EXPECT_EQ(backend_.mode(), DeviceMode::stopped);
    EXPECT_EQ(backend_.position(), 133);
    backend_.close();
    EXPECT_EQ(backend_.mode(), DeviceMode::not_open);
    EXPECT_EQ(backend_.position(), 0);
}

TEST_F(BackendTest, ThePositionNeverGoesBackWhilePlaying) {
    open(1000);
    backend_.play_from(500);
    Milliseconds last = 0;
    for (int i = 0; i < 40; ++i) {
        pump(10);
        const Milliseconds position = backend_.position();
        EXPECT_GE(position, std::max<Milliseconds>(last, 500));
        EXPECT_LE(position, 500 + 10 * (i + 1));
        last = position;
    }
}

TEST_F(BackendTest, TheEndIsReportedOnceFromTheEventLoop) {
    play(200);
    pump(300);
    EXPECT_EQ(backend_.mode(), DeviceMode::playing);  // until it has been reported
    events_.run_for(199);
    EXPECT_EQ(finished_, 0);
    events_.run_for(1);
    EXPECT_EQ(finished_, 1);
    events_.run_for(10'000);
    EXPECT_EQ(finished_, 1);

    backend_.play_from(0);
    events_.run_for(10'000);  // the device is slow to open
    EXPECT_EQ(finished_, 1);
    pump(201);
    events_.run_for(200);
    EXPECT_EQ(finished_, 2);

    play(0);  // for a moment
    EXPECT_EQ(backend_.length(), 0);
    pump(10);
    events_.run_for(10);
    EXPECT_EQ(backend_.mode(), DeviceMode::playing);
    EXPECT_EQ(finished_, 2);
    events_.run_for(30);
    EXPECT_EQ(finished_, 3);
}

TEST_F(BackendTest, PlayingFromTheEndOrBeyondEndsAtOnceAndAnewEachTime) {
    open(200);
    for (int round = 1; round <= 3; ++round) {
        round < 3 ? backend_.play_from(5000) : backend_.play();  // is at the end already
        EXPECT_EQ(backend_.position(), 200);
        pump(1);
        events_.run_for(30);
        EXPECT_EQ(finished_, round);
    }
    backend_.play_from(0);
    pump(100);
    EXPECT_LE(backend_.position(), 100);
    events_.run_for(150);
    EXPECT_EQ(finished_, 3);
}

TEST_F(BackendTest, NothingIsReportedAfterAStopAPauseOrAClose) {
    for (void (SequencerBackend::*end)() :
         {&SequencerBackend::stop, &SequencerBackend::pause, &SequencerBackend::close}) {
        play(50);
        pump(100);  // over, but not reported yet
        (backend_.*end)();
        pump(100);
        events_.run_for(1000);
        EXPECT_EQ(finished_, 0);
    }
}

TEST_F(BackendTest, TheLaterOfTwoPlayersTakesTheSynthesizerAndTheOtherGoesOnFromWhereItWas) {
    SequencerBackend other(scheduler_, engine_);
    open(500);
    ASSERT_TRUE(other.open(folder_.song(400)).has_value());
    backend_.play();
    pump(100);
    other.play();
    backend_.position();
    pump(50);
    EXPECT_EQ(backend_.mode(), DeviceMode::stopped);
    const Milliseconds place = backend_.position();
    EXPECT_LE(place, 100);
    backend_.stop();  // is no business of the other
    EXPECT_EQ(other.mode(), DeviceMode::playing);
    other.close();
    backend_.play();
    pump(60);
    backend_.stop();
    pump(1);
    EXPECT_EQ(backend_.position(), place + 60);
}

TEST_F(BackendTest, WaitingForTheEndBlocksAndLeavesNothingToReport) {
    open(20);
    backend_.wait_until_finished();  // does not play
    backend_.play();
    std::atomic<bool> quit = false;
    std::thread device([&] {
        while (!quit) {
            pump(1);
            sleep_a_moment();
        }
    });
    backend_.wait_until_finished();
    quit = true;
    device.join();
    EXPECT_EQ(backend_.mode(), DeviceMode::stopped);
    EXPECT_EQ(backend_.position(), 20);
    events_.run_for(1000);
    EXPECT_EQ(finished_, 0);
}

TEST_F(BackendTest, WhatIsWrongWithTheSoundIsToldOnceEach) {
    std::vector<std::string> told;
    engine_.on_problem = [&](const std::string& sentence) { told.push_back(sentence); };
    output_.problem = "No device.";
    events_.run_for(1000);
    ASSERT_EQ(told.size(), 2U);
    EXPECT_NE(told[0].find("fluid-soundfont-gm"), std::string::npos);
    EXPECT_EQ(told[1], "No device.");
    play(20);
    events_.run_for(1000);
    EXPECT_EQ(told.size(), 2U);
}

// A reset that could not be played in time must not be missing from the song after it.
TEST(SequencerBackend, TellsTheSynthesizerUnheardWhatFoundNoSoundWhileItWasWaitedFor) {
    if (sound_fonts_in(usual_sound_font_places()).empty()) {
        GTEST_SKIP() << "this machine has no sound font";
    }
    const SongFolder folder;
    VirtualClock clock;
    Scheduler scheduler(clock);
    auto owned_output = std::make_unique<PumpedOutput>();
    PumpedOutput& output = *owned_output;
    SynthesizerEngine engine(scheduler, {}, std::move(owned_output));
    SequencerBackend backend(scheduler, engine);
    const auto loudness_after = [&](std::uint8_t master_volume) {
        const Track reset =
            Track().at(10).exclusive({0x7F, 0x7F, 4, 1, master_volume, master_volume}).end_at(10);
        const Track song = Track().note_on(0, 60, 100).end_at(500);
        EXPECT_TRUE(
            backend.open(folder.write("reset.mid", smf(0, kTicksAreMilliseconds, {reset}))));
        backend.play();
        backend.wait_until_finished();
        EXPECT_EQ(backend.mode(), DeviceMode::stopped);
        EXPECT_TRUE(backend.open(folder.write("song.mid", smf(0, kTicksAreMilliseconds, {song}))));
        backend.play();
        engine.begin_to_load();
        while (!engine.ready()) sleep_a_moment();
        output.pump(frame_at_millisecond(100));  // the volume glides
        output.peak = 0;
        output.pump(frame_at_millisecond(100));
        backend.close();
        return output.peak;
    };
    EXPECT_EQ(loudness_after(0), 0.0F);  // the sound font is not loaded before the song
    EXPECT_GT(loudness_after(127), 0.01F);
    EXPECT_EQ(loudness_after(0), 0.0F);
}

// With threads, clocks and all.
TEST(SequencerBackend, PlaysToItsEndInRealTimeOnTheSilentOutput) {
    const SongFolder folder;
    const SteadyClock clock;
    Scheduler scheduler(clock);
    SynthesizerEngine engine(scheduler, {}, make_audio_output("null"));
    engine.begin_to_load();
    SequencerBackend backend(scheduler, engine);
    int finished = 0;
    backend.on_finished = [&] { ++finished; };
    const Milliseconds begin = clock.now();
    for (int round = 1; round <= 3; ++round) {
        ASSERT_TRUE(backend.open(folder.song(60)).has_value());
        backend.play();
        while (finished < round && clock.now() < begin + 20'000) {
            scheduler.dispatch_due();
            sleep_a_moment();
        }
        ASSERT_EQ(finished, round);
        EXPECT_EQ(backend.position(), 60);
    }
    EXPECT_GE(clock.now() - begin, 180 - 30);  // rendered ahead by at most one buffer
}

}  // namespace
}  // namespace zephyne::test
