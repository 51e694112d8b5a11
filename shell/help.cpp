#include "shell/help.h"

#include "shell/help_topics.h"

namespace zephyne {

void Help::show_contents() {
    viewer_.show_contents(program_.HelpFile);
}

void Help::close() {
    viewer_.close();
}

void Help::ask_whats_this() {
    viewer_.ask_whats_this();
}

std::string Help::topic(std::string_view name) {
    if (!html_) {
        html_ = files_.read_file(program_.HelpFile, FileSystem::text_file_limit).value_or("");
    }
    return help_topic(*html_, name);
}

}  // namespace zephyne
