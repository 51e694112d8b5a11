// A window: its controls in the order in which they are painted, its place, and its life.
#pragma once

#include "core/controls/control.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zephyne {

enum class WindowState { normal, minimized, maximized };

// What a window manager draws around the client area, in twips, as the sheets reckon it.
inline constexpr int kTitleBarHeight = 375;
inline constexpr int kLowerFrameHeight = 30;

enum class CloseReason { user, program, session_end };

struct FormDesign {
    std::string_view name;
    std::string_view title;
    int width = 0;   // outer, twips
    int height = 0;  // outer, twips
};

class Form {
  public:
    explicit Form(const FormDesign& design);
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return name_; }
    const std::vector<Control*>& controls() const { return controls_; }

    // Null when there is no control of that name.
    Control* find(std::string_view name) const;

    const std::string& title() const { return title_; }
    void set_title(std::string title);

    // Outer place on the screen, twips.
    const Place& place() const { return place_; }
    void set_place(const Place& place);
    void move_to(int left, int top);
    int client_height() const { return place_.height - kTitleBarHeight - kLowerFrameHeight; }

    bool visible() const { return visible_; }
    void set_visible(bool visible);

    WindowState state() const { return state_; }
    void set_state(WindowState state);

    // The keys that Enter and Escape press; null: none.
    Control* default_button() const { return default_button_; }
    Control* cancel_button() const { return cancel_button_; }
    void set_default_button(Control* button) { default_button_ = button; }
    void set_cancel_button(Control* button) { cancel_button_ = button; }

    // Where the keyboard is; null: nowhere.
    Control* focused() const { return focused_; }
    void set_focused(Control* control);

    // Handlers.
    std::function<void()> on_activate;
    std::function<void()> on_resize;  // size or state changed by the user
    std::function<void(CloseReason, bool& cancel)> on_query_unload;
    std::function<void()> on_unload;
    std::function<void(int key)> on_key_up;  // customary key codes; 113 is F2

    // Asks the form to close: on_query_unload may cancel, else on_unload runs and the form is
    // hidden and unloaded. Returns whether it was unloaded. Nothing happens (false) while the
    // question of an earlier request is still open, except at the end of the session, which does
    // not wait for an answer.
    bool request_unload(CloseReason reason);
    bool loaded() const { return loaded_; }
    void load() { loaded_ = true; }

    // What the user or the window manager did.
    void user_activated();
    void user_moved(int left, int top);        // silent; the place is remembered
    void user_resized(int width, int height);  // outer
    void user_changed_state(WindowState state);
    void user_released_key(int key);

    // One observer; null detaches.
    void observe(ControlObserver* observer) { observer_ = observer; }

  private:
    friend class Control;
    void changed(Property property) const;

    std::string name_;
    std::string title_;
    Place place_;
    bool visible_ = false;
    bool loaded_ = false;
    bool asking_ = false;
    WindowState state_ = WindowState::normal;
    Control* default_button_ = nullptr;
    Control* cancel_button_ = nullptr;
    Control* focused_ = nullptr;
    std::vector<Control*> controls_;
    ControlObserver* observer_ = nullptr;
};

}  // namespace zephyne
