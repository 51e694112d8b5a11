#include "platform/sound/exclusive_message.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <numeric>

namespace zephyne {
namespace {

constexpr std::array<std::uint8_t, 4> kGmReset{0x7E, 0x7F, 0x09, 0x01};
constexpr std::array<std::uint8_t, 9> kGsReset{0x41, 0x10, 0x42, 0x12, 0x40,
                                               0x00, 0x7F, 0x00, 0x41};
constexpr std::array<std::uint8_t, 7> kXgReset{0x43, 0x10, 0x4C, 0x00, 0x00, 0x7E, 0x00};

// The device number that we answer to, and the one that means all.
bool is_for_us(std::uint8_t device) {
    return device == 0x10 || device == 0x7F;
}

bool begins_with(ExclusiveMessage bytes, std::initializer_list<std::uint8_t> start) {
    return bytes.size() >= start.size() && std::equal(start.begin(), start.end(), bytes.begin());
}

// Maker, device, then the given rest: what follows that, or nothing.
ExclusiveMessage after(ExclusiveMessage message, std::uint8_t maker,
                       std::initializer_list<std::uint8_t> rest) {
    if (message.size() < 2 || message[0] != maker || !is_for_us(message[1])) return {};
    return begins_with(message.subspan(2), rest) ? message.subspan(2 + rest.size())
                                                 : ExclusiveMessage{};
}

// The one byte that is written to an address, of a GS or XG message. A GS message carries a check
// sum, which makes the sum of address, data and itself a multiple of 128.
std::optional<std::uint8_t> written_to_gs(ExclusiveMessage message,
                                          std::initializer_list<std::uint8_t> address) {
    const ExclusiveMessage rest = after(message, 0x41, {0x42, 0x12});
    if (rest.size() != address.size() + 2 || !begins_with(rest, address)) return std::nullopt;
    if (std::accumulate(rest.begin(), rest.end(), 0) % 128 != 0) return std::nullopt;
    return rest[address.size()];
}

std::optional<std::uint8_t> written_to_xg(ExclusiveMessage message,
                                          std::initializer_list<std::uint8_t> address) {
    const ExclusiveMessage rest = after(message, 0x43, {0x4C});
    if (rest.size() != address.size() + 1 || !begins_with(rest, address)) return std::nullopt;
    return rest[address.size()];
}

float amplitude(int value, int full) {
    const float part = static_cast<float>(value) / static_cast<float>(full);
    return part * part;
}

}  // namespace

std::optional<BankMode> reset_in(ExclusiveMessage message) {
    if (const auto gm = after(message, 0x7E, {0x09}); !gm.empty()) {
        if (gm[0] == 1 || gm[0] == 3) return BankMode::gm;
    }
    if (const auto gs = written_to_gs(message, {0x40, 0x00, 0x7F})) {
        if (*gs == 0x00) return BankMode::gs;
        if (*gs == 0x7F) return BankMode::gm;  // leaves GS
    }
    for (const std::uint8_t last : {0x7E, 0x7F}) {  // system on, all parameters
        if (written_to_xg(message, {0x00, 0x00, last}) == 0) return BankMode::xg;
    }
    return std::nullopt;
}

ExclusiveMessage reset_message(BankMode mode) {
    switch (mode) {
        case BankMode::gs:
            return kGsReset;
        case BankMode::gm:
            return kGmReset;
        case BankMode::xg:
            break;
    }
    return kXgReset;
}

std::optional<float> master_volume_in(ExclusiveMessage message) {
    const auto universal = after(message, 0x7F, {0x04, 0x01});
    if (universal.size() == 2) return amplitude(universal[1] << 7 | universal[0], 0x3FFF);
    if (const auto gs = written_to_gs(message, {0x40, 0x00, 0x04})) return amplitude(*gs, 127);
    if (const auto xg = written_to_xg(message, {0x00, 0x00, 0x04})) return amplitude(*xg, 127);
    return std::nullopt;
}

}  // namespace zephyne
