// What shows a control and tells it what the user did. There is one kind of mirror for each kind
// of control.
//
// A mirror observes its control, reads its whole state when it attaches, and never sets a property:
// what the user does goes through the control's own calls for that (click(), type(), drag_to()).
// Painting is the window's: it calls paint() for every mirror that its dirty region touches, in the
// order of the sheet. The mirror's widget lies above the painted box, invisible, and is there for
// the mouse, the keyboard and screen readers; text boxes and lists paint their content with it.
//
// Mirrors belong to their window. The control may end before or after them. User-interface thread.
#pragma once

#include "core/controls/control.h"
#include "ui/qt/paint/controls.h"
#include "ui/qt/paint/scale.h"

#include <QObject>
#include <QRect>

class QEvent;
class QKeyEvent;
class QPainter;
class QPoint;
class QPaintEvent;
class QWidget;

namespace zephyne {

class FormWindow;

class Mirror : public QObject, public ControlObserver {
  public:
    ~Mirror() override;

    const Control& control() const { return control_; }

    // Null where a control is nothing but paint.
    QWidget* widget() const { return widget_; }

    // The painted box, and all that paint() may touch, in device pixels of the window.
    QRect box() const;
    virtual QRect reach() const;
    virtual void paint(QPainter& painter, const paint::Scale& scale) const = 0;

    // Observes the control and takes over its state; called once, by the window.
    void attach();

    // Lets go of the control for good.
    void detach();

    // Puts the widget where the control is; the window calls it when the scale has changed.
    void lay_out();

    // Shown, and within the window's present size: a narrow window leaves controls outside, which
    // the keyboard and screen readers must not reach either. The widget is there only then; the
    // window calls show_or_hide() when it has another size.
    bool on_window() const;
    void show_or_hide();

    // Asks for the control's part of the window to be painted again.
    void repaint();

    // Enter goes to this control even where the form has a default key.
    virtual bool takes_enter() const { return false; }

    void property_changed(Property property) override;
    void subject_gone() override;

  protected:
    Mirror(FormWindow& window, Control& control);

    // For constructors. The widget is a child of the window, which owns it.
    void set_widget(QWidget* widget);

    // Whether events of a widget that is part of this one's count as the control's, too.
    void watch(QObject* part);

    // Brings the widget in line with one property of the control.
    virtual void show_property(Property /*property*/) {}

    // The name for screen readers; not for labels, whose text is their name.
    virtual void show_name();

    virtual void laid_out() {}                        // the widget has a new place
    virtual void detached() {}                        // the control must not be used any more
    virtual bool key_pressed(QKeyEvent& /*event*/) {  // true: that was all about this key
        return false;
    }
    virtual bool handle(QEvent& /*event*/) { return false; }  // any other; true: handled

    // What the painter wants to know about most controls.
    paint::ControlState look() const;

    FormWindow& window() const { return window_; }
    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    bool press_key(QKeyEvent& event);
    void show_help(const QPoint& screen_point);

    FormWindow& window_;
    Control& control_;
    QWidget* widget_ = nullptr;
    QRect painted_;
    bool attached_ = false;
};

// A widget of Qt's for its behaviour only.
template <class Base>
class Unpainted : public Base {
  public:
    using Base::Base;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {}
};

}  // namespace zephyne
