// Understands those system exclusive messages about which the synthesizer library is silent, and
// tells which of the others begin everything anew.
//
// Messages are given without their framing bytes 0xF0 and 0xF7. They are those of General MIDI 1
// and 2 (universal messages), Roland GS and Yamaha XG.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace zephyne {

using ExclusiveMessage = std::span<const std::uint8_t>;

// How a bank is selected: by controller 0 (GS), not at all (GM), by controller 32 (XG). A reset
// message chooses it, and nothing else does.
enum class BankMode { gs, gm, xg };

// The kind of reset that the message asks for, if it does and its check sum is right.
std::optional<BankMode> reset_in(ExclusiveMessage message);

// The shortest message that resets everything and chooses that bank mode.
ExclusiveMessage reset_message(BankMode mode);

// The volume of everything that the message asks for, as an amplitude from 0 to 1. The curve is
// that of General MIDI 2: the amplitude grows with the square of the value.
std::optional<float> master_volume_in(ExclusiveMessage message);

}  // namespace zephyne
