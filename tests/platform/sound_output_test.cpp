// The audio output: which device it takes, and what it does when devices fail, hang or are not
// needed; and the WAVE file as a device.
#include "platform/sound/audio_keeper.h"
#include "platform/sound/clock_audio_device.h"
#include "platform/sound/wave_file_writer.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <thread>

namespace zephyne::test {
namespace {

using namespace std::chrono_literals;

class Source final : public AudioSource {
  public:
    std::atomic<bool> has_nothing_to_say{false};
    std::atomic<int> rendered{0};
    std::atomic<int> inside{0};
    std::atomic<bool> entered_twice{false};

    void render(float* left, float* right, int frames) noexcept override {
        if (++inside > 1) entered_twice = true;
        std::fill_n(left, frames, 0.25F);
        std::fill_n(right, frames, -0.5F);
        ++rendered;
        --inside;
    }
    bool idle() const noexcept override { return has_nothing_to_say; }
};

// What happens to the devices, in order.
class Log {
  public:
    void add(const std::string& line) {
        const std::lock_guard lock(mutex_);
        lines_.push_back(line);
        changed_.notify_all();
    }
    // Waits for that line, after the one that was waited for before; false after ten seconds.
    bool comes_to(const std::string& line) {
        std::unique_lock lock(mutex_);
        return changed_.wait_for(lock, 10s, [&] {
            while (seen_ < lines_.size()) {
                if (lines_[seen_++] == line) return true;
            }
            return false;
        });
    }
    std::vector<std::string> lines() {
        const std::lock_guard lock(mutex_);
        return lines_;
    }

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::string> lines_;
    std::size_t seen_ = 0;
};

using LogPointer = std::shared_ptr<Log>;

// Asks for sound every millisecond, or up to `calls` times, and takes its time to close.
class FakeDevice final : public AudioDevice {
  public:
    FakeDevice(LogPointer log, std::string name, std::shared_ptr<AudioGate> gate, int calls,
               std::chrono::milliseconds closing)
        : log_(std::move(log)), name_(std::move(name)), closing_(closing) {
        thread_ = std::thread([this, gate = std::move(gate), calls] {
            float left[64];
            float right[64];
            for (int i = 0; i < calls && !quit_; ++i) {
                gate->fill(left, right, 64);
                std::this_thread::sleep_for(1ms);
            }
        });
        log_->add(name_ + " opened");
    }
    ~FakeDevice() override {
        quit_ = true;
        thread_.join();
        std::this_thread::sleep_for(closing_);
        log_->add(name_ + " closed");
    }

  private:
    LogPointer log_;
    std::string name_;
    std::chrono::milliseconds closing_;
    std::atomic<bool> quit_{false};
    std::thread thread_;
};

constexpr int kForever = 1'000'000;

OpenDevice device(const LogPointer& log, const std::string& name, int calls = kForever,
                  std::chrono::milliseconds closing = 0ms) {
    return [=](std::shared_ptr<AudioGate> gate) {
        return std::make_unique<FakeDevice>(log, name, std::move(gate), calls, closing);
    };
}

OpenDevice no_device(const LogPointer& log, const std::string& name) {
    return [=](const std::shared_ptr<AudioGate>&) {
        log->add(name + " failed");
        return nullptr;
    };
}

// For devices that do not hang, however busy the machine is; and for some that do.
constexpr AudioPatience kPatient{
    .open_and_close = 9s, .start = 9s, .next_call = 9s, .idle = 100ms, .look = 5ms};
constexpr AudioPatience kHurry{.open_and_close = 300ms,
                               .start = 300ms,
                               .started = 20ms,
                               .next_call = 200ms,
                               .idle = 100ms,
                               .look = 5ms};

struct AudioKeeperTest : testing::Test {
    // With these devices, of which the last one stands in for all others.
    std::unique_ptr<AudioKeeper> keep(std::vector<OpenDevice> devices, AudioPatience patience) {
        auto keeper = std::make_unique<AudioKeeper>(
            AudioPlan{std::move(devices), device(log, "last"), "Nothing."}, patience);
        keeper->connect(source);
        keeper->wake();
        return keeper;
    }

    LogPointer log = std::make_shared<Log>();
    Source source;
};

TEST_F(AudioKeeperTest, TakesTheFirstDeviceThatOpens) {
    const auto keeper = keep({no_device(log, "a"), device(log, "b"), device(log, "c")}, kPatient);
    EXPECT_TRUE(log->comes_to("b opened"));
    while (source.rendered < 3) std::this_thread::sleep_for(1ms);
    EXPECT_EQ(keeper->take_problem(), std::nullopt);
    EXPECT_EQ(log->lines(), (std::vector<std::string>{"a failed", "b opened"}));
}

TEST_F(AudioKeeperTest, PlaysOnSilentlyAndSaysSoOnceWhenNoDeviceOpens) {
    const auto keeper = keep({no_device(log, "a")}, kPatient);
    EXPECT_FALSE(keeper->settled());
    EXPECT_TRUE(log->comes_to("last opened"));
    while (!keeper->settled()) std::this_thread::sleep_for(1ms);
    EXPECT_EQ(keeper->take_problem(), "Nothing.");
    source.has_nothing_to_say = true;
    EXPECT_TRUE(log->comes_to("last closed"));
    source.has_nothing_to_say = false;
    keeper->wake();  // tries all anew
    EXPECT_TRUE(log->comes_to("last opened"));
    while (!keeper->settled()) std::this_thread::sleep_for(1ms);
    EXPECT_EQ(keeper->take_problem(), std::nullopt);
}

TEST_F(AudioKeeperTest, ClosesTheDeviceWhenThereIsNothingToHearAndOpensItAgain) {
    const auto keeper = keep({device(log, "a")}, kPatient);
    for (int round = 0; round < 2; ++round) {
        source.has_nothing_to_say = false;
        keeper->wake();
        EXPECT_TRUE(log->comes_to("a opened"));
        std::this_thread::sleep_for(150ms);
        EXPECT_EQ(log->lines().back(), "a opened");
        source.has_nothing_to_say = true;
        EXPECT_TRUE(log->comes_to("a closed"));
    }
}

TEST_F(AudioKeeperTest, ReplacesADeviceThatStopsAskingForSound) {
    const auto keeper = keep({device(log, "dies", 200)}, kHurry);
    EXPECT_TRUE(log->comes_to("dies closed"));
    EXPECT_TRUE(log->comes_to("dies opened"));  // it may have been only its server
}

TEST_F(AudioKeeperTest, GivesUpADeviceThatDoesNotStart) {
    const auto keeper = keep({device(log, "mute", 2), device(log, "b")}, kHurry);
    EXPECT_TRUE(log->comes_to("b opened"));
    EXPECT_EQ(log->lines(), (std::vector<std::string>{"mute opened", "mute closed", "b opened"}));
}

TEST_F(AudioKeeperTest, DoesNotWaitForADeviceThatHangsWhenItIsOpenedOrClosed) {
    const auto slow = [this](std::shared_ptr<AudioGate> gate) {
        std::this_thread::sleep_for(800ms);
        return std::make_unique<FakeDevice>(log, "slow", std::move(gate), kForever, 0ms);
    };
    auto keeper = keep({slow, device(log, "b")}, kHurry);
    EXPECT_TRUE(log->comes_to("b opened"));
    EXPECT_TRUE(log->comes_to("slow opened"));  // too late to be of use
    EXPECT_TRUE(log->comes_to("slow closed"));

    keeper.reset();
    log = std::make_shared<Log>();
    keeper = keep({device(log, "stuck", 200, 800ms)}, kHurry);
    EXPECT_TRUE(log->comes_to("stuck closed"));
    EXPECT_EQ(log->lines()[1], "stuck opened");  // again, long before
    EXPECT_FALSE(source.entered_twice);
}

// A hundred wake-ups and idle moments, at odds with each other.
TEST_F(AudioKeeperTest, NeverMissesAWakeUp) {
    AudioPatience patience = kPatient;
    patience.idle = 1ms;
    patience.look = 1ms;
    const auto keeper = keep({device(log, "a")}, patience);
    for (int round = 0; round < 100; ++round) {
        source.has_nothing_to_say = false;
        keeper->wake();
        const int before = source.rendered;
        const auto limit = std::chrono::steady_clock::now() + 10s;
        while (source.rendered == before) {
            ASSERT_LT(std::chrono::steady_clock::now(), limit) << round;
            std::this_thread::sleep_for(100us);
        }
        source.has_nothing_to_say = true;
        std::this_thread::sleep_for(std::chrono::microseconds(100 * (round % 30)));
    }
}

class WaveFile : public testing::Test {
  protected:
    std::string bytes() const {
        std::ifstream file(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::uint32_t number_at(std::size_t place) const {
        const std::string all = bytes();
        std::uint32_t number = 0;  // the low byte comes first
        for (const std::size_t i : {3, 2, 1, 0}) {
            number = number << 8 | static_cast<std::uint8_t>(all.at(place + i));
        }
        return number;
    }

    TemporaryFolder folder_;
    std::string path_ = folder_.path("sound.wav");
};

TEST_F(WaveFile, IsWholeWhileItIsWrittenAndAfterwards) {
    auto writer = WaveFileWriter::create(path_);
    ASSERT_TRUE(writer);
    EXPECT_EQ(number_at(40), 0U);  // no data yet, but a file
    const std::vector<float> left(1000, 0.5F);
    const std::vector<float> right(1000, -2.0F);
    for (int i = 0; i < 100; ++i) writer->write(left.data(), right.data(), 1000);
    // As if the program were killed now: at most a second is missing.
    const std::uint32_t size = number_at(40);
    EXPECT_GE(size + 4 * 44100, 4U * 100'000);
    EXPECT_LE(44 + size, bytes().size());
    EXPECT_EQ(number_at(4), 36 + size);
    writer.reset();
    const auto all = bytes();
    EXPECT_EQ(all.size(), 44U + 4 * 100'000);
    EXPECT_EQ(number_at(40), 4U * 100'000);
    EXPECT_EQ(all.substr(0, 4), "RIFF");
    EXPECT_EQ(all.substr(8, 8), "WAVEfmt ");
    EXPECT_EQ(number_at(20), 0x00020001U);  // PCM, two sides
    EXPECT_EQ(number_at(24), 44100U);
    EXPECT_EQ(number_at(44), 0x80014000U);  // 0.5 and, cut off, -1
}

TEST_F(WaveFile, IsNotBegunInAFolderThatIsNotThereNorInAPipe) {
    EXPECT_FALSE(WaveFileWriter::create(path_ + "/missing/out.wav"));
    ASSERT_EQ(mkfifo(path_.c_str(), 0600), 0);
    EXPECT_FALSE(WaveFileWriter::create(path_));
}

TEST_F(WaveFile, TakesTheSoundInRealTimeAndGoesOnWhenTheDeviceIsOpenedAgain) {
    Source source;
    std::shared_ptr<WaveFileWriter> writer = WaveFileWriter::create(path_);
    const auto begin = std::chrono::steady_clock::now();
    for (int round = 0; round < 2; ++round) {
        const auto device = open_clock_device(std::make_shared<AudioGate>(source), writer);
        const int enough = source.rendered + 5;
        while (source.rendered < enough) std::this_thread::sleep_for(1ms);
    }
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
    writer.reset();
    const double seconds = number_at(40) / 4.0 / 44100;
    EXPECT_GE(seconds, 10 * 1024 / 44100.0);
    EXPECT_LE(seconds, passed.count() + 3 * 1024 / 44100.0);
    EXPECT_EQ(number_at(44), 0xC0002000U);  // -0.5 and 0.25
}

}  // namespace
}  // namespace zephyne::test
