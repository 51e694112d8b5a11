// Lettering: which face each kind of text has, how a line is placed, fitted and wrapped.
//
// One line stands so that its capitals are centred in its box, which the eye takes for the
// middle of a key. Outlines are not hinted, and sizes need not be whole pixels.
#pragma once

#include "ui/qt/paint/scale.h"

#include <QColor>
#include <QFont>
#include <QString>
#include <QStringList>

class QPainter;

namespace zephyne::paint {

enum class Role {
    Caption,          // keys, labels, check boxes, options, menus, tooltips
    Row,              // list rows, text boxes
    SelectedRow,      //
    LedCaption,       // the counters: their names
    LedValue,         // and their values
    SongInformation,  // the LED text box
    Heading,          // also a menu's default item
    FrameCaption,
    Notice,        // wrapped text on the faceplate
    SliderLegend,  // L and R under the volume sliders
    Brand,         // the name on the faceplate
    MessageShort,  // message box
    MessageLong,   // message box with much to say
};

struct Face {
    double size;            // px at 100 %
    QFont::Weight weight;   //
    double pitch;           // from line to line, px at 100 %
    double letter_spacing;  // px at 100 %
};

const Face& face(Role role);

// The font for Qt's own text controls. Its size is a whole number of pixels, so at a
// fractional scale it can differ by half a pixel from what the functions below draw.
QFont font(Role role, const Scale& scale);

// The advance of one line in device pixels.
double text_width(const QString& text, Role role, const Scale& scale);

enum class Fit {
    Overflow,     // drawn in full, come what may
    Condense,     // narrowed down to 88 %, then cut at the end with an ellipsis
    ElideMiddle,  // an ellipsis in the middle: both ends of a file name tell something
};

// A line made to fit.
struct FittedText {
    QString text;
    double stretch;  // 0.88 to 1, the horizontal scale to draw it with
    double width;    // device pixels, stretch included
};

// room: device pixels. A room of nothing gives an empty line (except for Overflow).
FittedText fit_text(const QString& text, Role role, const Scale& scale, double room, Fit fit);

// Breaks a text into lines no wider than room (device pixels), at words where possible and
// within a word where not; line breaks of the text are kept.
QStringList wrap_text(const QString& text, Role role, const Scale& scale, double room);

// Two lines of about equal length, broken at a space; one line if there is no space.
QStringList balanced_lines(const QString& text, Role role, const Scale& scale);

enum class Align { Left, Center, Right };
enum class Glow { None, Led };

struct TextStyle {
    Role role = Role::Caption;
    QColor color;
    Align align = Align::Left;
    Fit fit = Fit::Overflow;
    Glow glow = Glow::None;  // a halo of the same colour around the letters
};

// One line in a box of device pixels, capitals centred.
void draw_text(QPainter& painter, const Scale& scale, const QRectF& box, const QString& text,
               const TextStyle& style);

// One line standing 1 px above the bottom of its box, where neighbours of different sizes
// share a baseline.
void draw_standing_text(QPainter& painter, const Scale& scale, const QRect& box,
                        const QString& text, const TextStyle& style);

// Lines from the top of the box, each in a strip of the role's pitch. Lines below the box are
// drawn too: clip if they must not be seen.
void draw_lines(QPainter& painter, const Scale& scale, const QRectF& box, const QStringList& lines,
                const TextStyle& style);

}  // namespace zephyne::paint
