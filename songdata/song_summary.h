// The summary of the current song in the main window's "Song Information" box.
//
// A long scan lets events run in its middle, and among them may be the start of another song, which
// starts another summary inside the first. Only the newest summary writes to the box, and it always
// does; the older ones give up as soon as they are resumed.
#pragma once

#include "engine/stage.h"
#include "songdata/midi_text_scanner.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zephyne {

class SongSummary {
  public:
    // Offers itself to the player as the stage's service.
    explicit SongSummary(Stage& stage);

    // Writes the summary into Text1, in stages. Nothing happens while the box is not shown
    // (Extended is 0), without a current song, or with an empty song list. A file that cannot be
    // read empties the box.
    void getsonginfo();

  private:
    void summarise(const std::string& path);
    void summarise_other(const std::string& path);
    void summarise_texts(const std::string& path, const MidiImage& image);
    void summarise_karaoke(const std::string& path, const MidiImage& image, std::size_t signature);
    void append(std::string_view text);

    // Whether another song has taken the current one's place.
    bool stale(const std::string& path) const;

    // Returns false when this summary has become stale meanwhile.
    [[nodiscard]] bool let_events_run(const std::string& path);

    Stage& stage_;
    std::int16_t SummaryScanDepth_ = 0;  // summaries in progress
    std::int16_t SummaryScanPeak_ = 0;   // depth of the one started last
};

}  // namespace zephyne
