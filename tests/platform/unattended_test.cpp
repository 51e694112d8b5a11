// Whole collections played to their ends by the real player on the real sequencer, with nobody
// there: sound and time go as fast as the machine can. No sound font is needed here.
#include "core/program.h"
#include "engine/engine.h"
#include "engine/media_device.h"
#include "platform/desktop/mersenne_random.h"
#include "platform/files/posix_file_system.h"
#include "platform/sound/sequencer_backend.h"
#include "pumped_output.h"
#include "tests/support/fakes.h"
#include "tests/support/simulated_backend.h"
#include "tests/support/virtual_time.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace zephyne::test {
namespace {

constexpr Milliseconds kStep = 20;
constexpr Milliseconds kLongEnough = 60'000;  // for what is left of a song, and for a preview

class Unattended : public testing::TestWithParam<std::string> {
  protected:
    Unattended() {
        if (!form_.Dir1.set_path(GetParam())) return;
        output_.at_once = frame_at_millisecond(200);  // a reset sequence is waited for on the spot
        synthesizer_.begin_to_load();
        while (!synthesizer_.ready()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
        program_.folders.own = ZEPHYNE_DATA;
        program_.ResetFilePresent = true;
        device_.start_status_updates(500);
        program_.settings.Mode = PlayMode::Manual;
        engine_.songs.refreshfiles();
        for (const ListRow& row : form_.File1.items()) songs_.emplace_back(row.text);
        sequencer_.on_finished = [this, tell = sequencer_.on_finished] {
            log_.push_back(program_.CurrentSongName);
            tell();
        };
    }
    void SetUp() override {
        if (songs_.empty()) GTEST_SKIP() << GetParam() << " is not there";
    }

    void start(std::int32_t mode) {
        program_.settings.Mode = mode;
        engine_.order.RefillAndPlayNext();
    }

    void pass_a_moment() {
        output_.pump(frame_at_millisecond(kStep));
        events_.run_for(kStep);
    }

    // Until so many songs have come to their ends; each is taken close to it when it has begun.
    void play(std::size_t ends) {
        for (Milliseconds rest = kLongEnough; log_.size() < ends && rest > 0; rest -= kStep) {
            const std::size_t before = log_.size();
            if (sequencer_.position() < sequencer_.length() * 9 / 10) form_.Slider1.step_to(98);
            pass_a_moment();
            if (log_.size() != before) rest = kLongEnough;
        }
    }

    VirtualClock clock_;
    Scheduler scheduler_{clock_};
    VirtualPump events_{clock_, scheduler_};
    PosixFileSystem files_;
    Form1 form_{files_, scheduler_};
    TrayForm tray_{scheduler_};
    Program program_;
    Log log_;  // the songs that have ended, and messages
    ScriptedMessages messages_{log_};
    LoggedBeeper beeper_{log_};
    MersenneRandom random_;
    std::unique_ptr<PumpedOutput> owned_output_ = std::make_unique<PumpedOutput>();
    PumpedOutput& output_ = *owned_output_;
    SynthesizerEngine synthesizer_{scheduler_, {.usual_places = {}}, std::move(owned_output_)};
    SequencerBackend sequencer_{scheduler_, synthesizer_};
    SimulatedBackend other_{"", clock_, scheduler_, log_};
    MediaDevice device_{scheduler_, files_, form_.MMControl1, {sequencer_, other_, other_}};
    Stage stage_{program_, form_, tray_, device_, files_, events_, messages_, beeper_, random_};
    Engine engine_{stage_};
    Log songs_;
};

TEST_P(Unattended, EverySongEndsOnceInTheOrderOfTheListOrReversedAndTheCycleBeginsAgain) {
    start(PlayMode::Alpha);
    play(songs_.size());
    EXPECT_EQ(log_, songs_);

    log_.clear();
    program_.settings.Continuous = 1;
    program_.settings.Reverse = 1;
    start(PlayMode::Alpha);
    play(songs_.size() + 2);
    Log expected(songs_.rbegin(), songs_.rend());
    expected.insert(expected.end(), songs_.rbegin(), songs_.rbegin() + 2);
    EXPECT_EQ(log_, expected);
}

TEST_P(Unattended, EverySongOfARandomCycleEndsOnce) {
    start(PlayMode::Random);
    play(songs_.size());
    EXPECT_TRUE(std::is_permutation(log_.begin(), log_.end(), songs_.begin(), songs_.end()))
        << testing::PrintToString(log_);
}

TEST_P(Unattended, SongsChosenByHandEndOnceAndNoOtherFollows) {
    for (std::size_t row = 0; row < songs_.size(); ++row) {
        form_.File1.click(row);
        play(row + 1);
        for (int i = 0; i < 50; ++i) pass_a_moment();
        ASSERT_EQ(log_, Log(songs_.begin(), songs_.begin() + static_cast<std::ptrdiff_t>(row) + 1));
    }
}

TEST_P(Unattended, APreviewGoesThroughAllSongs) {
    start(PlayMode::Preview);
    Log heard{program_.CurrentSongName};
    for (Milliseconds rest = kLongEnough; heard.size() < songs_.size() && rest > 0; rest -= kStep) {
        pass_a_moment();
        if (program_.CurrentSongName == heard.back()) continue;
        heard.push_back(program_.CurrentSongName);
        rest = kLongEnough;
    }
    EXPECT_EQ(heard, songs_);
    EXPECT_EQ(log_, Log()) << "none is played to its end";
}

INSTANTIATE_TEST_SUITE_P(OfSongs, Unattended,
                         testing::Values(ZEPHYNE_DATA "/songs",
                                         "/usr/share/games/openttd/baseset/openmsx"));

}  // namespace
}  // namespace zephyne::test
