#include "platform/sound/synthesizer_volume.h"

#include "core/text/numbers.h"

#include <charconv>
#include <utility>

namespace zephyne {
namespace {

constexpr Milliseconds kWriteAfter = 2000;
constexpr std::size_t kLongestNumber = 16;

float amplitude(std::uint32_t word) {
    return static_cast<float>(word & 0xFFFFU) / 0xFFFF;
}

}  // namespace

SynthesizerVolume::SynthesizerVolume(SynthesizerEngine& engine, Scheduler& scheduler,
                                     FileSystem& files)
    : engine_(engine), files_(files), writer_(scheduler, kWriteAfter) {
    writer_.on_tick = [this] { write(); };
}

SynthesizerVolume::~SynthesizerVolume() {
    write();
}

void SynthesizerVolume::keep_in(std::string file) {
    file_ = std::move(file);
    const auto text = files_.read_file(file_, kLongestNumber);
    if (!text) return;
    std::uint32_t kept = 0;
    const auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), kept);
    if (error != std::errc() || end == text->data()) return;
    volume_ = kept_ = kept;
    apply();
}

std::string SynthesizerVolume::device_name(std::uint32_t device) const {
    return device == 0 ? "Zephyne Synthesizer" : "";
}

std::uint32_t SynthesizerVolume::volume(std::uint32_t device) const {
    return device == 0 ? volume_ : 0xFFFFFFFF;
}

void SynthesizerVolume::set_volume(std::uint32_t device, std::uint32_t volume) {
    if (device != 0 || volume == volume_) return;
    volume_ = volume;
    apply();
    writer_.set_enabled(true);
}

void SynthesizerVolume::apply() {
    engine_.set_volume(amplitude(volume_), amplitude(volume_ >> 16U));
}

void SynthesizerVolume::write() {
    writer_.set_enabled(false);
    if (file_.empty() || volume_ == kept_) return;
    kept_ = volume_;
    (void)files_.replace_file(file_, decimal(static_cast<std::int64_t>(volume_)) + "\n");
}

}  // namespace zephyne
