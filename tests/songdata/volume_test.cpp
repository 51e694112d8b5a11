#include "songdata/volume_control.h"
#include "songdata/volume_file.h"
#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

TEST(VolumeFile, IsFourLinesAndIsReadLeniently) {
    const std::string text = "Zephyne Volume Settings File\r\n 25\r\n 100\r\n 1\r\n";
    EXPECT_EQ(volume_file_text({25, 100, 1}), text);
    EXPECT_EQ(parse_volume_file(text), (RememberedVolume{25, 100, 1}));
    EXPECT_EQ(parse_volume_file("any title\n7.5\nleft\n1"), (RememberedVolume{8, 0, 1}));
    for (const char* damaged :
         {"", "title\n1\n2", "\n101\n0\n0", "\n0\n-1\n0", "\n0\n0\n1e9", "\n1e400\n0\n0"}) {
        EXPECT_FALSE(parse_volume_file(damaged)) << damaged;
    }
}

TEST(FindSynthDevice, TakesTheFirstSynthesizerElseTheFirstDevice) {
    FakeMidiOut outputs;
    outputs.names = {"MIDI Mapper", "FM SYNTH 2", "Wave Synth"};
    EXPECT_EQ(FindSynthDevice(outputs), 1U);
    outputs.names = {"MIDI Mapper", "Port A"};
    EXPECT_EQ(FindSynthDevice(outputs), 0U);
    outputs.names = {};
    EXPECT_EQ(FindSynthDevice(outputs), 0U);
}

class VolumeControlTest : public testing::Test {
  protected:
    VolumeControlTest() {
        world.settings().Lowercase = 0;
        world.settings().AllowWav = 1;
        world.open_folder();
        world.form.Timer6.set_enabled(true);
        control.start();
    }

    void set_sliders(int left, int right) {
        world.form.Slider2.set_value(left);
        world.form.Slider3.set_value(right);
        control.setvolume();
    }
    // Left and right slider, and whether they are locked.
    std::string sliders() const {
        const Form1& f = world.form;
        return std::to_string(f.Slider2.value()) + " " + std::to_string(f.Slider3.value()) +
               (f.Check1.value() == 1 ? " locked" : "");
    }
    void remember(const std::string& song, const std::string& left, const std::string& right,
                  const std::string& lock) {
        world.files.add_file(world.path(song), "title\r\n" + left + "\r\n" + right + "\r\n" + lock);
    }

    World world{"SONG.MID", "noise.wav", "quiet.mid"};
    FakeMidiOut output;
    VolumeControl control{world.stage, output};
};

TEST_F(VolumeControlTest, WordHoldsLeftBelowRightAndHalvesGoToEven) {
    const std::vector<std::tuple<int, int, std::uint32_t>> cases{
        {0, 0, 0xFFFFFFFF}, {0, 100, 0x0000FFFF}, {50, 50, 0x80008000}, {100, 100, 0}};
    for (const auto& [left, right, word] : cases) {
        set_sliders(left, right);
        EXPECT_EQ(output.words[0], word);
    }
    for (const char* taken : {"25 75", "25 25 locked"}) {
        output.words[0] = 0x4000'C000;
        control.start();
        EXPECT_EQ(sliders(), taken) << "the lock takes the left one";
        world.form.Check1.set_value(1);
    }
}

TEST_F(VolumeControlTest, LockTiesTheSlidersWhileTheyAreDragged) {
    Slider& right = world.form.Slider3;
    right.press();
    right.drag_to(40);
    EXPECT_EQ(output.words[0], 0x9999FFFFU) << "the device follows the drag";
    right.release();
    EXPECT_TRUE(world.form.Check1.focused());
    world.form.Check1.click();
    EXPECT_EQ(sliders(), "0 0 locked") << "the left one leads when the lock is set";
    EXPECT_EQ(output.words[0], 0xFFFFFFFFU);
    right.press();
    right.drag_to(70);
    EXPECT_EQ(sliders(), "70 70 locked");
    right.release();
    world.form.Check1.click();
    EXPECT_EQ(sliders(), "70 70");
    world.form.Slider2.step_to(10);
    EXPECT_EQ(output.words[0], 0x4CCCE666U) << "keys act as the mouse does";
}

TEST_F(VolumeControlTest, PollFollowsTheDeviceButNotUnderTheUsersHand) {
    output.words[0] = 0x8000'4000;
    world.run_for(1000);
    EXPECT_EQ(sliders(), "75 50");
    EXPECT_EQ(output.words[0], 0x8000'4000U) << "looking changes nothing";

    world.form.Slider2.press();
    world.form.Slider2.drag_to(20);
    output.words[0] = 0;
    world.run_for(3000);
    EXPECT_EQ(sliders(), "20 50");
    world.form.Slider2.release();

    world.form.Check1.set_value(1);
    output.words[0] = 0xC000'4000;  // the right channel is the louder one
    world.run_for(1000);
    EXPECT_EQ(sliders(), "25 25 locked");
    EXPECT_EQ(output.words[0], 0xBFFFBFFFU);
    EXPECT_TRUE(world.form.Timer6.enabled());
}

TEST_F(VolumeControlTest, RemVolNeedsAPlayingMidiSong) {
    world.happened();
    world.form.Command14.click();
    world.click("noise.wav");
    world.form.Command14.click();
    EXPECT_EQ(world.said(),
              (Log{"message: Can't save volume settings - no file is currently playing. [Error]",
                   "message: Volume settings apply to .MID/.RMI files only. [Error]"}));
    EXPECT_FALSE(world.files.exists(world.path("noise.vol")));
}

TEST_F(VolumeControlTest, RemVolRemembersAndForgets) {
    const std::string question =
        "message: This will remember the current volume settings for SONG.MID and adjust them "
        "appropriately the next time you play the song.  Click YES to remember the settings, NO "
        "to forget the settings. [Choose an option]";
    const std::string forgotten = "message: Volume settings forgotten for SONG.MID. [Done.]";
    const auto remembered = [&] { return world.files.contents(world.path("SONG.vol")); };
    world.click("SONG.MID");
    set_sliders(25, 30);
    world.happened();
    world.form.Command14.click();
    EXPECT_EQ(remembered(), "Zephyne Volume Settings File\r\n 25\r\n 30\r\n 0\r\n");
    set_sliders(5, 5);
    world.files.fail_write_number(1);
    world.form.Command14.click();
    EXPECT_EQ(remembered(), "Zephyne Volume Settings File\r\n 25\r\n 30\r\n 0\r\n");
    world.messages.answer = Answer::no;
    world.form.Command14.click();
    world.form.Command14.click();
    EXPECT_EQ(remembered(), std::nullopt);
    EXPECT_EQ(world.happened(),
              (Log{question, "message: Volume settings remembered for SONG.MID [Done.]", question,
                   "message: Error saving volume settings - Disk full [Error]", question, forgotten,
                   question, forgotten}));
}

TEST_F(VolumeControlTest, AnswerIsAboutTheSongAndTheVolumeOfTheQuestion) {
    remember("quiet.vol", "70", "70", "0");
    world.click("SONG.MID");
    set_sliders(25, 30);
    world.messages.while_open = [this] {
        world.messages.while_open = nullptr;
        world.click("quiet.mid");
    };
    world.form.Command14.click();
    EXPECT_EQ(world.files.contents(world.path("SONG.vol")),
              "Zephyne Volume Settings File\r\n 25\r\n 30\r\n 0\r\n");

    // The end of the program closes the question; that is no "No".
    world.messages.answer = Answer::no;
    world.messages.while_open = [this] { world.program.Ending = true; };
    world.form.Command14.click();
    EXPECT_TRUE(world.files.exists(world.path("quiet.vol")));
}

TEST_F(VolumeControlTest, SongBringsItsVolumeAndALockThatStays) {
    remember("song.VOL", " 40", " 60", " 1");
    world.click("SONG.MID");
    EXPECT_EQ(sliders(), "40 40 locked") << "found in either case; the lock ties the sliders";
    EXPECT_EQ(output.words[0], 0x99999999U);
    world.click("quiet.mid");
    EXPECT_EQ(sliders(), "40 40 locked");
    remember("quiet.vol", "1", "2", "0");
    world.click("quiet.mid");
    EXPECT_EQ(sliders(), "1 2");
    remember("noise.vol", "1", "2", "101");
    set_sliders(70, 80);
    world.click("noise.wav");
    EXPECT_EQ(sliders(), "70 80") << "a damaged file changes nothing";
    EXPECT_TRUE(world.form.Timer6.enabled());
}

}  // namespace
}  // namespace zephyne::test
