#include "core/program.h"

namespace zephyne {

std::string ProgramFolders::file(const FileSystem& files, const std::string& name) const {
    std::string here = joined(own, name, files.path_style());
    if (installed.empty() || files.check_readable(here)) return here;
    return joined(installed, name, files.path_style());
}

std::string_view form_name(std::int16_t number) {
    switch (number) {
        case FormNumber::Main:
            return "Form1";
        case FormNumber::Options:
            return "Form2";
        case FormNumber::Information:
            return "Form3";
        case FormNumber::Notes:
            return "Form4";
        case FormNumber::About:
            return "Form5";
        case FormNumber::MoveFile:
            return "Form6";
        case FormNumber::ViewPresets:
            return "Form8";
        case FormNumber::MessageBox:
            return "dlgbox";
        case FormNumber::InputBox:
            return "txtbox";
        case FormNumber::PlaylistEditor:
            return "Form9";
        case FormNumber::QuickTip:
            return "Quick_Tip";
        default:
            return "";
    }
}

std::string reset_file_name(std::int32_t reset_type) {
    switch (reset_type) {
        case 1:
            return "xg_reset.aut";
        case 2:
            return "gs_reset.aut";
        default:
            return "gm_reset.aut";
    }
}

void check_reset_file(Program& program, const FileSystem& files) {
    const std::string name = reset_file_name(program.settings.ResetType);
    program.ResetFilePresent = files.check_readable(program.folders.file(files, name)).has_value();
}

std::uint32_t led_colour(std::int16_t display) {
    switch (display) {
        case 0:
            return 0x00FF00;
        case 1:
            return 0xFF9900;
        case 2:
            return 0xFF0000;
        default:
            return 0x000000;
    }
}

}  // namespace zephyne
