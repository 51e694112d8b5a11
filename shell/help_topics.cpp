#include "shell/help_topics.h"

#include <array>
#include <cctype>
#include <utility>

namespace zephyne {
namespace {

constexpr auto npos = std::string_view::npos;

struct Reference {
    std::string_view written;
    char means;
};
constexpr std::array<Reference, 6> kReferences = {{{"&lt;", '<'},
                                                   {"&gt;", '>'},
                                                   {"&amp;", '&'},
                                                   {"&quot;", '"'},
                                                   {"&nbsp;", ' '},
                                                   {"&#39;", '\''}}};

bool is_blank(char c) {
    return std::isspace(static_cast<unsigned char>(c)) != 0;
}

std::string without_tags(std::string_view html) {
    std::string text;
    for (std::size_t at = 0; at < html.size();) {
        const std::size_t tag = html.find('<', at);
        text += html.substr(at, tag == npos ? npos : tag - at);
        const std::size_t end = tag == npos ? npos : html.find('>', tag);
        if (end == npos) break;
        at = end + 1;
    }
    return text;
}

std::string resolved(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        std::size_t length = 1;
        char c = text.front();
        for (const Reference& reference : kReferences) {
            if (!text.starts_with(reference.written)) continue;
            length = reference.written.size();
            c = reference.means;
        }
        plain += c;
        text.remove_prefix(length);
    }
    return plain;
}

std::string drawn_together(std::string_view text) {
    std::string line;
    for (const char c : text) {
        if (!is_blank(c)) {
            line += c;
        } else if (!line.empty() && line.back() != ' ') {
            line += ' ';
        }
    }
    if (!line.empty() && line.back() == ' ') line.pop_back();
    return line;
}

}  // namespace

std::string help_topic(std::string_view html, std::string_view topic) {
    if (topic.empty()) return {};
    const std::string id = "id=\"" + std::string(topic) + "\"";
    const std::size_t at = html.find(id);
    if (at == npos) return {};
    const std::size_t open = html.rfind('<', at);
    const std::size_t inside = html.find('>', at);
    if (open == npos || inside == npos) return {};
    const std::string_view tag = html.substr(open + 1, at - open - 1);
    const std::string closing =
        "</" + std::string(tag.substr(0, tag.find_first_of(" \t\r\n"))) + ">";
    const std::size_t end = html.find(closing, inside);
    if (end == npos) return {};
    return drawn_together(resolved(without_tags(html.substr(inside + 1, end - inside - 1))));
}

}  // namespace zephyne
