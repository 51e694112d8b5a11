// The window of a form: builds a mirror for each control of the sheet when it has been shown,
// paints faceplate and controls, and reports to the form what the window manager and the user do
// with the window.
//
// All painting of controls happens in this one widget and in device pixels, so that edges snap
// across the whole window and a halo may reach over a neighbour; only what is dirty is painted.
//
// Belongs to the window host. Both the form and the window may end first. User-interface thread.
#pragma once

#include "core/controls/form.h"
#include "ui/qt/mirror.h"
#include "ui/qt/pixels.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace zephyne {

class FormWindow final : public QWidget, public ControlObserver {
  public:
    // factor: logical pixels per px at 100 %.
    FormWindow(Form& form, double factor);
    ~FormWindow() override;

    Form& form() const { return form_; }
    const Pixels& pixels() const { return pixels_; }

    // The extended style, see WindowHost; obeyed at the next show.
    std::int32_t extended_style() const { return extended_style_; }
    void set_extended_style(std::int32_t style) { extended_style_ = style; }

    // Called when the window has been hidden, or has ended.
    std::function<void()> on_hidden;

    // Shows it above all others, which take no input until it is hidden.
    void make_modal(QWidget* above);

    // In front of others and with the keyboard, from whatever state.
    void come_forward();

    // Lets go of form and controls, and goes away as soon as no event of its is being handled.
    void end();

    // For mirrors. Paints these device pixels anew.
    void repaint(const QRect& device);
    bool holds(const Place& place) const;  // whether any of it lies within the client area
    paint::Focus focus_look(const Control& control) const;
    void follow_focus();  // gives Qt's focus to the form's focused control
    void key_used(const QKeyEvent& event);
    void mouse_used();

    // Enter presses the default key and Escape the cancel key; true if that was it.
    bool press_answer_key(const QKeyEvent& event);
    void report_released_key(const QKeyEvent& event);
    void show_tooltip(const QPoint& screen_point, const QString& text);

    void property_changed(Property property) override;
    void subject_gone() override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void set_tab_order();
    void furnish();
    void give_focus();
    void focus_first_stop();
    void use_scale();
    void take_place();
    void show_or_hide();
    void settled();
    void activate_shown();
    bool painting_waits();
    void take_state();
    void report_place();
    QSize client_size() const;
    QPoint position() const;
    Mirror* mirror_of(const Control* control) const;

    Form& form_;
    Pixels pixels_;
    QWidget* tooltip_look_;  // never seen; tooltips take their style sheet from it
    std::vector<std::unique_ptr<Mirror>> mirrors_;
    std::vector<const Mirror*> stops_;  // in the order of Tab
    QTimer moved_;                      // runs out when the window has come to rest
    QTimer settling_;                   // runs while the window manager takes the window up
    QTimer painting_;                   // runs while painting waits for the next picture
    QElapsedTimer painted_;             // since the last picture
    QTimer hiding_;                     // hides it when the present step is over
    std::optional<QPoint> placed_at_;   // where the form wanted the window last
    std::int32_t extended_style_;
    std::int32_t shown_style_;  // which the window was shown with
    bool attached_ = true;
    bool keyboard_used_ = false;  // rather than the mouse, most recently
};

}  // namespace zephyne
