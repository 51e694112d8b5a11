#include "platform/sound/standard_midi_file.h"

#include "platform/sound/midi_track_reader.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <optional>
#include <string_view>

namespace zephyne {
namespace {

constexpr std::size_t kChunkHeader = 8;
constexpr std::uint32_t kDefaultTempo = 500'000;  // microseconds in a quarter note: 120 a minute
constexpr Nanoseconds kLongestSong = Nanoseconds{1000} * 3600 * 1'000'000'000;

std::uint32_t big_endian(MidiBytes bytes, std::size_t at, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < count; ++i) value = value << 8 | bytes[at + i];
    return value;
}

bool has_name(MidiBytes bytes, std::size_t at, std::string_view name) {
    return at <= bytes.size() && bytes.size() - at >= name.size() &&
           std::equal(name.begin(), name.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

// The place of the name at or after `from`, or the end of the bytes.
std::size_t find_name(MidiBytes bytes, std::size_t from, std::string_view name) {
    const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(std::min(from, bytes.size()));
    return static_cast<std::size_t>(std::search(begin, bytes.end(), name.begin(), name.end()) -
                                    bytes.begin());
}

// Turns ticks into time. The ticks must not go back.
class TickClock {
  public:
    explicit TickClock(std::uint32_t division) {
        const std::uint32_t frames = division & 0x8000 ? 256 - (division >> 8) : 0;
        counts_frames_ = frames != 0;
        if (!counts_frames_) {
            units_per_nanosecond_ = division;
            set_tempo(kDefaultTempo);
        } else if (frames == 29) {  // 30 drop frame: 30000 frames in 1001 seconds
            units_per_nanosecond_ = std::int64_t{30} * (division & 0xFF);
            units_per_tick_ = 1'001'000'000;
        } else {
            units_per_nanosecond_ = std::int64_t{frames} * (division & 0xFF);
            units_per_tick_ = 1'000'000'000;
        }
    }

    bool valid() const { return units_per_nanosecond_ != 0; }

    void set_tempo(std::uint32_t microseconds_per_quarter) {
        if (!counts_frames_) units_per_tick_ = std::int64_t{microseconds_per_quarter} * 1000;
    }

    // What a division leaves over is carried on, so that rounding never adds up. A tick is less
    // than 2^34 units and a step at most 2^28 ticks, as is every step in a file, so that their
    // product fits.
    Nanoseconds time_of(std::int64_t tick) {
        while (tick_ < tick) {
            const std::int64_t step = std::min(tick - tick_, std::int64_t{1} << 28);
            const std::int64_t units = step * units_per_tick_ + rest_;
            tick_ += step;
            rest_ = units % units_per_nanosecond_;
            time_ = std::min(time_ + units / units_per_nanosecond_, kLongestSong);
        }
        return time_;
    }

  private:
    bool counts_frames_ = false;  // SMPTE time, which knows no tempo
    std::int64_t units_per_nanosecond_ = 0;
    std::int64_t units_per_tick_ = 0;
    std::int64_t tick_ = 0;
    std::int64_t rest_ = 0;  // units that do not make a nanosecond
    Nanoseconds time_ = 0;
};

// The events from `first` on bear ticks for times and are in order. They get times from `start`
// on; the tempo changes among them have done their work then and go. Returns the time of the end.
Nanoseconds resolve_times(MidiSong& song, std::size_t first, std::int64_t end_tick, TickClock clock,
                          Nanoseconds start) {
    std::size_t kept = first;
    for (std::size_t i = first; i < song.events.size(); ++i) {
        MidiEvent event = song.events[i];
        event.time = std::min(start + clock.time_of(event.time), kLongestSong);
        if (event.status == kTempoChange) {
            clock.set_tempo(event.message);
        } else {
            song.events[kept++] = event;
        }
    }
    song.events.resize(kept);
    return std::min(start + clock.time_of(end_tick), kLongestSong);
}

// Can a chunk, or the end of the file, be here?
bool looks_like_chunk(MidiBytes file, std::size_t at) {
    if (at == file.size()) return true;
    if (at > file.size() || file.size() - at < kChunkHeader) return false;
    return std::all_of(file.begin() + static_cast<std::ptrdiff_t>(at),
                       file.begin() + static_cast<std::ptrdiff_t>(at + 4),
                       [](std::uint8_t byte) { return std::isprint(byte) != 0; });
}

// Are there a chunk and, where it says that it ends, another or the end of the file?
bool is_whole_chunk(MidiBytes file, std::size_t at) {
    return at < file.size() && looks_like_chunk(file, at) &&
           looks_like_chunk(file, at + kChunkHeader + big_endian(file, at + 4, 4));
}

// Goes through the chunks of a file and reads the tracks among them.
class ChunkReader {
  public:
    ChunkReader(MidiBytes file, std::size_t first_chunk) : file_(file), at_(first_chunk) {}

    // The next track's events are added to the song. Nothing when there is no further track.
    std::optional<TrackEnd> read_track(MidiSong& song) {
        while (at_ < file_.size() && file_.size() - at_ >= kChunkHeader) {
            const std::size_t begin = at_ + kChunkHeader;
            const std::size_t claimed_end = begin + big_endian(file_, at_ + 4, 4);
            if (has_name(file_, at_, "MTrk")) return read_track(song, begin, claimed_end);
            at_ = looks_like_chunk(file_, claimed_end) ? claimed_end
                                                       : find_name(file_, at_ + 1, "MTrk");
        }
        return std::nullopt;
    }

  private:
    // A length is believed when it leads to another track, to a chunk that leads on, or to the end
    // of the file. Otherwise the track may go on up to whatever is sure to be another, and tells by
    // itself where it ends.
    TrackEnd read_track(MidiSong& song, std::size_t begin, std::size_t claimed_end) {
        const bool sure = claimed_end == file_.size() || has_name(file_, claimed_end, "MTrk") ||
                          is_whole_chunk(file_, claimed_end);
        const std::size_t limit = sure ? claimed_end : find_name(file_, begin, "MTrk");
        const TrackEnd end = read_midi_track(file_.subspan(begin, limit - begin), song);
        const std::size_t stopped = begin + end.bytes;
        if (end.marked && has_name(file_, stopped, "MTrk")) {
            at_ = stopped;
        } else if (sure || !end.marked) {
            at_ = limit;
        } else {
            at_ = claimed_end >= stopped && claimed_end < limit ? claimed_end : stopped;
        }
        return end;
    }

    MidiBytes file_;
    std::size_t at_;  // where the next chunk begins
};

// Those of the bytes that are the MIDI file itself: from its header to the end of the RIFF chunk
// around it, if there is one.
MidiBytes without_wrapper(MidiBytes bytes) {
    const std::size_t header = find_name(bytes, 0, "MThd");
    const MidiBytes file = bytes.subspan(header);
    if (!has_name(bytes, 0, "RIFF") || header < kChunkHeader) return file;
    if (!has_name(bytes, header - kChunkHeader, "data")) return file;
    std::size_t length = 0;
    for (std::size_t i = 1; i <= 4; ++i) length = length << 8 | bytes[header - i];
    return length < file.size() ? file.first(length) : file;
}

tl::unexpected<std::string> failure(const char* description) {
    return tl::unexpected(std::string(description));
}

}  // namespace

tl::expected<MidiSong, std::string> parse_standard_midi_file(std::span<const std::uint8_t> bytes) {
    const MidiBytes file = without_wrapper(bytes);
    if (file.empty()) return failure("it is not a MIDI file");
    constexpr std::size_t kHeader = kChunkHeader + 6;
    if (file.size() < kHeader) return failure("the MIDI file breaks off in its header");

    const bool one_after_another = big_endian(file, 8, 2) == 2;
    const TickClock clock(big_endian(file, 12, 2));
    if (!clock.valid()) return failure("the MIDI file does not say how it counts time");
    const std::size_t claimed_end = kChunkHeader + big_endian(file, 4, 4);
    const bool believable = claimed_end >= kHeader && looks_like_chunk(file, claimed_end);

    MidiSong song;
    bool any_track = false;
    std::int64_t end_tick = 0;
    std::size_t first_of_track = 0;
    ChunkReader chunks(file, believable ? claimed_end : kHeader);
    while (const auto end = chunks.read_track(song)) {
        any_track = true;
        if (one_after_another) {
            song.length = resolve_times(song, first_of_track, end->tick, clock, song.length);
        }
        first_of_track = song.events.size();
        end_tick = std::max(end_tick, end->tick);
    }
    if (!any_track) return failure("the MIDI file has no track");
    if (!one_after_another) {
        // What comes at one moment keeps the order of the tracks.
        std::stable_sort(song.events.begin(), song.events.end(),
                         [](const MidiEvent& a, const MidiEvent& b) { return a.time < b.time; });
        song.length = resolve_times(song, 0, end_tick, clock, 0);
    }
    return song;
}

}  // namespace zephyne
