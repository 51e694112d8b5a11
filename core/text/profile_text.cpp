#include "core/text/profile_text.h"

#include "core/text/letter_case.h"

namespace zephyne {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string_view unquoted(std::string_view text) {
    const bool quoted = text.size() >= 2 && text.front() == text.back() &&
                        (text.front() == '"' || text.front() == '\'');
    return quoted ? text.substr(1, text.size() - 2) : text;
}

bool has_line_end(std::string_view text) {
    return text.find_first_of("\r\n") != std::string_view::npos;
}

// Takes one line after the other, and knows where in the text it is.
class Lines {
  public:
    explicit Lines(std::string_view text) : text_(text) {
        if (text_.starts_with(kByteOrderMark)) next_ = kByteOrderMark.size();
    }

    // False when there is none left.
    bool take() {
        if (next_ >= text_.size()) return false;
        begin_ = next_;
        end_ = std::min(text_.find_first_of("\r\n", begin_), text_.size());
        next_ = end_ + (text_.substr(end_).starts_with(kLineEnd) ? 2 : 1);
        return true;
    }

    std::string_view line() const { return text_.substr(begin_, end_ - begin_); }
    std::size_t begin() const { return begin_; }
    std::size_t end() const { return end_; }  // without the line end
    std::size_t next() const { return std::min(next_, text_.size()); }

  private:
    std::string_view text_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    std::size_t next_ = 0;
};

// The section that a line opens.
std::optional<std::string_view> section_of(std::string_view line) {
    line = trimmed(line);
    const auto close = line.rfind(']');
    if (!line.starts_with('[') || close == std::string_view::npos) return std::nullopt;
    return trimmed(line.substr(1, close - 1));
}

std::optional<std::string_view> key_of(std::string_view line) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos || trimmed(line).starts_with(';')) return std::nullopt;
    return trimmed(line.substr(0, equals));
}

// What a search has found, as places in the text.
struct Found {
    std::optional<std::size_t> value;        // behind the "=" of the key
    std::size_t value_end = 0;               // without the line end
    std::optional<std::size_t> section_end;  // behind the last line of its first section
};

Found find(std::string_view text, std::string_view section, std::string_view key) {
    Found found;
    bool inside = false;
    bool first = false;  // inside the first section of that name
    Lines lines(text);
    while (lines.take()) {
        if (const auto opened = section_of(lines.line())) {
            inside = equal_ignoring_case(*opened, trimmed(section));
            first = inside && !found.section_end;
            if (first) found.section_end = lines.next();
            continue;
        }
        if (!inside) continue;
        if (first && !trimmed(lines.line()).empty()) found.section_end = lines.next();
        const auto here = key_of(lines.line());
        if (!here || !equal_ignoring_case(*here, trimmed(key))) continue;
        found.value = lines.begin() + lines.line().find('=') + 1;
        found.value_end = lines.end();
        return found;
    }
    return found;
}

}  // namespace

std::optional<std::string_view> profile_value(std::string_view text, std::string_view section,
                                              std::string_view key) {
    const Found found = find(text, section, key);
    if (!found.value) return std::nullopt;
    return unquoted(trimmed(text.substr(*found.value, found.value_end - *found.value)));
}

std::string with_profile_value(std::string_view text, std::string_view section,
                               std::string_view key, std::string_view value) {
    std::string result(text);
    if (has_line_end(section) || has_line_end(key) || has_line_end(value)) return result;
    const Found found = find(text, section, key);
    if (found.value) {
        return result.replace(*found.value, found.value_end - *found.value, value);
    }
    const std::size_t place = found.section_end.value_or(text.size());
    const std::string_view before = text.substr(0, place);
    const bool unfinished = !before.empty() && before != kByteOrderMark &&
                            !before.ends_with('\n') && !before.ends_with('\r');
    std::string added(unfinished ? kLineEnd : "");
    if (!found.section_end) added.append("[").append(section).append("]").append(kLineEnd);
    added.append(trimmed(key)).append("=").append(value).append(kLineEnd);
    return result.insert(place, added);
}

}  // namespace zephyne
