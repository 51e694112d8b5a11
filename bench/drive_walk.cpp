// How long the search of a whole drive takes, beside `find` on the same tree.
//
//   bench_drive_walk FOLDER
//
// Makes in FOLDER, if nothing is there, a tree of 1,000,000 empty files in 20,000 folders, every
// tenth of them a song, and leaves it for the next time. All runs but the first find it in the
// system's cache. The memory is what the search holds at its end.
#include "core/settings.h"
#include "platform/files/posix_file_system.h"
#include "playlists/drive_search.h"

#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace {

using namespace zephyne;

constexpr int kOuter = 20;   // folders, each with
constexpr int kMiddle = 9;   // folders, each with
constexpr int kInner = 110;  // folders: 20 + 180 + 19,800 = 20,000
constexpr int kFiles = 50;   // in every folder
constexpr int kRuns = 9;
constexpr const char* kNames[] = {"Waltz", "RAG", "blues", "Étude", "Night", "SONG", "moon"};

std::string name_of(int number) {
    return std::string(kNames[number % 7]) + " " + kNames[number / 7 % 7] + " " +
           std::to_string(number);
}

void fill(const std::string& folder) {
    static int number = 0;
    std::filesystem::create_directories(folder);
    for (int i = 0; i < kFiles; ++i, ++number) {
        std::ofstream(folder + "/" + name_of(number) + (i % 10 == 0 ? ".mid" : ".txt"));
    }
}

void make_tree(const std::string& root) {
    for (int outer = 0; outer < kOuter; ++outer) {
        const std::string above = root + "/" + name_of(outer);
        fill(above);
        for (int middle = 0; middle < kMiddle; ++middle) {
            const std::string below = above + "/" + name_of(middle);
            fill(below);
            for (int inner = 0; inner < kInner; ++inner) fill(below + "/" + name_of(inner));
        }
    }
}

double milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

std::size_t memory_in_use() {
    const auto heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

void run(const std::string& command) {
    if (std::system(command.c_str()) != 0) std::exit(1);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) return std::fputs("bench_drive_walk FOLDER\n", stderr), 1;
    const std::string root = std::filesystem::absolute(argv[1]);
    if (!std::filesystem::exists(root)) make_tree(root);

    const PosixFileSystem files;
    const Settings settings;
    std::vector<double> searches;
    std::vector<double> finds;
    std::vector<double> prints;
    for (int i = 0; i <= kRuns; ++i) {
        const std::size_t before = memory_in_use();
        std::size_t steps = 0;
        DriveSearch search(files, settings, [&](SearchStep) { return ++steps != 0; });
        const double searched = milliseconds([&] { search.run(root); });
        if (i == 0) {
            std::printf("%zu steps, %zu songs in %zu folders, %zu bytes\n", steps,
                        search.found().songs.size(), search.found().folders.size(),
                        memory_in_use() - before);
            continue;
        }
        searches.push_back(searched);
        finds.push_back(milliseconds([&] { run("find '" + root + "' -type f > /dev/null"); }));
        prints.push_back(
            milliseconds([&] { run("find '" + root + "' -printf '%p\\n' > /dev/null"); }));
    }
    std::printf("search %.0f ms, find -type f %.0f ms (%.2f), find -printf %.0f ms (%.2f)\n",
                median(searches), median(finds), median(searches) / median(finds), median(prints),
                median(searches) / median(prints));
    return 0;
}
