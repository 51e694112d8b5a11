#include "platform/sound/midi_track_reader.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace zephyne {
namespace {

constexpr std::uint8_t kSystemExclusive = 0xF0;
constexpr std::uint8_t kEndOfExclusive = 0xF7;
constexpr std::uint8_t kMeta = 0xFF;
constexpr std::uint8_t kMetaEndOfTrack = 0x2F;
constexpr std::uint8_t kMetaTempo = 0x51;

// Takes bytes from the front; what is not there is nothing.
class ByteReader {
  public:
    explicit ByteReader(MidiBytes bytes) : bytes_(bytes) {}

    std::size_t position() const { return position_; }

    std::optional<std::uint8_t> peek() const {
        if (position_ == bytes_.size()) return std::nullopt;
        return bytes_[position_];
    }

    std::optional<std::uint8_t> byte() {
        const auto value = peek();
        if (value) ++position_;
        return value;
    }

    // A data byte: its highest bit is clear.
    std::optional<std::uint8_t> data_byte() {
        const auto value = peek();
        if (!value || *value > 127) return std::nullopt;
        ++position_;
        return value;
    }

    // A quantity of one to four bytes, seven bits in each.
    std::optional<std::uint32_t> quantity() {
        std::uint32_t value = 0;
        for (int i = 0; i < 4; ++i) {
            const auto next = byte();
            if (!next) return std::nullopt;
            value = value << 7 | (*next & 0x7F);
            if (*next < 0x80) return value;
        }
        return std::nullopt;
    }

    // So many bytes, or those that are left.
    MidiBytes bytes(std::size_t count) {
        const auto taken = bytes_.subspan(position_, std::min(count, bytes_.size() - position_));
        position_ += taken.size();
        return taken;
    }

  private:
    MidiBytes bytes_;
    std::size_t position_ = 0;
};

class TrackReader {
  public:
    TrackReader(MidiBytes track, MidiSong& song) : reader_(track), song_(song) {}

    TrackEnd read() {
        while (!end_.marked) {
            const auto delta = reader_.quantity();
            if (!delta || !reader_.peek()) break;
            end_.tick += *delta;
            if (!read_event()) break;
        }
        end_.bytes = reader_.position();
        return end_;
    }

  private:
    // False when the bytes make no sense.
    bool read_event() {
        const std::uint8_t first = *reader_.peek();
        if (first != kEndOfExclusive) finish_exclusive();
        if (first < kSystemExclusive) return read_channel_message(first);
        reader_.byte();
        switch (first) {
            case kMeta:
                return read_meta();
            case kSystemExclusive:
            case kEndOfExclusive:
                return read_exclusive_packet(first);
            // The rest has no place in a file, but is harmless.
            case 0xF1:
            case 0xF3:
                return reader_.data_byte().has_value();
            case 0xF2:
                return reader_.data_byte() && reader_.data_byte();
            default:
                return true;
        }
    }

    bool read_channel_message(std::uint8_t first) {
        if (first >= 0x80) {
            running_status_ = first;
            reader_.byte();
        }
        if (running_status_ == 0) return false;
        const std::uint8_t kind = running_status_ & 0xF0;
        const bool has_two = kind != 0xC0 && kind != 0xD0;
        const auto data1 = reader_.data_byte();
        const auto data2 = has_two && data1 ? reader_.data_byte() : std::uint8_t{0};
        if (!data1 || !data2) return false;
        add({.time = end_.tick, .status = running_status_, .data1 = *data1, .data2 = *data2});
        return true;
    }

    bool read_meta() {
        const auto type = reader_.byte();
        const auto length = type ? reader_.quantity() : std::nullopt;
        if (!length) return false;
        const MidiBytes data = reader_.bytes(*length);
        if (*type == kMetaEndOfTrack) end_.marked = true;
        if (*type == kMetaTempo && data.size() >= 3) {
            const std::uint32_t tempo = std::uint32_t{data[0]} << 16 | data[1] << 8 | data[2];
            if (tempo != 0) add({.time = end_.tick, .message = tempo, .status = kTempoChange});
        }
        return data.size() == *length;
    }

    // A message may come in several packets: the first begins with 0xF0, the others with 0xF7,
    // and the last ends with 0xF7. A packet 0xF7 that goes on with nothing holds bytes to be sent
    // as they are; of those only whole exclusive messages are taken.
    bool read_exclusive_packet(std::uint8_t first) {
        const auto length = reader_.quantity();
        if (!length) return false;
        MidiBytes data = reader_.bytes(*length);
        const bool complete = data.size() == *length;
        if (first == kEndOfExclusive && !exclusive_open_) {
            if (data.empty() || data[0] != kSystemExclusive) return complete;
            data = data.subspan(1);
        }
        exclusive_open_ = true;
        exclusive_tick_ = end_.tick;
        exclusive_.insert(exclusive_.end(), data.begin(), data.end());
        if (!complete) {  // half a message is none
            exclusive_open_ = false;
        } else if (!data.empty() && data.back() == kEndOfExclusive) {
            exclusive_.pop_back();
            finish_exclusive();
        }
        return complete;
    }

    // A message without its final 0xF7 is complete when something else follows.
    void finish_exclusive() {
        if (!exclusive_open_) return;
        exclusive_open_ = false;
        if (!exclusive_.empty()) {
            add({.time = exclusive_tick_,
                 .message = song_.add_message(exclusive_),
                 .status = kSystemExclusive});
        }
        exclusive_.clear();
    }

    void add(const MidiEvent& event) { song_.events.push_back(event); }

    ByteReader reader_;
    MidiSong& song_;
    TrackEnd end_;
    std::uint8_t running_status_ = 0;
    std::vector<std::uint8_t> exclusive_;  // the packets so far
    std::int64_t exclusive_tick_ = 0;
    bool exclusive_open_ = false;
};

}  // namespace

TrackEnd read_midi_track(MidiBytes track, MidiSong& song) {
    return TrackReader(track, song).read();
}

}  // namespace zephyne
