// How fast songs are rendered by our sequencer and synthesizer, with nobody listening:
//
//   bench_render_speed SOUND_FONT SONG...
//
// Prints for each song its length in seconds, the processor time that it took, and how many times
// faster than real time that is. The yardstick is the synthesizer library's own program, which
// renders the same song with the same settings (reverb, chorus and interpolation as they are by
// default, 256 voices) to a file:
//
//   time fluidsynth -q -n -i -g 0.3 -r 44100 -o synth.polyphony=256 -F out.wav SOUND_FONT SONG
//
// Divide the length of out.wav by its user time. Ours shall reach at least 0.95 of that.
#include "platform/sound/song_file.h"
#include "platform/sound/song_renderer.h"
#include "platform/sound/synthesizer.h"

#include <array>
#include <cstdio>
#include <ctime>
#include <memory>

namespace {

using namespace zephyne;

double processor_seconds() {
    timespec used = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

// The song and what rings on after it.
FrameCount render_all(const MidiSong& song, SongRenderer& renderer) {
    std::array<float, 1024> left;
    std::array<float, 1024> right;
    renderer.set_ready();
    renderer.submit(
        {.number = 1, .song = &song, .song_serial = 1, .state = PlayWish::State::playing});
    FrameCount frames = 0;
    do {
        renderer.render(left.data(), right.data(), static_cast<int>(left.size()));
        frames += static_cast<FrameCount>(left.size());
    } while (!renderer.idle());
    return frames;
}

bool measure(const char* sound_font, const char* path) {
    const auto song = read_song_file(path);
    const auto synthesizer = std::make_unique<Synthesizer>();
    const auto renderer = std::make_unique<SongRenderer>(*synthesizer);
    if (!song || !synthesizer->open() || !synthesizer->load_sound_font(sound_font)) {
        std::fprintf(stderr, "%s: %s\n", path, song ? "no sound font" : song.error().c_str());
        return false;
    }
    const double begin = processor_seconds();
    const FrameCount frames = render_all(*song, *renderer);
    const double used = processor_seconds() - begin;
    const double length = static_cast<double>(frames) / kFramesPerSecond;
    std::printf("%7.1f s  in %6.2f s  %6.1f times real time  %s\n", length, used, length / used,
                path);
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "bench_render_speed SOUND_FONT SONG...\n");
        return 2;
    }
    bool all_done = true;
    for (int i = 2; i < argc; ++i) all_done &= measure(argv[1], argv[i]);
    return all_done ? 0 : 1;
}
