#include "platform/sound/synthesizer_volume.h"

#include "tests/support/memory_file_system.h"
#include "tests/support/virtual_time.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

namespace zephyne {
namespace {

class SilentOutput final : public AudioOutput {
  public:
    void connect(AudioSource&) override {}
    void wake() override {}
    bool settled() const override { return true; }
    std::optional<std::string> take_problem() override { return {}; }
};

class SynthesizerVolumeTest : public testing::Test {
  protected:
    test::VirtualClock clock;
    Scheduler scheduler{clock};
    test::VirtualPump events{clock, scheduler};
    MemoryFileSystem files{PathStyle::posix, "/zephyne"};
    SynthesizerEngine engine{scheduler, {.usual_places = {}}, std::make_unique<SilentOutput>()};
};

TEST_F(SynthesizerVolumeTest, IsKeptAcrossRuns) {
    {
        SynthesizerVolume volume(engine, scheduler, files);
        volume.keep_in("/zephyne/midi-volume");
        EXPECT_EQ(volume.volume(0), 0xFFFFFFFFU);
        volume.set_volume(0, 0x1234'5678);
        EXPECT_FALSE(files.exists("/zephyne/midi-volume")) << "not with each step of a slider";
        events.run_for(2000);
        EXPECT_TRUE(files.exists("/zephyne/midi-volume"));
        volume.set_volume(0, 0x8765'4321);
        volume.set_volume(1, 0);
        EXPECT_EQ(volume.volume(1), 0xFFFFFFFFU) << "there is no second device";
    }
    SynthesizerVolume volume(engine, scheduler, files);
    volume.keep_in("/zephyne/midi-volume");
    EXPECT_EQ(volume.volume(0), 0x8765'4321U);
    EXPECT_NE(volume.device_name(0).find("Synth"), std::string::npos);
}

TEST_F(SynthesizerVolumeTest, DamagedFileIsFullVolume) {
    for (const char* text : {"", "loud", "99999999999", "-1"}) {
        files.add_file("/zephyne/midi-volume", text);
        SynthesizerVolume volume(engine, scheduler, files);
        volume.keep_in("/zephyne/midi-volume");
        EXPECT_EQ(volume.volume(0), 0xFFFFFFFFU) << text;
    }
}

}  // namespace
}  // namespace zephyne
