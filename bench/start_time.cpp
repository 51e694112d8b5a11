// How long a program takes from its start until its window is on the screen, beside another.
//
//   bench_start_time RUNS PROGRAM OTHER
//
// Starts the two RUNS times by turns on the display of $DISPLAY, waits each time for the first
// large window to be mapped, ends the program, and prints median and fastest times in ms, and their
// ratios.
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

bool is_large(xcb_connection_t* display, xcb_window_t window) {
    const std::unique_ptr<xcb_get_geometry_reply_t, Free> geometry(
        xcb_get_geometry_reply(display, xcb_get_geometry(display, window), nullptr));
    return geometry && geometry->width > 100 && geometry->height > 100;
}

// Waits up to ten seconds for a large window to be mapped.
bool window_came(xcb_connection_t* display) {
    const auto limit = Clock::now() + std::chrono::seconds(10);
    while (Clock::now() < limit) {
        pollfd ready{xcb_get_file_descriptor(display), POLLIN, 0};
        poll(&ready, 1, 100);
        while (
            const std::unique_ptr<xcb_generic_event_t, Free> event{xcb_poll_for_event(display)}) {
            if ((event->response_type & 0x7f) != XCB_MAP_NOTIFY) continue;
            const auto* map = reinterpret_cast<const xcb_map_notify_event_t*>(event.get());
            if (is_large(display, map->window)) return true;
        }
    }
    return false;
}

// In ms; -1 where no window came.
double run_once(xcb_connection_t* display, const char* program) {
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execl(program, program, nullptr);
        _exit(127);
    }
    const bool came = window_came(display);
    const std::chrono::duration<double, std::milli> time = Clock::now() - start;
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
    return came ? time.count() : -1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) return std::fputs("bench_start_time RUNS PROGRAM OTHER\n", stderr), 2;
    xcb_connection_t* display = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(display)) return std::fputs("no display\n", stderr), 2;
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(display)).data;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(display, screen->root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(display);

    std::vector<double> times[2];
    for (int run = 0; run < std::max(1, std::atoi(argv[1])); ++run) {
        for (int which = 0; which < 2; ++which) {
            times[which].push_back(run_once(display, argv[2 + which]));
            if (times[which].back() < 0) return std::fputs("no window came\n", stderr), 1;
        }
    }
    for (auto& series : times) std::sort(series.begin(), series.end());
    const std::size_t middle = times[0].size() / 2;
    for (int which = 0; which < 2; ++which) {
        std::printf("%s: median %.1f ms, fastest %.1f ms of %zu\n", argv[2 + which],
                    times[which][middle], times[which].front(), times[which].size());
    }
    std::printf("ratio: median %.2f, fastest %.2f\n", times[0][middle] / times[1][middle],
                times[0].front() / times[1].front());
    xcb_disconnect(display);
    return 0;
}
