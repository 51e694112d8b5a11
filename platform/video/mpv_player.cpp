#include "platform/video/mpv_player.h"

#include <array>
#include <clocale>
#include <utility>
#include <vector>

namespace zephyne {
namespace {

struct Option {
    const char* name;
    const char* value;
};

constexpr std::array kOptions{
    // Nothing of the user's own player: no configuration, scripts, controls or keys.
    Option{"config", "no"},
    Option{"load-scripts", "no"},
    Option{"ytdl", "no"},
    Option{"osc", "no"},
    Option{"osd-level", "0"},
    Option{"input-default-bindings", "no"},
    Option{"input-vo-keyboard", "no"},

    // One file and nothing else: not what it refers to, nor what lies beside it. Without this, a
    // text file named like a song could make the player open anything, even from the network.
    Option{"demuxer", "lavf"},
    Option{"demuxer-lavf-o", "protocol_whitelist=file"},
    Option{"access-references", "no"},
    Option{"autoload-files", "no"},

    // The file stays open at its end, with all that is known about it, and waits there.
    Option{"idle", "yes"},
    Option{"keep-open", "yes"},
    Option{"keep-open-pause", "no"},
    Option{"pause", "yes"},
    Option{"hr-seek", "yes"},
    Option{"gapless-audio", "no"},  // else the end is reported before it is heard

    Option{"vo", "x11,null"},
    Option{"audio-display", "no"},  // no window for a picture inside a sound file
    Option{"autofit-larger", "90%x90%"},
    Option{"audio-client-name", "Zephyne"},
    Option{"x11-name", "zephyne"},
};

}  // namespace

void MpvPlayer::Destroyer::operator()(mpv_handle* handle) const {
    // From here on no thread of the library's is inside wake_up().
    mpv_set_wakeup_callback(handle, nullptr, nullptr);
    mpv_terminate_destroy(handle);
}

MpvPlayer::MpvPlayer(std::function<void()> on_events) : on_events_(std::move(on_events)) {}

MpvPlayer::~MpvPlayer() = default;

std::unique_ptr<MpvPlayer> MpvPlayer::create(const std::string& audio_outputs,
                                             std::function<void()> on_events) {
    std::setlocale(LC_NUMERIC, "C");
    std::unique_ptr<MpvPlayer> player(new MpvPlayer(std::move(on_events)));
    if (!player->start(audio_outputs)) return nullptr;
    return player;
}

bool MpvPlayer::start(const std::string& audio_outputs) {
    handle_.reset(mpv_create());
    if (!handle_) return false;
    for (const auto& [name, value] : kOptions) {
        if (mpv_set_option_string(handle_.get(), name, value) < 0) return false;
    }
    if (mpv_set_option_string(handle_.get(), "ao", audio_outputs.c_str()) < 0) {
        mpv_set_option_string(handle_.get(), "ao", "null");  // one of them has an unknown name
    }
    if (mpv_initialize(handle_.get()) < 0) return false;

    // The close box of the window ends the file, and not the whole player as it would by itself.
    command({"keybind", "CLOSE_WIN", "stop"});
    mpv_observe_property(handle_.get(), 0, "eof-reached", MPV_FORMAT_FLAG);
    mpv_set_wakeup_callback(handle_.get(), wake_up, this);
    return true;
}

void MpvPlayer::wake_up(void* player) {
    auto& self = *static_cast<MpvPlayer*>(player);
    if (self.wake_up_pending_.exchange(true)) return;
    QMetaObject::invokeMethod(
        &self.receiver_,
        [&self] {
            self.wake_up_pending_ = false;
            const auto on_events = self.on_events_;  // a copy: the player may be replaced by it
            on_events();
        },
        Qt::QueuedConnection);
}

int MpvPlayer::command(std::initializer_list<const char*> words) {
    std::vector<const char*> terminated(words);
    terminated.push_back(nullptr);
    return mpv_command(handle_.get(), terminated.data());
}

int MpvPlayer::set(const char* property, bool value) {
    int flag = value ? 1 : 0;
    return mpv_set_property(handle_.get(), property, MPV_FORMAT_FLAG, &flag);
}

int MpvPlayer::set(const char* property, double value) {
    return mpv_set_property(handle_.get(), property, MPV_FORMAT_DOUBLE, &value);
}

int MpvPlayer::set(const char* property, const std::string& value) {
    return mpv_set_property_string(handle_.get(), property, value.c_str());
}

std::optional<double> MpvPlayer::number(const char* property) const {
    double value = 0;
    if (mpv_get_property(handle_.get(), property, MPV_FORMAT_DOUBLE, &value) < 0) return {};
    return value;
}

bool MpvPlayer::flag(const char* property) const {
    int value = 0;
    return mpv_get_property(handle_.get(), property, MPV_FORMAT_FLAG, &value) >= 0 && value != 0;
}

}  // namespace zephyne
