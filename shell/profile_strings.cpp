#include "shell/profile_strings.h"

#include "core/text/profile_text.h"
#include "core/text/utf8.h"

namespace zephyne {
namespace {

std::string first_characters(std::string text, std::size_t count) {
    std::string_view rest = text;
    while (count > 0 && !rest.empty()) {
        take_character(rest);
        --count;
    }
    text.resize(text.size() - rest.size());
    return text;
}

}  // namespace

std::string ProfileStrings::get_string(const std::string& path, const std::string& section,
                                       const std::string& key, const std::string& otherwise,
                                       std::size_t longest) const {
    const auto text = files_.read_file(path, FileSystem::text_file_limit);
    const auto value = text ? profile_value(*text, section, key) : std::nullopt;
    return first_characters(value ? to_utf8(*value) : otherwise, longest);
}

bool ProfileStrings::write_string(const std::string& path, const std::string& section,
                                  const std::string& key, const std::string& value) {
    const auto text = files_.read_file(path, FileSystem::text_file_limit);
    if (!text && text.error().kind != FileErrorKind::not_found) return false;
    const std::string before = text.value_or("");
    if (before.size() == FileSystem::text_file_limit) return false;  // there may be more of it
    const std::string after = with_profile_value(before, section, key, value);
    return files_.replace_file(files_.resolve(path).value_or(path), after).has_value();
}

}  // namespace zephyne
