// The volume of the MIDI outputs of the machine, as a system keeps it for each of them.
#pragma once

#include <cstdint>
#include <string>

namespace zephyne {

// A volume word holds the left channel in its low 16 bits and the right one in its high 16 bits,
// each from 0 (silent) to 0xFFFF (full).
class MidiOutVolume {
  public:
    virtual ~MidiOutVolume() = default;

    virtual std::uint32_t device_count() const = 0;
    virtual std::string device_name(std::uint32_t device) const = 0;

    // A device that is not there, or has no volume, reads as full and ignores what is set.
    virtual std::uint32_t volume(std::uint32_t device) const = 0;
    virtual void set_volume(std::uint32_t device, std::uint32_t volume) = 0;
};

}  // namespace zephyne
