// Walks through a song, frame by frame, and sends its events to a sink.
//
// Whoever renders the sound asks it to send what is due, renders up to the next event, and tells
// it how far that was. It allocates nothing, and runs on the thread that renders.
#pragma once

#include "platform/sound/midi_sink.h"
#include "platform/sound/midi_song.h"
#include "platform/sound/sample_time.h"

#include <cstddef>

namespace zephyne {

class Sequencer {
  public:
    explicit Sequencer(MidiSink& sink) : sink_(sink) {}

    // Takes up the song, at its start, or nothing (nullptr). The song is not owned and must stay
    // until another is opened. The sink is told nothing.
    void open(const MidiSong* song);

    // Goes to a frame (beyond the end: the end), so that everything sounds as if the song had
    // played up to there, but for the notes that would have begun before. The events of that very
    // frame are still due.
    void seek(FrameCount frame);

    // Takes up the song at its end, the sink having been told all of it but the notes.
    void open_at_end(const MidiSong& song);

    void send_due_events();                  // all up to and with the current frame
    FrameCount frames_to_next_stop() const;  // to the next event or the end; 0 when due
    void advance(FrameCount frames) { frame_ += frames; }  // at most frames_to_next_stop()

    FrameCount frame() const { return frame_; }
    FrameCount end_frame() const { return end_frame_; }
    bool at_end() const { return frame_ >= end_frame_; }

  private:
    bool event_before(FrameCount frame) const;
    void send_all_but_notes_before(FrameCount frame);
    void send(const MidiEvent& event);

    MidiSink& sink_;
    const MidiSong* song_ = nullptr;
    std::size_t next_ = 0;  // number of the next event
    FrameCount frame_ = 0;
    FrameCount end_frame_ = 0;
};

}  // namespace zephyne
