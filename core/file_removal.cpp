#include "core/file_removal.h"

namespace zephyne {

void remove_files_ending(FileSystem& files, const std::string& folder, std::string_view extension) {
    const auto names = files.list_files(folder);
    if (!names) return;
    for (const std::string& name : *names) {
        if (extension_of(name) == extension) {
            (void)files.remove_file(joined(folder, name, files.path_style()));
        }
    }
}

}  // namespace zephyne
