#include "platform/desktop/libraries_in_use.h"

#include <fluidsynth.h>
#include <utf8proc.h>

#include <QtGlobal>

namespace zephyne {

std::vector<std::string> libraries_in_use() {
    // FluidSynth and mpv are not loaded yet: the one is told as it was built with.
    return {std::string("Qt ") + qVersion(), "FluidSynth " FLUIDSYNTH_VERSION,
            "mpv, for wave and video files", std::string("utf8proc ") + utf8proc_version()};
}

}  // namespace zephyne
