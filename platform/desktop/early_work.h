// What the first window needs from the system and would wait for, done on a thread beside the start.
#pragma once

#include <thread>

namespace zephyne {

class EarlyWork {
  public:
    // Begins at once.
    explicit EarlyWork(void (*work)()) : thread_(work) {}
    ~EarlyWork() { wait(); }
    EarlyWork(const EarlyWork&) = delete;
    EarlyWork& operator=(const EarlyWork&) = delete;

    // Until it is done.
    void wait() {
        if (thread_.joinable()) thread_.join();
    }

  private:
    std::thread thread_;
};

// Reads the system's fonts, for the first text. Qt asks the same library, and finds them read.
void read_fonts();

// Opens the session bus, for the tray icon. Needs a QApplication.
void open_session_bus();

}  // namespace zephyne
