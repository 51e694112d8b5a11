// libfluidsynth, loaded by the first thread that needs it rather than with the program.
//
// The library brings some forty others with it, for every kind of sound device, and loading them
// takes longer than the rest of the program; so the window comes up first, or at the same time.
#pragma once

namespace zephyne {

// Loads the library; false when it is not installed. Any thread, any number of times. Until this
// has returned true, the library's functions do nothing and return 0.
bool load_synthesizer_library();

}  // namespace zephyne
