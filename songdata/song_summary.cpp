#include "songdata/song_summary.h"

#include "core/text/letter_case.h"
#include "core/text/numbers.h"
#include "songdata/soft_karaoke.h"
#include "songdata/text_joining.h"

namespace zephyne {
namespace {

// Karaoke files tell what is of interest at their beginning.
constexpr std::size_t kKaraokeBytes = 64'000;

std::string path_and_size(const std::string& path, std::uint64_t size, std::string_view unit) {
    return "Path/Filename: " + lower_case(path) +
           "\r\n\r\nFile Size: " + decimal(static_cast<std::int64_t>(size)).append(unit);
}

}  // namespace

SongSummary::SongSummary(Stage& stage) : stage_(stage) {
    stage_.services.getsonginfo = [this] { getsonginfo(); };
}

void SongSummary::getsonginfo() {
    const Program& program = stage_.program;
    if (program.settings.Extended == 0 || program.CurrentSongName.empty() ||
        program.CurrentSongPath.empty() || stage_.form.File1.empty()) {
        return;
    }
    // The peak is the depth of the newest summary rather than the highest one so far: a song may
    // start at a depth that an earlier, finished one has gone beyond, and is the newest all the
    // same.
    SummaryScanPeak_ = ++SummaryScanDepth_;
    const std::string path = program.CurrentSongPath;  // another song may become current meanwhile
    summarise(path);
    const bool newest = SummaryScanPeak_ == SummaryScanDepth_--;
    // A song that cannot be played has no summary of its own to take this one's place.
    const std::string& now = program.CurrentSongPath;
    if (newest && !program.Ending && !now.empty() && now != path) stage_.form.Text1.set_text("");
}

bool SongSummary::stale(const std::string& path) const {
    return stage_.program.CurrentSongPath != path || stage_.program.Ending ||
           SummaryScanPeak_ > SummaryScanDepth_;
}

bool SongSummary::let_events_run(const std::string& path) {
    stage_.events.pump();
    return !stale(path);
}

void SongSummary::append(std::string_view text) {
    stage_.form.Text1.set_text(std::string(stage_.form.Text1.text()).append(text));
}

void SongSummary::summarise(const std::string& path) {
    if (song_kind(path) != SongKind::midi) return summarise_other(path);

    stage_.form.Text1.set_text("Scanning File...");
    const auto image = load_midi_image(stage_.files, path);
    if (!image) return stage_.form.Text1.set_text("");
    if (!let_events_run(path)) return;
    if (const auto signature = find_soft_karaoke(image->bytes)) {
        return summarise_karaoke(path, *image, *signature);
    }
    if (!let_events_run(path)) return;
    summarise_texts(path, *image);
}

void SongSummary::summarise_other(const std::string& path) {
    const auto size = stage_.files.file_length(path);
    stage_.form.Text1.set_text(size ? path_and_size(path, *size, " bytes.") : "");
}

void SongSummary::summarise_texts(const std::string& path, const MidiImage& image) {
    const MidiScanResult facts = scan_midi_header(image);
    ShownText texts;
    MidiTextScanner scanner(image.bytes);
    MidiTextItem item;
    for (ScanStep step; (step = scanner.next(item)) != ScanStep::end;) {
        if (step == ScanStep::item) texts.append(item, JoiningRule::summary);
        if (step == ScanStep::pause && !let_events_run(path)) return;
    }

    std::string summary = path_and_size(path, facts.file_length, " Bytes.\r\n");
    if (facts.track_count != 0) {
        summary += "Number of Tracks: " + decimal(std::int64_t{facts.track_count}) + "\r\n";
    }
    summary += "\r\n";
    summary += texts.empty() ? "No text found in file." : texts.text();
    stage_.form.Text1.set_text(std::move(summary));
    stage_.events.pump();
}

void SongSummary::summarise_karaoke(const std::string& path, const MidiImage& image,
                                    std::size_t signature) {
    stage_.form.Text1.set_text("Soft Karaoke File - Scanning...\r\n\r\n");
    if (!let_events_run(path)) return;

    SoftKaraokeReader reader(std::string_view(image.bytes).substr(0, kKaraokeBytes), signature);
    if (!reader.read_header()) return;
    append(path_and_size(path, image.file_length, " Bytes.\r\n\r\n")
               .append(reader.transcript().header_text)
               .append("\r\nWords:\r\n\r\n"));
    while (reader.read_words()) {
        if (!let_events_run(path)) return;
    }
    append(reader.transcript().words_text);
}

}  // namespace zephyne
