#include "ui/qt/taskbar_button.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QWidget>
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace zephyne {
namespace {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using ReplyPointer = std::unique_ptr<Reply, FreeReply>;

xcb_atom_t atom(xcb_connection_t* connection, const char* name) {
    const auto request =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const ReplyPointer<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(connection, request, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::vector<xcb_atom_t> atoms_of(xcb_connection_t* connection, xcb_window_t window,
                                 xcb_atom_t property) {
    constexpr std::uint32_t more_than_enough = 64;
    const auto request =
        xcb_get_property(connection, 0, window, property, XCB_ATOM_ATOM, 0, more_than_enough);
    const ReplyPointer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection, request, nullptr));
    if (!reply || reply->format != 32) return {};
    const auto* values = static_cast<const xcb_atom_t*>(xcb_get_property_value(reply.get()));
    return {values, values + xcb_get_property_value_length(reply.get()) / sizeof(xcb_atom_t)};
}

}  // namespace

void set_taskbar_button(QWidget& window, TaskbarButton button) {
    auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !x11->connection()) return;
    xcb_connection_t* connection = x11->connection();
    const auto id = static_cast<xcb_window_t>(window.winId());

    const xcb_atom_t state = atom(connection, "_NET_WM_STATE");
    const xcb_atom_t skip = atom(connection, "_NET_WM_STATE_SKIP_TASKBAR");
    std::vector<xcb_atom_t> states = atoms_of(connection, id, state);
    std::erase(states, skip);
    if (button == TaskbarButton::no) states.push_back(skip);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, id, state, XCB_ATOM_ATOM, 32,
                        static_cast<std::uint32_t>(states.size()), states.data());
    xcb_flush(connection);
}

}  // namespace zephyne
