// How fast the texts of MIDI files are found, beside a bare search for 0xFF over the same bytes.
//
//   bench_scan_speed [FOLDER]        its .mid files, repeated up to 100 MB
//   bench_scan_speed --write FILE    one MIDI file of 20 MB, with the tracks of all those songs
//
// That file is for the comparison with a program that reads files event by event (package
// midicsv); its size by the user time is the speed:
//
//   bench_scan_speed --write long.mid; time midicsv long.mid > /dev/null
//
// The goals: at least 20 times the speed of midicsv, and on bytes without texts at least a third
// of the bare search. Times are those of the processor, so that a busy machine does little harm.
#include "songdata/midi_text_scanner.h"
#include "songdata/text_joining.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace zephyne;

constexpr std::size_t kBytes = 100'000'000;
constexpr int kRuns = 7;

// Seconds of this process's own work.
double work_time() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

// Megabytes a second, the best of some runs.
template <class Work>
double speed(std::size_t bytes, Work work) {
    double best = 0;
    for (int run = 0; run < kRuns; ++run) {
        const double start = work_time();
        work();
        best = std::max(best, static_cast<double>(bytes) / 1e6 / (work_time() - start));
    }
    return best;
}

// As the summary does: header, texts, joined.
std::size_t scan(const MidiImage& image) {
    ShownText shown;
    MidiTextScanner scanner(image.bytes);
    MidiTextItem item;
    const MidiScanResult facts = scan_midi_header(image);
    for (ScanStep step; (step = scanner.next(item)) != ScanStep::end;) {
        if (step == ScanStep::item) shown.append(item, JoiningRule::summary);
    }
    return shown.text().size() + static_cast<std::size_t>(facts.track_count);
}

std::size_t search(const std::string& bytes) {
    std::size_t found = 0;
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    while ((
        at = static_cast<const char*>(std::memchr(at, 0xFF, static_cast<std::size_t>(end - at))))) {
        ++found;
        ++at;
    }
    return found;
}

volatile std::size_t sink;

void compare(const char* what, const std::vector<MidiImage>& images) {
    std::size_t bytes = 0;
    for (const MidiImage& image : images) bytes += image.bytes.size();
    std::size_t candidates = 0;
    const double searched = speed(bytes, [&] {
        candidates = 0;
        for (const MidiImage& image : images) candidates += search(image.bytes);
        sink = candidates;
    });
    const double scanned = speed(bytes, [&] {
        for (const MidiImage& image : images) sink = scan(image);
    });
    std::printf(
        "%-28s %5.0f MB, %9zu candidates: scan %6.0f MB/s, search %6.0f MB/s, %4.2f of it\n", what,
        static_cast<double>(bytes) / 1e6, candidates, scanned, searched, scanned / searched);
}

std::vector<MidiImage> one(std::string bytes) {
    std::vector<MidiImage> images(1);
    images.front().file_length = bytes.size();
    images.front().bytes = std::move(bytes);
    return images;
}

std::vector<MidiImage> read_songs(const char* folder) {
    std::vector<MidiImage> songs;
    std::error_code failed;
    for (const auto& entry : std::filesystem::directory_iterator(folder, failed)) {
        if (entry.path().extension() != ".mid") continue;
        std::ifstream file(entry.path(), std::ios::binary);
        songs.push_back({std::string(std::istreambuf_iterator<char>(file), {}), 0});
        songs.back().file_length = songs.back().bytes.size();
    }
    return songs;
}

std::vector<MidiImage> repeated(const std::vector<MidiImage>& songs) {
    std::vector<MidiImage> images;
    for (std::size_t bytes = 0; bytes < kBytes;) {
        for (const MidiImage& song : songs) {
            images.push_back(song);
            bytes += song.bytes.size();
        }
    }
    return images;
}

// Notes as they stand in a track: what a scan mostly runs over.
std::string notes() {
    std::mt19937 random(1);
    std::string bytes = "MThd";
    while (bytes.size() < kBytes)
        bytes += static_cast<char>(random() % 128 + (random() % 4 == 0) * 16);
    std::replace(bytes.begin(), bytes.end(), '\xFF', '\x7F');
    return bytes;
}

std::string pattern(const std::string& part) {
    std::string bytes;
    bytes.reserve(kBytes + part.size());
    while (bytes.size() < kBytes) bytes += part;
    return bytes;
}

constexpr const char* kSongs = "/usr/share/games/openttd/baseset/openmsx";

// All tracks of all songs under one header, over and over.
int write_long_song(const char* path) {
    constexpr std::size_t header_length = 14;
    constexpr std::size_t long_song = 20'000'000;
    std::string tracks;
    unsigned count = 0;
    const auto songs = read_songs(kSongs);
    while (!songs.empty() && tracks.size() < long_song) {
        for (const MidiImage& song : songs) {
            tracks += song.bytes.substr(header_length);
            count += static_cast<unsigned>(scan_midi_header(song).track_count);
        }
    }
    const char header[] = {'M',
                           'T',
                           'h',
                           'd',
                           0,
                           0,
                           0,
                           6,
                           0,
                           1,
                           static_cast<char>(count >> 8),
                           static_cast<char>(count),
                           0,
                           96};
    std::ofstream file(path, std::ios::binary);
    file.write(header, sizeof header) << tracks << std::flush;
    std::printf("%zu bytes, %u tracks\n", tracks.size() + sizeof header, count);
    return file && count > 0 && count < 0x8000 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::string(argv[1]) == "--write") return write_long_song(argv[2]);
    const auto songs = read_songs(argc > 1 ? argv[1] : kSongs);
    if (songs.empty()) {
        std::fprintf(stderr, "no songs\n");
        return 1;
    }
    compare("songs", repeated(songs));
    compare("notes without texts", one(notes()));
    compare("nothing but 0xFF", one(pattern("\xFF")));
    compare("texts that swallow others", one(pattern("\xFF\x01\xFF\x7F")));
    compare("lyrics of great length", one(pattern("\xFF\x05\xFF\x7F some words")));
    compare("nothing but empty texts", one(pattern(std::string("\xFF\x01\x00", 3))));
    return 0;
}
