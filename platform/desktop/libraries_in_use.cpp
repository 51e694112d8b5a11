#include "platform/desktop/libraries_in_use.h"

#include <fluidsynth.h>
#include <utf8proc.h>

#include <QtGlobal>

namespace zephyne {

std::vector<std::string> libraries_in_use() {
    // While FluidSynth is not loaded, it is told as it was built with.
    const char* synthesizer = fluid_version_str();
    return {std::string("Qt ") + qVersion(),
            std::string("FluidSynth ") + (synthesizer ? synthesizer : FLUIDSYNTH_VERSION),
            "mpv, for wave and video files", std::string("utf8proc ") + utf8proc_version()};
}

}  // namespace zephyne
