// What the playlist editor does to a playlist of 100,000 entries, act by act.
//
//   bench_playlist_editing
//
// Each act should stay below half a second. "longest_ms" is the longest stretch of it in which the
// window does not move.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <string>
#include <vector>

#include "core/controls/form.h"
#include "core/controls/list_box.h"
#include "core/playlist_entry.h"
#include "playlists/playlist_lists.h"
#include "playlists/playlist_text.h"

namespace {

using namespace zephyne;

constexpr std::size_t kEntries = 100'000;

double now_ms() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::milli>(now).count();
}

// Notes how long the picture stands still.
class StillTime final : public EventPump {
  public:
    void pump() override {}
    void wait() override {}
    void show() override {
        const double now = now_ms();
        longest = std::max(longest, now - last_);
        last_ = now;
    }
    void begin() { last_ = now_ms(); }
    void report(benchmark::State& state) {
        show();
        state.counters["longest_ms"] = longest;
    }

    double longest = 0;

  private:
    double last_ = 0;
};

// Names as collections have them, every tenth in several folders.
std::vector<std::string> entry_lines() {
    std::mt19937 random(1);
    const char* words[] = {"Waltz", "RAG", "blues", "Étude", "Night", "SONG", "moon", "River"};
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < kEntries; ++i) {
        const std::string name = std::string(words[random() % 8]) + " " + words[random() % 8] +
                                 " " + std::to_string(random() % (kEntries * 9)) + ".mid";
        lines.push_back(name + "|/home/clara/music/" + std::to_string(random() % 100) + "/");
    }
    return lines;
}

struct Lists : Form {
    Lists() : Form({.name = "Lists"}) { names.set_selecting(Selecting::extended); }
    ListBox names{*this, ListOrder::by_text, {.name = "names"}};
    ListBox lines{*this, ListOrder::by_entry, {.name = "lines"}, split_entry_line};
    StillTime still;
    PlaylistLists playlist{names, lines, still};
};

// Runs one act on fresh lists with all entries again and again.
template <class Act>
void measure(benchmark::State& state, Act act) {
    const std::vector<std::string> entries = entry_lines();
    double longest = 0;
    for (auto _ : state) {
        state.PauseTiming();
        Lists lists;
        lists.playlist.add(entries);
        for (std::size_t row = 0; row < kEntries; row += 2) {
            lists.names.click(row, ClickWith::ctrl);
        }
        lists.still.longest = 0;
        lists.still.begin();
        state.ResumeTiming();
        act(lists, entries);
        lists.still.report(state);
        longest = std::max(longest, lists.still.longest);
    }
    state.counters["longest_ms"] = longest;
}

void load(benchmark::State& state) {
    Lists source;
    source.playlist.add(entry_lines());
    const std::string bytes = playlist_text_of(source.lines.items());
    measure(state, [&](Lists& lists, const auto&) {
        const PlaylistText text = read_playlist_text(bytes, PathStyle::posix);
        lists.playlist.clear();
        lists.playlist.add(text.entry_lines);
    });
}
BENCHMARK(load)->Unit(benchmark::kMillisecond);

void add_all_again(benchmark::State& state) {
    measure(state, [](Lists& lists, const std::vector<std::string>& entries) {
        lists.playlist.add(entries);
        lists.playlist.Killdupes();
    });
}
BENCHMARK(add_all_again)->Unit(benchmark::kMillisecond);

void add_one(benchmark::State& state) {
    measure(state, [](Lists& lists, const auto&) { lists.playlist.add({"Tango.mid|/home/"}); });
}
BENCHMARK(add_one)->Unit(benchmark::kMillisecond);

void kill_dupes(benchmark::State& state) {
    measure(state, [](Lists& lists, const auto&) { lists.playlist.Killdupes(); });
}
BENCHMARK(kill_dupes)->Unit(benchmark::kMillisecond);

void remove_every_second(benchmark::State& state) {
    measure(state, [](Lists& lists, const auto&) { lists.playlist.remove_selected(); });
}
BENCHMARK(remove_every_second)->Unit(benchmark::kMillisecond);

void text_for_saving(benchmark::State& state) {
    measure(state, [](Lists& lists, const auto&) {
        benchmark::DoNotOptimize(playlist_text_of(lists.lines.items()));
    });
}
BENCHMARK(text_for_saving)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
