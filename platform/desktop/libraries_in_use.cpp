#include "platform/desktop/libraries_in_use.h"

#include "platform/sound/synthesizer_library.h"

#include <fluidsynth.h>
#include <utf8proc.h>

#include <QtGlobal>

namespace zephyne {

std::vector<std::string> libraries_in_use() {
    std::vector<std::string> libraries = {std::string("Qt ") + qVersion()};
    if (load_synthesizer_library()) {
        libraries.push_back(std::string("FluidSynth ") + fluid_version_str());
    }
    libraries.push_back("mpv, for wave and video files");
    libraries.push_back(std::string("utf8proc ") + utf8proc_version());
    return libraries;
}

}  // namespace zephyne
