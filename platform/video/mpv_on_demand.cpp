// libmpv, loaded when the first wave or video file is opened.
//
// The library brings some hundred others with it, and linking them all would cost every start of
// the program a tenth of a second for files that most collections do not hold. So the functions
// that we use are defined here, and pass on to the library once it is there. Without it
// mpv_create() returns null, and no other is called.
#include <dlfcn.h>
#include <mpv/client.h>

namespace {

template <class Function>
Function find(const char* name) {
    static void* const library = dlopen("libmpv.so.2", RTLD_NOW | RTLD_LOCAL);
    return library ? reinterpret_cast<Function>(dlsym(library, name)) : nullptr;
}

}  // namespace

// Each looks its namesake up once.
#define ZEPHYNE_PASS_ON(name, ...)                            \
    static const auto pass_on = find<decltype(&name)>(#name); \
    return pass_on(__VA_ARGS__)

extern "C" {

mpv_handle* mpv_create() {
    static const auto create = find<decltype(&mpv_create)>("mpv_create");
    return create ? create() : nullptr;
}

int mpv_initialize(mpv_handle* player) {
    ZEPHYNE_PASS_ON(mpv_initialize, player);
}

void mpv_terminate_destroy(mpv_handle* player) {
    ZEPHYNE_PASS_ON(mpv_terminate_destroy, player);
}

int mpv_set_option_string(mpv_handle* player, const char* name, const char* value) {
    ZEPHYNE_PASS_ON(mpv_set_option_string, player, name, value);
}

int mpv_command(mpv_handle* player, const char** words) {
    ZEPHYNE_PASS_ON(mpv_command, player, words);
}

int mpv_set_property(mpv_handle* player, const char* name, mpv_format format, void* value) {
    ZEPHYNE_PASS_ON(mpv_set_property, player, name, format, value);
}

int mpv_set_property_string(mpv_handle* player, const char* name, const char* value) {
    ZEPHYNE_PASS_ON(mpv_set_property_string, player, name, value);
}

int mpv_get_property(mpv_handle* player, const char* name, mpv_format format, void* value) {
    ZEPHYNE_PASS_ON(mpv_get_property, player, name, format, value);
}

int mpv_observe_property(mpv_handle* player, uint64_t number, const char* name, mpv_format format) {
    ZEPHYNE_PASS_ON(mpv_observe_property, player, number, name, format);
}

mpv_event* mpv_wait_event(mpv_handle* player, double seconds) {
    ZEPHYNE_PASS_ON(mpv_wait_event, player, seconds);
}

void mpv_set_wakeup_callback(mpv_handle* player, void (*wake_up)(void*), void* with) {
    ZEPHYNE_PASS_ON(mpv_set_wakeup_callback, player, wake_up, with);
}

const char* mpv_error_string(int error) {
    ZEPHYNE_PASS_ON(mpv_error_string, error);
}
}

#undef ZEPHYNE_PASS_ON
