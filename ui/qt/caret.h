// The blinking line where text is entered, in our colour and one stroke wide.
#pragma once

#include "ui/qt/pixels.h"

#include <QObject>
#include <QTimer>

class QStyle;
class QWidget;

namespace zephyne {

class Caret final : public QObject {
  public:
    // The surface is the widget that the text is painted on; it owns the caret.
    explicit Caret(QWidget& surface);

    void start();  // with a full period of light, as after each key
    void stop();

    // In the surface's paint event, after the text. line: where the caret stands, logical, its
    // left edge counts.
    void paint(const Pixels& pixels, const QRect& line);

  private:
    QWidget& surface_;
    QTimer blink_;
    bool lit_ = false;
};

// For Qt's text widgets: the same on every desktop, and without a caret of its own.
QStyle& text_style();

}  // namespace zephyne
