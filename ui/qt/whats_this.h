// What a control is for, in a note beside it, and the mode in which the next click asks for it.
#pragma once

class QPoint;
class QString;
class QWidget;

namespace zephyne {

// Ends the mode and shows the text below a point of the screen until the next key or click. An
// empty text shows nothing. factor: logical pixels per px at 100 %.
void show_whats_this(QWidget& asked, const QPoint& screen_point, const QString& text,
                     double factor);

// The next click asks a control what it is, rather than using it; Escape ends the mode.
void start_whats_this_mode();

}  // namespace zephyne
