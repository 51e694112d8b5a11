#include "shell/web_links.h"

namespace zephyne {

void WebLinks::show() {
    pages_.open_page(program_.folders.file(files_, "zephyne.htm"));
}

}  // namespace zephyne
