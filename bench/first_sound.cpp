// How long a program takes from its start until the first sound of a song is there.
//
//   bench_first_sound RUNS WAVE PROGRAM [ARGUMENT...]
//
// Starts the program RUNS times, told by its arguments or the environment to play into the file
// WAVE in real time; looks there for the first sample that can be heard, ends the program,
// and prints the median and the fastest time in ms.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::streamoff kHeader = 44;
constexpr int kQuiet = 16;
constexpr auto kLongest = std::chrono::seconds(10);

// In 16-bit samples; what is quieter may be dither.
bool has_sound(const char* path) {
    std::ifstream wave(path, std::ios::binary);
    wave.seekg(kHeader);
    std::int16_t sample = 0;
    while (wave.read(reinterpret_cast<char*>(&sample), sizeof sample)) {
        if (std::abs(sample) > kQuiet) return true;
    }
    return false;
}

double run_once(const char* wave, char** command) {
    unlink(wave);
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execvp(command[0], command);
        _exit(127);
    }
    bool heard = false;
    while (!heard && Clock::now() - start < kLongest) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        heard = has_sound(wave);
    }
    const std::chrono::duration<double, std::milli> time = Clock::now() - start;
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
    return heard ? time.count() : -1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        return std::fputs("bench_first_sound RUNS WAVE PROGRAM [ARGUMENT...]\n", stderr), 2;
    }
    std::vector<double> times;
    for (int run = 0; run < std::atoi(argv[1]); ++run) {
        times.push_back(run_once(argv[2], argv + 3));
        if (times.back() < 0) return std::fputs("no sound came\n", stderr), 1;
    }
    if (times.empty()) return std::fputs("nothing to run\n", stderr), 2;
    std::sort(times.begin(), times.end());
    std::printf("%s: median %.1f ms, fastest %.1f ms of %zu\n", argv[3], times[times.size() / 2],
                times.front(), times.size());
    return 0;
}
