#include "platform/sound/sequencer.h"

#include <algorithm>

namespace zephyne {
namespace {

bool is_note(const MidiEvent& event) {
    return event.status >= 0x80 && event.status < 0xA0;
}

}  // namespace

void Sequencer::open(const MidiSong* song) {
    song_ = song;
    next_ = 0;
    frame_ = 0;
    end_frame_ = song ? frame_at(song->length) : 0;
}

void Sequencer::open_at_end(const MidiSong& song) {
    open(&song);
    frame_ = end_frame_;
    send_all_but_notes_before(end_frame_ + 1);
}

bool Sequencer::event_before(FrameCount frame) const {
    return song_ && next_ < song_->events.size() && frame_at(song_->events[next_].time) < frame;
}

void Sequencer::seek(FrameCount frame) {
    frame_ = std::clamp<FrameCount>(frame, 0, end_frame_);
    next_ = 0;
    sink_.begin_seek();
    send_all_but_notes_before(frame_);
    sink_.end_seek();
}

void Sequencer::send_all_but_notes_before(FrameCount frame) {
    while (event_before(frame)) {
        const MidiEvent& event = song_->events[next_++];
        if (!is_note(event)) send(event);
    }
}

void Sequencer::send_due_events() {
    while (event_before(frame_ + 1)) send(song_->events[next_++]);
}

FrameCount Sequencer::frames_to_next_stop() const {
    const bool more = song_ && next_ < song_->events.size();
    const FrameCount stop =
        more ? std::min(frame_at(song_->events[next_].time), end_frame_) : end_frame_;
    return std::max<FrameCount>(stop - frame_, 0);
}

void Sequencer::send(const MidiEvent& event) {
    const int channel = event.status & 0x0F;
    switch (event.status & 0xF0) {
        case 0x80:
            sink_.note_off(channel, event.data1);
            break;
        case 0x90:
            sink_.note_on(channel, event.data1, event.data2);
            break;
        case 0xA0:
            sink_.key_pressure(channel, event.data1, event.data2);
            break;
        case 0xB0:
            sink_.controller(channel, event.data1, event.data2);
            break;
        case 0xC0:
            sink_.program(channel, event.data1);
            break;
        case 0xD0:
            sink_.channel_pressure(channel, event.data1);
            break;
        case 0xE0:
            sink_.pitch_bend(channel, event.data2 << 7 | event.data1);
            break;
        default:
            sink_.system_exclusive(song_->message(event.message));
            break;
    }
}

}  // namespace zephyne
