// How long a folder of 100,000 songs takes to be listed, beside the bare reading of its names.
//
//   bench_song_list [--benchmark_min_time=...]
//
// "List" is all that stands between choosing the folder and the filled, sorted list: reading,
// choosing the songs, their shown names, and the sort. The goal is 3 times the bare read.
#include "core/controls/list_box.h"
#include "core/text/letter_case.h"
#include "engine/engine.h"
#include "platform/files/posix_file_system.h"
#include "tests/support/fakes.h"
#include "tests/support/simulated_backend.h"
#include "tests/support/virtual_time.h"

#include <benchmark/benchmark.h>
#include <dirent.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace {

using namespace zephyne;

constexpr int kSongs = 100'000;

// A folder of empty files with names as collections have them; gone at the end.
class SongFolder {
  public:
    SongFolder() {
        char name[] = "/tmp/zephyne-bench-XXXXXX";
        path = mkdtemp(name);
        std::mt19937 random(1);
        const char* words[] = {"Waltz", "RAG", "blues", "Étude", "Night", "SONG", "moon", "River"};
        for (int i = 0; i < kSongs; ++i) {
            const std::string song = std::string(words[random() % 8]) + " " + words[random() % 8] +
                                     " " + std::to_string(random() % 1'000'000) + "-" +
                                     std::to_string(i) + ".mid";
            std::ofstream(path + "/" + song);
        }
    }
    ~SongFolder() { std::filesystem::remove_all(path); }
    std::string path;
};

SongFolder& folder() {
    static SongFolder songs;
    return songs;
}

void read_names(benchmark::State& state) {
    const std::string path = folder().path;
    for (auto _ : state) {
        std::size_t bytes = 0;
        DIR* directory = opendir(path.c_str());
        while (const dirent* entry = readdir(directory)) bytes += entry->d_name[0];
        closedir(directory);
        benchmark::DoNotOptimize(bytes);
    }
}
BENCHMARK(read_names)->Unit(benchmark::kMillisecond);

void list_songs(benchmark::State& state) {
    test::VirtualClock clock;
    Scheduler scheduler(clock);
    PosixFileSystem files;
    Form1 form(files, scheduler);
    if (!form.Dir1.set_path(folder().path)) return state.SkipWithError("no folder");
    test::Log log;
    test::SimulatedBackend backend("", clock, scheduler, log);
    MediaDevice device(scheduler, files, form.MMControl1, {backend, backend, backend});
    Program program;
    TrayForm tray{scheduler};
    test::ScriptedMessages messages(log);
    test::LoggedBeeper beeper(log);
    test::ScriptedRandom random;
    struct NoPump final : EventPump {
        void pump() override {}
        void wait() override {}
        void show() override {}
    } pump;
    Stage stage{program, form, tray, device, files, pump, messages, beeper, random};
    Engine engine(stage);
    for (auto _ : state) engine.songs.refreshfiles();
    state.counters["songs"] = static_cast<double>(form.File1.count());
}
BENCHMARK(list_songs)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
