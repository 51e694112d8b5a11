// Topics of the help file as plain text, for the notes beside controls.
#pragma once

#include <string>
#include <string_view>

namespace zephyne {

// The text of the element that bears `id="topic"`, from HTML: without tags, white space drawn
// together, and the character references &lt; &gt; &amp; &quot; &nbsp; &#39; resolved. "" where
// there is no such element or it is never closed. Elements of the same kind must not be nested.
std::string help_topic(std::string_view html, std::string_view topic);

}  // namespace zephyne
