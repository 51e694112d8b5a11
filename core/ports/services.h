// The small things that the logic asks of the machine and of the desktop. All are called on the
// user-interface thread.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace zephyne {

// Uniform random numbers in [0, 1).
class Random {
  public:
    virtual ~Random() = default;
    virtual double next() = 0;
};

// The system's warning sound; returns at once.
class Beeper {
  public:
    virtual ~Beeper() = default;
    virtual void beep() = 0;
};

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void set_text(const std::string& text) = 0;  // UTF-8
};

// How every part of the program speaks to the user: a modal box with a text. It pumps events
// until it is answered.
enum class Answer : std::int16_t { ok = -1, no = 0, yes = 1 };

class Messages {
  public:
    virtual ~Messages() = default;

    // flags 0: a notice with "OK". Any other value: a question with "Yes" and "No".
    virtual Answer ShowDlgMessage(std::string text, std::int16_t flags, std::string title) = 0;
};

// A line of text from the user.
class Questions {
  public:
    virtual ~Questions() = default;

    // Modal, like a message. "" when the user cancels, or leaves nothing.
    virtual std::string ask(std::string prompt, std::string title, std::string proposal) = 0;
};

// The desktop's file manager.
class FileManager {
  public:
    virtual ~FileManager() = default;

    // Opens a window on a folder and returns at once, without waiting for it. Failures are silent.
    virtual void open_folder(const std::string& folder) = 0;
};

// The wire between two copies of the program. Only one copy per user holds the place; the others
// find it taken, speak to the holder and end.
class HandOver {
  public:
    virtual ~HandOver() = default;

    // True when another copy holds the place. Otherwise this copy takes it.
    virtual bool another_copy_runs() = 0;

    // To the running copy: come forward, and: take this command line. Failures are silent.
    virtual void bring_forward() = 0;
    virtual void poke(std::string_view command_line) = 0;

    // From other copies. Called from the event loop.
    std::function<void()> on_bring_forward;
    std::function<void(std::string)> on_poke;
};

}  // namespace zephyne
