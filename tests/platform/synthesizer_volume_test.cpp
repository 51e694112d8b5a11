#include "platform/sound/synthesizer_volume.h"

#include "pumped_output.h"
#include "tests/support/memory_file_system.h"
#include "tests/support/virtual_time.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

class SynthesizerVolumeTest : public testing::Test {
  protected:
    VirtualClock clock;
    Scheduler scheduler{clock};
    VirtualPump events{clock, scheduler};
    MemoryFileSystem files{PathStyle::posix, "/zephyne"};
    SynthesizerEngine engine{scheduler, {.usual_places = {}}, std::make_unique<PumpedOutput>()};
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
}  // namespace zephyne::test
