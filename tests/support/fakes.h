// Hand-made stand-ins for the machine and the desktop. Each writes down what it was asked for.
#pragma once

#include "core/controls/form.h"
#include "core/ports/file_dialogs.h"
#include "core/ports/midi_out_volume.h"
#include "core/ports/notification_area.h"
#include "core/ports/services.h"
#include "core/ports/window_host.h"

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zephyne::test {

using Log = std::vector<std::string>;

// Random numbers as a test lays them out; after the last one, again from the first.
class ScriptedRandom final : public Random {
  public:
    std::vector<double> numbers = {0.0};
    double next() override { return numbers[next_++ % numbers.size()]; }

  private:
    std::size_t next_ = 0;
};

class LoggedBeeper final : public Beeper {
  public:
    explicit LoggedBeeper(Log& log) : log_(log) {}
    void beep() override { log_.push_back("beep"); }

  private:
    Log& log_;
};

// Answers questions at once, after letting a test act while the message is open.
class ScriptedMessages final : public Messages {
  public:
    explicit ScriptedMessages(Log& log) : log_(log) {}

    Answer answer = Answer::yes;
    std::function<void()> while_open;

    Answer ShowDlgMessage(std::string text, std::int16_t flags, std::string title) override {
        log_.push_back("message: " + text + " [" + title + "]");
        if (while_open) while_open();
        return flags == 0 ? Answer::ok : answer;
    }

  private:
    Log& log_;
};

// File dialogs answered beforehand, in turn; with no answer left they are cancelled.
class ScriptedFileDialogs final : public FileDialogs {
  public:
    explicit ScriptedFileDialogs(Log& log) : log_(log) {}

    std::deque<std::string> answers;

    std::optional<std::string> open_file(const FileChoice& choice) override {
        return answer("open " + choice.default_extension);
    }
    std::optional<std::string> save_file(const FileChoice& choice) override {
        return answer("save " + choice.default_extension);
    }
    std::optional<std::string> choose_folder(const std::string& title) override {
        return answer(title);
    }

  private:
    std::optional<std::string> answer(const std::string& question) {
        log_.push_back("dialog: " + question);
        if (answers.empty()) return std::nullopt;
        const std::string first = answers.front();
        answers.pop_front();
        return first;
    }

    Log& log_;
};

// Answers a question at once; by default with the proposal.
class ScriptedQuestions final : public Questions {
  public:
    explicit ScriptedQuestions(Log& log) : log_(log) {}

    std::optional<std::string> answer;
    std::function<void()> while_open;

    std::string ask(std::string prompt, std::string title, std::string proposal) override {
        log_.push_back("ask: " + prompt + " [" + title + "] " + proposal);
        if (while_open) while_open();
        return answer.value_or(proposal);
    }

  private:
    Log& log_;
};

class LoggedFileManager final : public FileManager {
  public:
    explicit LoggedFileManager(Log& log) : log_(log) {}
    void open_folder(const std::string& folder) override { log_.push_back("open " + folder); }

  private:
    Log& log_;
};

// MIDI outputs whose volumes can be turned by somebody else.
class FakeMidiOut final : public MidiOutVolume {
  public:
    std::vector<std::string> names = {"Zephyne Synthesizer"};
    std::map<std::uint32_t, std::uint32_t> words;  // full where there is none

    std::uint32_t device_count() const override { return static_cast<std::uint32_t>(names.size()); }
    std::string device_name(std::uint32_t device) const override { return names[device]; }
    std::uint32_t volume(std::uint32_t device) const override {
        const auto found = words.find(device);
        return found == words.end() ? 0xFFFFFFFF : found->second;
    }
    void set_volume(std::uint32_t device, std::uint32_t volume) override { words[device] = volume; }
};

class FakeHandOver final : public HandOver {
  public:
    bool taken = false;  // another copy runs
    Log sent;

    bool another_copy_runs() override { return taken; }
    void bring_forward() override { sent.push_back("come forward"); }
    void poke(std::string_view text) override { sent.push_back("poke " + std::string(text)); }
};

class FakeClipboard final : public Clipboard {
  public:
    std::string text;
    void set_text(const std::string& copied) override { text = copied; }
};

// A notification area whose host comes and goes as a test says. The user's act is
// release(); what is chosen in the menu is clicked on the sheet.
class FakeNotificationArea final : public NotificationArea {
  public:
    explicit FakeNotificationArea(Log& log) : log_(log) {}

    bool host = true;
    bool menu_open = false;
    NotifyIconData icon;  // as the program told last

    void notify_icon(NotifyCommand command, const NotifyIconData& data) override {
        icon = data;
        if (command == NotifyCommand::add) log_.push_back("icon added");
        if (command == NotifyCommand::remove) log_.push_back("icon removed");
    }
    void set_menu(PopupMenu menu) override { menu_ = std::move(menu); }
    void show_menu() override {
        menu_open = true;
        log_.push_back("menu");
    }
    bool has_host() override { return host; }

    void release(std::uint32_t mouse_message) { on_message(icon.uCallbackMessage, mouse_message); }

    // What the menu shows, as "Pause, -, *Show*": separators, the default entry, "(off)".
    std::string entries() const {
        std::string text;
        for (const MenuItem* item : menu_.items) {
            if (!item->visible) continue;
            if (!text.empty()) text += ", ";
            const std::string caption =
                item == menu_.default_item ? "*" + item->caption + "*" : item->caption;
            text += item->kind == MenuItemKind::separator ? "-" : caption;
            if (!item->enabled) text += " (off)";
        }
        return text;
    }

  private:
    Log& log_;
    PopupMenu menu_;
};

// A desktop without pictures. A modal form is handed to the test, which acts on it.
class FakeWindows final : public WindowHost {
  public:
    bool has_icon = false;  // our icon is in the notification area
    std::map<std::string, std::int32_t> styles;
    Log raised;
    int height_of_text = 0;
    Form* modal = nullptr;
    std::function<void(Form&)> on_modal;
    std::map<std::string, Form*> open;  // the windows that there are, by name

    int text_height(const Label&) const override { return height_of_text; }
    void create(Form& form) override { open[form.name()] = &form; }
    void destroy(Form& form) override { open.erase(form.name()); }
    void run_modal(Form& form) override {
        form.set_visible(true);
        form.user_activated();
        if (on_modal) on_modal(form);
    }
    TwipsSize screen() const override { return {19200, 12000}; }
    std::vector<Place> screens() const override { return {{0, 0, 19200, 12000}}; }
    std::int32_t extended_style(const Form& form) const override {
        const auto found = styles.find(form.name());
        return found == styles.end() ? 0x100 : found->second;
    }
    void set_extended_style(Form& form, std::int32_t style) override {
        styles[form.name()] = style;
    }
    void bring_to_front(Form& form) override { raised.push_back(form.name()); }
    Form* find(std::string_view form_name) const override {
        const auto found = open.find(std::string(form_name));
        return found == open.end() ? nullptr : found->second;
    }
    Form* modal_form() const override { return modal; }
    bool reachable_when_hidden() const override { return has_icon; }
};

}  // namespace zephyne::test
