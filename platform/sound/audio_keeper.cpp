#include "platform/sound/audio_keeper.h"

#include <future>
#include <utility>

namespace zephyne {
namespace {

// Does the work on a thread of its own. Nothing when that takes too long; it is then left to
// itself, and what it brings forth is destroyed there.
template <typename Result, typename Work>
std::optional<Result> attempt(std::chrono::milliseconds patience, Work work) {
    std::packaged_task<Result()> task(std::move(work));
    std::future<Result> result = task.get_future();
    std::thread(std::move(task)).detach();
    if (result.wait_for(patience) != std::future_status::ready) return std::nullopt;
    return result.get();
}

}  // namespace

struct AudioKeeper::Opened {
    std::shared_ptr<AudioGate> gate;
    std::unique_ptr<AudioDevice> device;
    std::size_t number = 0;  // in the plan
};

AudioKeeper::AudioKeeper(AudioPlan plan, AudioPatience patience)
    : plan_(std::move(plan)), patience_(patience), useless_(plan_.devices.size() + 1) {}

AudioKeeper::~AudioKeeper() {
    {
        const std::lock_guard lock(mutex_);
        quit_ = true;
    }
    changed_.notify_one();
    if (thread_.joinable()) thread_.join();
}

void AudioKeeper::connect(AudioSource& source) {
    source_ = &source;
    thread_ = std::thread([this] { run(); });
}

void AudioKeeper::wake() {
    {
        const std::lock_guard lock(mutex_);
        if (wanted_) return;
        wanted_ = true;
        settled_ = false;
    }
    changed_.notify_one();
}

std::optional<std::string> AudioKeeper::take_problem() {
    const std::lock_guard lock(mutex_);
    return std::exchange(problem_, std::nullopt);
}

void AudioKeeper::tell_problem() {
    const std::lock_guard lock(mutex_);
    if (!told_) problem_ = plan_.problem;
    told_ = true;
}

void AudioKeeper::run() {
    while (true) {
        {
            std::unique_lock lock(mutex_);
            changed_.wait(lock, [this] { return wanted_ || quit_; });
            if (quit_) return;
        }
        Opened opened = open_first_that_will_do();
        settled_ = true;
        const Verdict verdict = watch_over(*opened.gate);
        if (verdict == Verdict::did_not_start) useless_[opened.number] = true;
        if (verdict == Verdict::idle) useless_.assign(useless_.size(), false);  // another chance
        close(std::move(opened));
        if (verdict == Verdict::quit) return;
    }
}

AudioKeeper::Opened AudioKeeper::open_first_that_will_do() {
    for (std::size_t number = 0; number < plan_.devices.size(); ++number) {
        if (useless_[number]) continue;
        Opened opened = try_to_open(plan_.devices[number]);
        opened.number = number;
        if (opened.device) return opened;
    }
    tell_problem();
    Opened opened = try_to_open(plan_.last_resort);
    opened.number = plan_.devices.size();
    return opened;
}

AudioKeeper::Opened AudioKeeper::try_to_open(const OpenDevice& open) const {
    Opened opened{.gate = std::make_shared<AudioGate>(*source_)};
    auto device = attempt<std::unique_ptr<AudioDevice>>(
        patience_.open_and_close, [open, gate = opened.gate] { return open(gate); });
    if (device) opened.device = std::move(*device);
    if (!opened.device) opened.gate->shut();
    return opened;
}

AudioKeeper::Verdict AudioKeeper::watch_over(const AudioGate& gate) {
    using SteadyClock = std::chrono::steady_clock;
    const auto opened = SteadyClock::now();
    auto last_call = opened;
    auto last_sound = opened;
    std::uint64_t calls = 0;
    std::unique_lock lock(mutex_);
    while (!changed_.wait_for(lock, patience_.look, [this] { return quit_; })) {
        const auto now = SteadyClock::now();
        const bool started = last_call - opened > patience_.started;
        if (gate.count() != calls) {
            calls = gate.count();
            last_call = now;
        } else if (now - last_call > (started ? patience_.next_call : patience_.start)) {
            return started ? Verdict::hangs : Verdict::did_not_start;
        }
        if (!source_->idle()) last_sound = now;
        if (now - last_sound > patience_.idle) {
            wanted_ = false;
            return Verdict::idle;
        }
    }
    return Verdict::quit;
}

void AudioKeeper::close(Opened opened) const {
    opened.gate->shut();
    attempt<bool>(patience_.open_and_close, [device = std::move(opened.device)]() mutable {
        device.reset();
        return true;
    });
}

}  // namespace zephyne
