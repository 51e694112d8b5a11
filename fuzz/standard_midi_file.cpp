// MIDI files of any bytes, parsed.
#include "platform/sound/standard_midi_file.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    (void)zephyne::parse_standard_midi_file({data, size});
    return 0;
}
