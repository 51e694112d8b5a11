#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

// The device by itself: what it reports goes into the log instead of to the player.
class Device : public testing::Test {
  protected:
    Device() {
        device.on_done = [this](NotifyCode code) {
            world.log.push_back("Done " + std::to_string(static_cast<int>(code)));
        };
        device.on_status_update = nullptr;
        device.on_key = nullptr;
    }

    void play(const std::string& name) {
        device.open_to_play(world.path(name));
        EXPECT_EQ(device.start(0, world.pump), PlayResult::plays);
        world.happened();
    }

    World world{"a.mid", "b.mid"};
    MediaDevice& device = world.device;
};

TEST_F(Device, DoneTellsHowAPlayCameToItsEnd) {
    play("a.mid");
    world.run_for(60'000);
    device.PauseDevice();
    world.run_for(600'000);
    EXPECT_EQ(device.Position(), 60'000);
    device.ResumeDevice();
    world.run_for(119'999);
    EXPECT_EQ(world.happened(), (Log{"pause a.mid", "play a.mid", "Done 2"}));
    world.run_for(1);
    EXPECT_EQ(world.happened(), Log{"Done 1"});
    device.From = 0;
    device.command(DeviceCommand::Play);
    device.command(DeviceCommand::Play);
    world.pump.pump();
    EXPECT_EQ(world.happened(), (Log{"play a.mid from 0", "play a.mid", "Done 2"}));
    device.command(DeviceCommand::Stop);
    world.pump.pump();
    EXPECT_EQ(world.happened(), Log{"Done 4"});
    device.command(DeviceCommand::Play);
    world.midi.fail();
    world.pump.pump();
    EXPECT_EQ(world.happened(), (Log{"play a.mid", "Done 8"}));
}

TEST_F(Device, TheEndOfAFileThatHasBeenClosedMeanwhileIsNotReported) {
    play("a.mid");
    world.midi.finish();  // the report is on its way
    device.StopAndClose();
    device.open_to_play(world.path("b.mid"));
    world.run_for(1000);
    EXPECT_EQ(world.happened(), (Log{"close a.mid", "open b.mid"}));
}

TEST_F(Device, NotifyHoldsForOneCommandOnly) {
    play("a.mid");
    device.Notify = false;
    device.command(DeviceCommand::Play);
    world.run_for(180'000);
    EXPECT_EQ(world.happened(), Log{"play a.mid"}) << "nobody wanted to know";
    device.From = 0;
    device.command(DeviceCommand::Play);
    world.run_for(180'000);
    EXPECT_EQ(world.happened(), (Log{"play a.mid from 0", "Done 1"}));
}

TEST_F(Device, WaitingForAPlayTakesItsTimeWithoutRunningHandlers) {
    int handled = 0;
    world.pump.on_pump = [&] { ++handled; };
    world.midi.lengths["a.mid"] = 80;
    device.FileName = world.path("a.mid");
    device.command(DeviceCommand::Open);
    const Milliseconds begin = world.clock.now();
    device.Wait = true;
    device.command(DeviceCommand::Play);
    EXPECT_EQ(world.clock.now() - begin, 80);
    EXPECT_EQ(handled, 0);
    world.run_for(500);
    EXPECT_EQ(world.happened(), (Log{"open a.mid", "play a.mid", "Done 1"}));
}

TEST_F(Device, SeekingGoesToTheNearestMillisecond) {
    world.midi.lengths["a.mid"] = 1001;
    play("a.mid");
    device.PauseDevice();
    device.SeekPercent(50, world.pump);
    EXPECT_EQ(device.Mode(), DeviceMode::paused);
    device.SeekPercent(33, world.pump);
    EXPECT_EQ(world.happened(), (Log{"pause a.mid", "play a.mid from 500", "pause a.mid",
                                     "play a.mid from 330", "pause a.mid"}));
    device.StopAndClose();
    world.midi.lengths["a.mid"] = 1003;
    play("a.mid");
    device.SeekPercent(50, world.pump);
    EXPECT_EQ(world.happened(), (Log{"Done 4", "play a.mid from 502"}));
    EXPECT_EQ(device.Mode(), DeviceMode::playing);
    EXPECT_TRUE(world.form.MMControl1.transport_enabled());
}

TEST_F(Device, APlaceToStartFromIsUsedOnceOnly) {
    device.open_to_play(world.path("a.mid"));
    device.start(70'000, world.pump);
    device.StopAndClose();
    device.open_to_play(world.path("B.Mid"));  // found in any letters
    device.start(0, world.pump);
    EXPECT_EQ(world.happened(), (Log{"open a.mid", "play a.mid from 70000", "close a.mid",
                                     "open b.mid", "play b.mid"}));
}

TEST_F(Device, AfterItsEndNoCommandHasAnEffect) {
    play("a.mid");
    device.shut_down();
    device.open_to_play(world.path("b.mid"));
    EXPECT_EQ(device.start(0, world.pump), PlayResult::does_not_play);
    EXPECT_EQ(world.happened(), Log{"close a.mid"});
}

}  // namespace
}  // namespace zephyne::test
