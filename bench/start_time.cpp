// How long a program takes from its start until its window is on the screen, and until the middle
// of the window shows a picture, beside another.
//
//   bench_start_time RUNS PROGRAM OTHER
//
// Starts the two RUNS times by turns on the display of $DISPLAY, waits each time for the first
// large window to be mapped and for its middle to change, ends the program, and prints the times in
// ms and the ratio of the medians. Nothing else may lie where the window comes up.
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

template <class Reply>
using Owned = std::unique_ptr<Reply, Free>;

struct Times {
    double window;   // ms
    double picture;  // ms
};

// What lies on the screen, as long as it was before a program came up.
class Screen {
  public:
    explicit Screen(xcb_connection_t* display)
        : display_(display), screen_(xcb_setup_roots_iterator(xcb_get_setup(display)).data) {
        const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(display, screen_->root, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(display);
    }

    void remember() { before_ = read({0, 0, screen_->width_in_pixels, screen_->height_in_pixels}); }

    // The next large window that is mapped, within ten seconds.
    std::optional<xcb_rectangle_t> next_window() {
        const auto limit = Clock::now() + std::chrono::seconds(10);
        while (Clock::now() < limit) {
            pollfd ready{xcb_get_file_descriptor(display_), POLLIN, 0};
            poll(&ready, 1, 100);
            while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(display_)}) {
                if ((event->response_type & 0x7f) != XCB_MAP_NOTIFY) continue;
                const auto* map = reinterpret_cast<const xcb_map_notify_event_t*>(event.get());
                const Owned<xcb_get_geometry_reply_t> place(xcb_get_geometry_reply(
                    display_, xcb_get_geometry(display_, map->window), nullptr));
                if (!place || place->width <= 100 || place->height <= 100) continue;
                return xcb_rectangle_t{place->x, place->y, place->width, place->height};
            }
        }
        return {};
    }

    // Waits up to two seconds until the middle of the place has changed.
    bool changes(const xcb_rectangle_t& place) {
        const auto x = static_cast<std::int16_t>(place.x + place.width / 2);
        const auto y = static_cast<std::int16_t>(place.y + place.height / 2);
        const std::size_t pixel = static_cast<std::size_t>(y) * screen_->width_in_pixels + x;
        const auto limit = Clock::now() + std::chrono::seconds(2);
        while (Clock::now() < limit) {
            const auto now = read({x, y, 1, 1});
            if (!now.empty() && now[0] != before_.at(pixel)) return true;
            std::this_thread::sleep_for(std::chrono::microseconds(300));
        }
        return false;
    }

  private:
    std::vector<std::uint32_t> read(const xcb_rectangle_t& place) const {
        const Owned<xcb_get_image_reply_t> image(
            xcb_get_image_reply(display_,
                                xcb_get_image(display_, XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root,
                                              place.x, place.y, place.width, place.height, ~0U),
                                nullptr));
        if (!image) return {};
        const auto* pixels =
            reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
        return {pixels, pixels + std::size_t{place.width} * place.height};
    }

    xcb_connection_t* display_;
    const xcb_screen_t* screen_;
    std::vector<std::uint32_t> before_;
};

std::optional<Times> run_once(Screen& screen, const char* program) {
    screen.remember();
    const auto start = Clock::now();
    const auto since_start = [start] {
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    };
    const pid_t child = fork();
    if (child == 0) {
        execl(program, program, nullptr);
        _exit(127);
    }
    std::optional<Times> times;
    if (const auto window = screen.next_window()) {
        times = Times{since_start(), 0};
        if (screen.changes(*window)) times->picture = since_start();
    }
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
    std::this_thread::sleep_for(
        std::chrono::milliseconds(100));  // until the desktop is empty again
    return times && times->picture > 0 ? times : std::nullopt;
}

struct Series {
    std::vector<double> window, picture;

    void add(const Times& times) {
        window.push_back(times.window);
        picture.push_back(times.picture);
    }
    static double median(std::vector<double> values) {
        std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
        return values[values.size() / 2];
    }
    void print(const char* program) const {
        std::printf("%s: window %.1f ms (fastest %.1f), picture %.1f ms (fastest %.1f)\n", program,
                    median(window), *std::min_element(window.begin(), window.end()),
                    median(picture), *std::min_element(picture.begin(), picture.end()));
    }
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) return std::fputs("bench_start_time RUNS PROGRAM OTHER\n", stderr), 2;
    xcb_connection_t* display = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(display)) return std::fputs("no display\n", stderr), 2;
    Screen screen(display);
    Series series[2];
    for (int run = 0; run < std::max(1, std::atoi(argv[1])); ++run) {
        for (int which = 0; which < 2; ++which) {
            const auto times = run_once(screen, argv[2 + which]);
            if (!times) return std::fputs("no window came, or no picture in it\n", stderr), 1;
            series[which].add(*times);
        }
    }
    for (int which = 0; which < 2; ++which) series[which].print(argv[2 + which]);
    std::printf("ratio: window %.2f, picture %.2f\n",
                Series::median(series[0].window) / Series::median(series[1].window),
                Series::median(series[0].picture) / Series::median(series[1].picture));
    xcb_disconnect(display);
    return 0;
}
