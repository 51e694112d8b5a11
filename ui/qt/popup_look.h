// Style sheets for what Qt itself lays out: tooltips, notes, and the help.
#pragma once

#include <QString>

namespace zephyne::popup_look {

// factor: logical pixels per px at 100 %.
QString tooltip(double factor);

// Gives our colours and type to the tooltips of what has no style sheet: the tray icon.
void dress_tooltips(double factor);

QString whats_this(double factor);
QString help_window(double factor);    // keys, ground and scroll bar
QString help_document(double factor);  // the text itself

}  // namespace zephyne::popup_look
