#include "platform/desktop/font_preparation.h"

#include <fontconfig/fontconfig.h>

namespace zephyne {

// Qt asks the same library for its fonts, and finds them read.
FontPreparation::FontPreparation() : thread_([] { FcInit(); }) {}

void FontPreparation::wait() {
    if (thread_.joinable()) thread_.join();
}

}  // namespace zephyne
