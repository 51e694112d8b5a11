// List boxes, the folder list, the drive list with its drop-down, and scroll bars.
#pragma once

#include "ui/qt/paint/controls.h"
#include "ui/qt/paint/scale.h"

#include <QRect>
#include <QString>

class QPainter;

namespace zephyne::paint {

enum class ListKind {
    Plain,     // list boxes and file lists: rows of 16 px
    Folders,   // rows of 15 px
    DropDown,  // rows of 18 px
};

// The well of a list, ring included.
void list_ground(QPainter& painter, const Scale& scale, const QRect& box,
                 const ControlState& state);
// The ground of an open drop-down.
void drop_down_ground(QPainter& painter, const Scale& scale, const QRect& box);

enum class ScrollBar { Hidden, Shown };

int row_height(const Scale& scale, ListKind kind);

// The area of a list's box where rows go; it leaves out the scroll bar if that is shown. The
// first row starts at its top.
QRect rows_area(const Scale& scale, const QRect& box, ListKind kind, ScrollBar scroll_bar);

struct RowState {
    bool enabled = true;
    bool hovered = false;
    bool selected = false;
    bool current = false;  // the keyboard is here; seen only on a row that is not selected
};

// A row of a plain list or a drop-down. Too long a text loses its middle.
void list_row(QPainter& painter, const Scale& scale, const QRect& row, const RowState& state,
              const QString& text);

// A row of the folder list. depth: steps of indent, 0 or more. selected: the current folder.
void folder_row(QPainter& painter, const Scale& scale, const QRect& row, const RowState& state,
                int depth, const QString& text);

// The closed drive list. `pointer` of the state is that of the key part.
void drive_list(QPainter& painter, const Scale& scale, const QRect& box, const ControlState& state,
                const QString& text);
void drive_row(QPainter& painter, const Scale& scale, const QRect& row, const RowState& state,
               const QString& text);

// The key part of a drive list, for the mouse.
QRect drive_key_box(const Scale& scale, const QRect& box);

struct ScrollRange {
    int maximum = 0;  // largest value; 0 hides the bar
    int page = 1;     // how much of the content is seen at once, in the units of value
    int value = 0;
};

enum class ScrollPlace { Well, Glass };

// The track inside the right edge of a well's or glass's box.
QRect scroll_track(const Scale& scale, const QRect& box, ScrollPlace place = ScrollPlace::Well);
// The thumb in its track: at least 16 px long.
QRect scroll_thumb(const Scale& scale, const QRect& track, const ScrollRange& range);
// The value that puts the thumb's top at the device pixel y; clamped.
int scroll_value_at(const Scale& scale, const QRect& track, const ScrollRange& range, int y);

void scroll_bar(QPainter& painter, const Scale& scale, const QRect& track, const ScrollRange& range,
                ScrollPlace place, Pointer pointer);

}  // namespace zephyne::paint
