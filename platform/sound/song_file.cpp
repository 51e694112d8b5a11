#include "platform/sound/song_file.h"

#include "platform/files/posix_file_system.h"
#include "platform/sound/standard_midi_file.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace zephyne {

tl::expected<MidiSong, std::string> read_song_file(const std::string& path) {
    constexpr std::size_t kLargestFile = std::size_t{64} << 20;
    const auto bytes = PosixFileSystem().read_file(path, kLargestFile + 1);
    if (!bytes) return tl::unexpected(bytes.error().description);
    if (bytes->size() > kLargestFile) {
        return tl::unexpected(std::string("the file is larger than 64 MiB"));
    }
    return parse_standard_midi_file(
        std::span(reinterpret_cast<const std::uint8_t*>(bytes->data()), bytes->size()));
}

}  // namespace zephyne
