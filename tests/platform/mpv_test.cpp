#include "platform/video/mpv_backend.h"
#include "real_time.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <thread>

namespace zephyne::test {
namespace {

constexpr std::uint32_t kRate = 44100;

// Numbers as RIFF files have them, the low byte first.
std::string bytes16(std::uint32_t value) {
    return {static_cast<char>(value), static_cast<char>(value >> 8U)};
}
std::string bytes32(std::uint32_t value) {
    return bytes16(value & 0xFFFFU) + bytes16(value >> 16U);
}
std::string chunk(const std::string& name, const std::string& contents) {
    return name + bytes32(static_cast<std::uint32_t>(contents.size())) + contents;
}

// Sixteen-bit mono silence.
std::string wave_of(Milliseconds length) {
    const std::string format =
        bytes16(1) + bytes16(1) + bytes32(kRate) + bytes32(2 * kRate) + bytes16(2) + bytes16(16);
    const std::string sound(2 * kRate * static_cast<std::size_t>(length) / 1000, '\0');
    return chunk("RIFF", "WAVE" + chunk("fmt ", format) + chunk("data", sound));
}

// Uncompressed pictures of 16 by 16, one each 100 ms, without sound.
std::string video_of(std::uint32_t pictures) {
    const std::uint32_t size = 16 * 16 * 3;
    const std::string none = bytes32(0);
    const std::string main = bytes32(100000) + bytes32(10 * size) + none + none +
                             bytes32(pictures) + none + bytes32(1) + bytes32(size) + bytes32(16) +
                             bytes32(16) + none + none + none + none;
    const std::string stream = "vidsDIB " + none + none + none + bytes32(1) + bytes32(10) + none +
                               bytes32(pictures) + bytes32(size) + none + none + none + none;
    const std::string picture = bytes32(40) + bytes32(16) + bytes32(16) + bytes16(1) + bytes16(24) +
                                none + bytes32(size) + none + none + none + none;
    std::string frames;
    for (std::uint32_t i = 0; i < pictures; ++i) {
        frames += chunk("00db", std::string(size, static_cast<char>(20 * i)));
    }
    const std::string streams =
        chunk("LIST", "strl" + chunk("strh", stream) + chunk("strf", picture));
    return chunk("RIFF", "AVI " + chunk("LIST", "hdrl" + chunk("avih", main) + streams) +
                             chunk("LIST", "movi" + frames));
}

class MpvBackendTest : public testing::Test, public RealTime {
  protected:
    MpvBackendTest() {
        backend_.on_finished = [this] {
            ++ends_;
            EXPECT_EQ(backend_.mode(), DeviceMode::stopped);
            EXPECT_EQ(backend_.position(), backend_.length());
        };
        backend_.on_failed = [] { ADD_FAILURE() << "playing failed"; };
    }

    void open_wave(Milliseconds length) {
        EXPECT_EQ(error_of(folder_.add_file("sound.wav", wave_of(length))), "none");
    }
    std::string error_of(const std::string& path) {
        const auto opened = backend_.open(path);
        EXPECT_EQ(backend_.mode(), opened ? DeviceMode::stopped : DeviceMode::not_open);
        return opened ? "none" : opened.error();
    }
    void run_until_end() {
        run_until([this, before = ends_] { return ends_ != before; });
    }
    // Time in which no events are handled.
    static void sleep_for(Milliseconds time) {
        std::this_thread::sleep_for(std::chrono::milliseconds(time));
    }

    TemporaryFolder folder_;
    MpvBackend backend_{scheduler_, "null"};
    int ends_ = 0;
};

TEST_F(MpvBackendTest, LengthIsExactAndTheEndIsToldOnceAndNotTooEarly) {
    open_wave(150);
    EXPECT_EQ(backend_.mode(), DeviceMode::stopped);
    EXPECT_EQ(backend_.length(), 150);
    EXPECT_EQ(backend_.position(), 0);
    for (int round = 1; round <= 2; ++round) {
        const Milliseconds start = clock_.now();
        backend_.play_from(0);
        EXPECT_EQ(backend_.mode(), DeviceMode::playing);
        run_until_end();
        EXPECT_EQ(ends_, round);
        EXPECT_GE(clock_.now() - start, 140) << "the end before must not be taken for the new one";
    }
    run_for(30);
    EXPECT_EQ(ends_, 2);
}

TEST_F(MpvBackendTest, PlacesAreExactAndKeptThroughPauseAndStop) {
    open_wave(60000);
    backend_.pause();
    EXPECT_EQ(backend_.mode(), DeviceMode::paused);
    backend_.play_from(30000);
    EXPECT_EQ(backend_.position(), 30000) << "before the player has even begun to seek";
    while (backend_.position() == 30000) run_for(5);
    backend_.pause();
    const Milliseconds place = backend_.position();
    EXPECT_GT(place, 30000);
    EXPECT_LT(place, 32000);
    run_for(50);
    EXPECT_EQ(backend_.position(), place);
    backend_.play();
    run_for(20);
    EXPECT_GE(backend_.position(), place);
    backend_.stop();
    EXPECT_EQ(backend_.mode(), DeviceMode::stopped);
    EXPECT_LT(backend_.position(), 33000);
    backend_.play_from(-5);
    EXPECT_EQ(backend_.position(), 0);
}

TEST_F(MpvBackendTest, SongThatIsHeldWhileItIsMovedStaysAtTheNewPlace) {
    open_wave(60000);
    backend_.play();
    run_for(100);
    for (const Milliseconds place : {30000, 60000, 10000, 60000}) {
        backend_.pause();
        backend_.play_from(place);
        backend_.pause();
        EXPECT_EQ(backend_.mode(), DeviceMode::paused);
        run_for(100);
        EXPECT_EQ(backend_.position(), place);
    }
    backend_.play();
    run_until_end();
    EXPECT_EQ(ends_, 1);
}

// The library writes all that would be heard into a file in the working folder.
TEST_F(MpvBackendTest, NothingIsHeardOfASongThatIsMovedWhileItIsHeld) {
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder_.root);
    const auto heard = [] {
        std::error_code none_yet;
        const auto size = std::filesystem::file_size("audiodump.wav", none_yet);
        return none_yet ? 0 : size;
    };
    {
        MpvBackend backend(scheduler_, "pcm");
        ASSERT_TRUE(backend.open(folder_.add_file("sound.wav", wave_of(60000))));
        backend.pause();
        for (const Milliseconds place : {30000, 10000, 40000, 20000, 50000}) {
            backend.play_from(place);
            backend.pause();
            run_for(50);
        }
        EXPECT_LT(heard(), 1000U) << "no more than the head of the file";
        backend.play();
        run_for(200);
        EXPECT_GT(heard(), 10000U);
    }
    std::filesystem::current_path(before);
}

TEST_F(MpvBackendTest, PlayingWhereNothingIsLeftEndsAfterAMoment) {
    open_wave(0);
    EXPECT_EQ(backend_.length(), 0);
    backend_.play();
    EXPECT_EQ(backend_.mode(), DeviceMode::playing);
    EXPECT_EQ(ends_, 0);
    run_until_end();
    EXPECT_EQ(ends_, 1);

    open_wave(60000);
    backend_.play_from(70000);
    EXPECT_EQ(backend_.mode(), DeviceMode::playing);
    EXPECT_EQ(backend_.position(), 60000);
    run_until_end();
    EXPECT_EQ(ends_, 2);
}

TEST_F(MpvBackendTest, EndThatComesDuringAPauseWaitsAndIsForgottenWhenPlayingBeginsAnew) {
    open_wave(100);
    backend_.play();
    sleep_for(250);
    backend_.pause();
    run_for(20);
    EXPECT_EQ(ends_, 0);
    EXPECT_EQ(backend_.mode(), DeviceMode::paused);
    backend_.play();
    run_until_end();
    EXPECT_EQ(ends_, 1);

    backend_.play_from(0);
    sleep_for(250);
    const Milliseconds start = clock_.now();
    backend_.play_from(0);
    run_until_end();
    EXPECT_GE(clock_.now() - start, 90);
    run_for(30);
    EXPECT_EQ(ends_, 2);
}

TEST_F(MpvBackendTest, EndThatWasWaitedForOrClosedAwayIsNotTold) {
    open_wave(60);
    backend_.wait_until_finished();  // returns at once: nothing plays
    backend_.play();
    const Milliseconds start = clock_.now();
    backend_.wait_until_finished();
    EXPECT_GE(clock_.now() - start, 50);
    EXPECT_EQ(backend_.mode(), DeviceMode::stopped);
    EXPECT_EQ(backend_.position(), 60);

    backend_.play_from(0);
    sleep_for(150);
    backend_.close();
    EXPECT_EQ(backend_.mode(), DeviceMode::not_open);
    EXPECT_EQ(backend_.length(), 0);
    run_for(30);
    EXPECT_EQ(ends_, 0);
    backend_.play();
    backend_.stop();
    EXPECT_EQ(backend_.mode(), DeviceMode::not_open);
}

TEST_F(MpvBackendTest, WhatIsNoSoundOrVideoIsRefusedWithAWord) {
    const std::string song = folder_.add_file("real.wav", wave_of(100));
    ::mkfifo(folder_.path("pipe.wav").c_str(), 0600);
    EXPECT_EQ(error_of(folder_.path("gone.wav")), "File not found");
    EXPECT_EQ(error_of(folder_.root), "Not an ordinary file");
    EXPECT_EQ(error_of(folder_.path("pipe.wav")), "Not an ordinary file");
    // Lists of other files must not be followed.
    for (const std::string& text : {std::string(), std::string("no sound at all"),
                                    "#EXTM3U\n" + song, "# mpv EDL v0\n" + song}) {
        EXPECT_EQ(error_of(folder_.add_file("text.wav", text)), "The file has an unknown format")
            << text;
    }
    EXPECT_EQ(error_of(song), "none") << "the player has survived all that";
}

TEST_F(MpvBackendTest, DamagedFilesAndVideosWithoutSoundPlayAsFarAsTheyGo) {
    const std::string whole = wave_of(1000);
    ASSERT_EQ(error_of(folder_.add_file("cut.wav", whole.substr(0, whole.size() / 10))), "none");
    backend_.play();
    run_until_end();
    EXPECT_EQ(ends_, 1);

    ASSERT_EQ(error_of(folder_.add_file("clip.avi", video_of(3))), "none");
    EXPECT_EQ(backend_.length(), 300);
    const Milliseconds start = clock_.now();
    backend_.play_from(100);
    run_until_end();
    EXPECT_EQ(ends_, 2);
    EXPECT_GE(clock_.now() - start, 100);
}

TEST_F(MpvBackendTest, NamesAreBytesAndNoCommands) {
    for (const char* name : {"\xE9t\xE9 \x80.wav", "${path} $$ %n.wav", "http:--a.wav", "#1.wav"}) {
        EXPECT_EQ(error_of(folder_.add_file(name, wave_of(20))), "none") << name;
        EXPECT_EQ(backend_.length(), 20);
    }
}

}  // namespace
}  // namespace zephyne::test
