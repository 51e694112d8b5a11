// The settings file "zephyne.ini": read once at the start, written whole at the end.
//
// It looks like an INI file, but sections play no part and the order of lines matters, because
// some keys act on the main window with what has been read before them. docs/formats/settings.md
// describes it to the byte.
#pragma once

#include "core/ports/file_system.h"
#include "core/ports/services.h"
#include "core/program.h"
#include "core/sheets/form1.h"

#include <string>

namespace zephyne {

std::string SettingsPath(const Program& program, PathStyle style);

// Fills the settings from the file and shows them in the main window (mode display, folder lists,
// lock box, preset tooltips). A file that cannot be read leaves the defaults; a line that cannot
// be applied is skipped.
void ReadSettings(Program& program, Form1& form, const FileSystem& files);

// Puts back what Queue mode has replaced, and writes the file. On failure the user is told and the
// file keeps the lines already written.
void WriteSettings(Program& program, const Form1& form, FileSystem& files, Messages& messages);

}  // namespace zephyne
