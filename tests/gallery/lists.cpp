#include "ui/qt/paint/lists.h"

#include "sheet.h"
#include "ui/qt/paint/message_pictures.h"
#include "ui/qt/paint/note_roll.h"
#include "ui/qt/paint/palette.h"
#include "ui/qt/paint/sliders.h"

#include <QStringList>

namespace zephyne::gallery {

using namespace paint;

namespace {

void draw_list(const Sheet& sheet, const QRect& box, const ControlState& state, Pointer thumb) {
    QPainter& painter = sheet.painter();
    const Scale& scale = sheet.scale();
    const ScrollBar bar = state.enabled ? ScrollBar::Shown : ScrollBar::Hidden;
    const QStringList songs{QStringLiteral("Amber Lighthouse.mid"),
                            QStringLiteral("A name that is far too long for a list.mid"),
                            QStringLiteral("Copper Moon.mid"), QStringLiteral("Evening Tram.mid")};
    list_ground(painter, scale, box, state);
    QRect row = rows_area(scale, box, ListKind::Plain, bar);
    row.setHeight(row_height(scale, ListKind::Plain));
    for (const QString& song : songs) {
        list_row(
            painter, scale, row,
            {.enabled = state.enabled, .hovered = song == songs[3], .selected = song == songs[2]},
            song);
        row.translate(0, row.height());
    }
    if (bar == ScrollBar::Shown)
        scroll_bar(painter, scale, scroll_track(scale, box), {6, 4, 2}, ScrollPlace::Well, thumb);
}

void draw_folders(const Sheet& sheet, const QRect& box, const ControlState& state) {
    QPainter& painter = sheet.painter();
    const Scale& scale = sheet.scale();
    list_ground(painter, scale, box, state);
    QRect row = rows_area(scale, box, ListKind::Folders, ScrollBar::Hidden);
    row.setHeight(row_height(scale, ListKind::Folders));
    int depth = 0;
    for (const char* name : {"Home", "music", "evening", "1996 sessions"}) {
        folder_row(painter, scale, row,
                   {.enabled = state.enabled, .hovered = depth == 3, .selected = depth == 2}, depth,
                   QLatin1String(name));
        row.translate(0, row.height());
        ++depth;
    }
}

void draw_drives(const Sheet& sheet, int top) {
    QPainter& painter = sheet.painter();
    const Scale& scale = sheet.scale();
    const ControlState states[] = {{},
                                   {.pointer = Pointer::Over},
                                   {.pointer = Pointer::Down},
                                   {.focus = Focus::Ring},
                                   {.enabled = false}};
    int x = 20;
    for (const ControlState& state : states) {
        drive_list(painter, scale, sheet.place(x, top, 160, 21), state,
                   QStringLiteral("Home  [clara]"));
        x += 175;
    }
    const QRect box = sheet.place(20, top + 24, 160, 56);
    drop_down_ground(painter, scale, box);
    QRect row = rows_area(scale, box, ListKind::DropDown, ScrollBar::Hidden);
    row.setHeight(row_height(scale, ListKind::DropDown));
    for (const char* name : {"Home  [clara]", "System", "Stick"}) {
        drive_row(painter, scale, row, {.selected = *name == 'H'}, QLatin1String(name));
        row.translate(0, row.height());
    }
}

void draw_volumes(const Sheet& sheet, int top) {
    const ControlState states[] = {{},
                                   {.pointer = Pointer::Over},
                                   {.pointer = Pointer::Down},
                                   {.focus = Focus::Ring},
                                   {.enabled = false}};
    int x = 200;
    for (const ControlState& state : states) {
        slider(sheet.painter(), sheet.scale(), sheet.place(x, top, 19, 103), state,
               SliderKind::LeftVolume, 0.25);
        slider(sheet.painter(), sheet.scale(), sheet.place(x + 21, top, 19, 103), state,
               SliderKind::RightVolume, 1);
        x += 60;
    }
}

void draw_keys(const Sheet& sheet, int top) {
    QPainter& painter = sheet.painter();
    const Scale& scale = sheet.scale();
    button(painter, scale, sheet.place(520, top, 134, 36), {},
           QStringLiteral("Create/Edit/Save a Playlist"));
    button(painter, scale, sheet.place(657, top, 96, 36), {.focus = Focus::Quiet},
           QStringLiteral("Open a Playlist"));
    button(painter, scale, sheet.place(760, top, 44, 19), {}, QStringLiteral("Explore"));
    button(painter, scale, sheet.place(808, top, 44, 19), {}, QStringLiteral("Much too long"));
    int x = 760;
    for (int display = 0; display < 4; ++display) {
        lamp(painter, scale, sheet.place(x, top + 26, 8, 8), led_color(display));
        x += 16;
    }
    frame(painter, scale, sheet.place(830, top + 22, 50, 24), QString(), {});
}

void draw_popups(const Sheet& sheet, int top) {
    QPainter& painter = sheet.painter();
    const Scale& scale = sheet.scale();
    const QRect menu = sheet.place(520, top, 140, 88);
    popup_ground(painter, scale, menu);
    const auto row = [&](int y) { return sheet.place(521, top + y, 138, menu_row_height); };
    menu_row(painter, scale, row(1), {.is_default = true}, QStringLiteral("Show Zephyne"));
    menu_row(painter, scale, row(21), {.selected = true}, QStringLiteral("Next Song"));
    menu_row(painter, scale, row(41), {.checked = true}, QStringLiteral("Auto-Repeat"));
    menu_separator(painter, scale, sheet.place(521, top + 61, 138, 6));
    menu_row(painter, scale, row(67), {.enabled = false}, QStringLiteral("Rename"));

    const QString tip = QStringLiteral("Plays the next song of the list");
    tooltip(painter, scale, QRect(sheet.place(680, top, 1, 1).topLeft(), tooltip_size(scale, tip)),
            tip);
    wrapped_label(painter, scale, sheet.place(680, top + 34, 200, 60), {.role = Role::Notice},
                  QStringLiteral("You are currently in Playlist Mode. Presets and "
                                 "directory-related functions are disabled while in this mode."));
}

void draw_glasses(const Sheet& sheet, int top) {
    QPainter& painter = sheet.painter();
    const Scale& scale = sheet.scale();
    note_banner(painter, scale, sheet.place(20, top, 576, 40), BannerPlace::Information);
    note_banner(painter, scale, sheet.place(610, top, 151, 36), BannerPlace::MainWindow);
    note_pad(painter, scale, sheet.place(780, top, 32, 32));
    brand(painter, scale, sheet.place(20, top + 46, 103, 18), QStringLiteral("ZEPHYNE"));

    const QRect box = sheet.place(730, top + 46, 150, 70);
    glass_text_box(painter, scale, box, {.focus = Focus::Ring});
    draw_lines(painter, scale, text_box_interior(scale, box, TextLines::Many),
               {QStringLiteral("Path/Filename:"), QStringLiteral("/home/clara/evening/"),
                QStringLiteral("copper moon.mid")},
               {.role = Role::SongInformation, .color = led_color(0), .glow = Glow::Led});
    scroll_bar(painter, scale, scroll_track(scale, box, ScrollPlace::Glass), {3, 4, 0},
               ScrollPlace::Glass, Pointer::Away);

    draw_text(painter, scale, sheet.place(140, top + 46, 280, 24),
              QStringLiteral("Are you sure you want to clear all presets?"),
              {.role = Role::MessageShort, .color = palette::engraving});
    draw_text(painter, scale, sheet.place(140, top + 70, 280, 20),
              QStringLiteral("You are about to kill all notes you have entered."),
              {.role = Role::MessageLong, .color = palette::engraving});
    groove(painter, scale, sheet.place(140, top + 94, 560, 2));
    groove(painter, scale, sheet.place(128, top + 46, 2, 60));
}

}  // namespace

void draw_lists(const Sheet& sheet, int top) {
    sheet.heading(20, top, QStringLiteral("lists: normal, thumb hover, thumb dragged, focus, off"));
    draw_list(sheet, sheet.place(20, top + 20, 160, 66), {}, Pointer::Away);
    draw_list(sheet, sheet.place(195, top + 20, 160, 66), {}, Pointer::Over);
    draw_list(sheet, sheet.place(370, top + 20, 160, 66), {}, Pointer::Down);
    draw_list(sheet, sheet.place(545, top + 20, 160, 66), {.focus = Focus::Ring}, Pointer::Away);
    draw_list(sheet, sheet.place(720, top + 20, 160, 66), {.enabled = false}, Pointer::Away);
    draw_drives(sheet, top + 94);
    draw_folders(sheet, sheet.place(20, top + 182, 160, 67), {});
    draw_volumes(sheet, top + 132);
    draw_keys(sheet, top + 124);
    draw_popups(sheet, top + 176);
    draw_glasses(sheet, top + 274);
}

}  // namespace zephyne::gallery
