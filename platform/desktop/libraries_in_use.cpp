#include "platform/desktop/libraries_in_use.h"

#include <fluidsynth.h>
#include <utf8proc.h>

#include <QtGlobal>

namespace zephyne {

std::vector<std::string> libraries_in_use() {
    return {std::string("Qt ") + qVersion(), std::string("FluidSynth ") + fluid_version_str(),
            "mpv, for wave and video files", std::string("utf8proc ") + utf8proc_version()};
}

}  // namespace zephyne
