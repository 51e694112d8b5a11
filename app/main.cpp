// Builds the ports, builds the program on them, and runs it.
#include "core/program.h"
#include "core/scheduler.h"
#include "core/sheets/form1.h"
#include "core/sheets/tray_form.h"
#include "engine/engine.h"
#include "engine/media_device.h"
#include "engine/stage.h"
#include "platform/desktop/desktop_beeper.h"
#include "platform/desktop/desktop_clipboard.h"
#include "platform/desktop/desktop_file_manager.h"
#include "platform/desktop/desktop_pages.h"
#include "platform/desktop/early_work.h"
#include "platform/desktop/libraries_in_use.h"
#include "platform/desktop/local_hand_over.h"
#include "platform/desktop/mersenne_random.h"
#include "platform/desktop/program_start.h"
#include "platform/desktop/qt_event_pump.h"
#include "platform/desktop/qt_notification_area.h"
#include "platform/desktop/signal_watcher.h"
#include "platform/desktop/steady_clock.h"
#include "platform/files/posix_file_system.h"
#include "platform/sound/audio_output.h"
#include "platform/sound/sequencer_backend.h"
#include "platform/sound/synthesizer_engine.h"
#include "platform/sound/synthesizer_volume.h"
#include "platform/video/mpv_backend.h"
#include "playlists/drive_search_window.h"
#include "playlists/open_playlist.h"
#include "playlists/playlist_editor.h"
#include "playlists/playlist_file.h"
#include "shell/about_box.h"
#include "shell/help.h"
#include "shell/input_box.h"
#include "shell/message_box.h"
#include "shell/profile_strings.h"
#include "shell/quick_tips.h"
#include "shell/tray_menu.h"
#include "shell/web_links.h"
#include "songdata/file_commands.h"
#include "songdata/information_window.h"
#include "songdata/move_file.h"
#include "songdata/presets.h"
#include "songdata/song_notes.h"
#include "songdata/song_summary.h"
#include "songdata/view_presets.h"
#include "songdata/volume_control.h"
#include "ui/main_window_commands.h"
#include "ui/main_window_layout.h"
#include "ui/options_window.h"
#include "ui/qt/help_window.h"
#include "ui/qt/menu_style.h"
#include "ui/qt/pictures.h"
#include "ui/qt/pixels.h"
#include "ui/qt/popup_look.h"
#include "ui/qt/qt_file_dialogs.h"
#include "ui/qt/qt_window_host.h"
#include "ui/shut_down.h"
#include "ui/start_up.h"

#include <QApplication>
#include <QIcon>
#include <QSessionManager>
#include <QTimer>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace zephyne;

constexpr const char* kHelp =
    "Zephyne, a jukebox for MIDI music.\n\n"
    "  zephyne          plays the songs of the folder it showed last\n"
    "  zephyne SONG     plays one song in a compact window, or hands it to a copy that runs\n\n"
    "The sound goes where ZEPHYNE_AUDIO says (auto, pulseaudio, alsa, jack, null, file:PATH),\n"
    "and is made with the sound font that ZEPHYNE_SOUNDFONT names.\n";

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

// Everything that one run needs, in the order in which it is built.
class Zephyne {
  public:
    Zephyne(PosixFileSystem& files, Scheduler& scheduler, LocalHandOver& hand_over)
        : files_(files),
          form_(files_, scheduler),
          tray_(scheduler),
          pump_(scheduler),
          profiles_(files_),
          messages_(program_, scheduler, windows_, beeper_),
          synthesizer_(scheduler, {.sound_font = environment("ZEPHYNE_SOUNDFONT")},
                       make_audio_output(environment("ZEPHYNE_AUDIO"))),
          midi_volume_(synthesizer_, scheduler, files_),
          sequencer_(scheduler, synthesizer_),
          wave_(scheduler, environment("ZEPHYNE_AUDIO")),
          video_(scheduler, environment("ZEPHYNE_AUDIO")),
          device_(scheduler, files_, form_.MMControl1, {sequencer_, wave_, video_}),
          stage_{program_, form_, tray_, device_, files_, pump_, messages_, beeper_, random_},
          engine_(stage_),
          summary_(stage_),
          information_(stage_, windows_),
          notes_(stage_, windows_),
          volume_(stage_, midi_volume_),
          file_commands_(stage_, engine_, questions_, file_manager_),
          move_file_(stage_, engine_, windows_),
          presets_(stage_, engine_),
          view_presets_(stage_, windows_),
          tray_menu_(stage_, engine_, windows_, notification_area_),
          quick_tips_(stage_, windows_, profiles_, clipboard_),
          audition_sequencer_(scheduler, synthesizer_),
          audition_wave_(scheduler, environment("ZEPHYNE_AUDIO")),
          audition_video_(scheduler, environment("ZEPHYNE_AUDIO")),
          playlist_file_(stage_, file_dialogs_),
          open_playlist_(stage_, engine_.order, playlist_file_),
          playlist_editor_(stage_, engine_, scheduler, windows_, playlist_file_,
                           {audition_sequencer_, audition_wave_, audition_video_}),
          drive_search_(stage_, scheduler, windows_),
          about_(program_, windows_, {ZEPHYNE_VERSION, libraries_in_use}),
          help_(program_, files_, help_viewer_),
          web_links_(program_, files_, pages_),
          layout_(stage_, windows_),
          options_(stage_, engine_, layout_, windows_, options_services_),
          start_up_(stage_, engine_, layout_, windows_, hand_over),
          shut_down_(stage_, engine_),
          commands_(stage_, layout_,
                    {.show_options = [this] { options_.show(); },
                     .show_help = [this] { help_.show_contents(); },
                     .show_web_links = [this] { web_links_.show(); },
                     .renamefile = [this] { file_commands_.renamefile(); }}) {
        program_.folders = program_folders(files_, start_surroundings());
        midi_volume_.keep_in(joined(program_.folders.own, "midi-volume", files_.path_style()));
        windows_.create(form_);
        popup_look::dress_tooltips(user_scale_factor());
        synthesizer_.on_problem = [this](const std::string& sentence) {
            messages_.ShowDlgMessage(sentence, 0, "Zephyne");
        };
        stage_.services.setvolume = [this] { volume_.setvolume(); };
        tray_menu_.put_away = [this] { layout_.put_away(); };
        start_up_.load_tray = [this] { tray_menu_.load(); };
        start_up_.show_quick_tip = [this] {
            if (quick_tips_.tips_at_start()) quick_tips_.show();
        };
        start_up_.choose_volume_device = [this] { volume_.start(); };
        start_up_.show_presets = [this] { presets_.show_tooltips(); };
        playlist_editor_.show_drive_search = [this](EditedPlaylist& playlist) {
            drive_search_.show(playlist);
        };
        shut_down_.close_notes = [this] { notes_.unload(); };
        shut_down_.unload_tray = [this] { tray_menu_.unload(); };
        tray_menu_.show_about = [this] { about_.show(); };
        quick_tips_.show_help = [this] { help_.show_contents(); };
        options_services_.load_tray = [this] { tray_menu_.load(); };
        options_services_.unload_tray = [this] { tray_menu_.unload(); };
        options_services_.tray_loaded = [this] { return tray_menu_.loaded(); };
        options_services_.unload_notes = [this] { notes_.unload(); };
        options_services_.unload_quick_tip = [this] { quick_tips_.unload(); };
        options_services_.tips_at_start = [this] { return quick_tips_.tips_at_start(); };
        options_services_.set_tips_at_start = [this](bool wanted) {
            quick_tips_.set_tips_at_start(wanted);
        };
        options_services_.show_about = [this] { about_.show(); };
        options_services_.ask_whats_this = [this] { help_.ask_whats_this(); };
        options_services_.help_text = [this](std::string_view topic) { return help_.topic(topic); };
        shut_down_.close_help = [this] { help_.close(); };
        shut_down_.end_program = [] { QCoreApplication::exit(0); };
    }

    Started start(const std::string& command_line) { return start_up_.Form_Load(command_line); }
    void begin_to_load_sound() { synthesizer_.begin_to_load(); }
    bool end(CloseReason reason) { return form_.request_unload(reason); }
    bool ended() const { return program_.Ending; }

  private:
    PosixFileSystem& files_;
    Program program_;
    Form1 form_;
    TrayForm tray_;
    QtEventPump pump_;
    QtWindowHost windows_{user_scale_factor(), [this] { return tray_menu_.reachable(); }};
    QtNotificationArea notification_area_{pictures::tray_icon, menu_style(user_scale_factor())};
    QtFileDialogs file_dialogs_{user_scale_factor()};
    DesktopBeeper beeper_;
    DesktopClipboard clipboard_;
    MersenneRandom random_;
    ProfileStrings profiles_;
    MessageBox messages_;
    InputBox questions_{program_, windows_};
    DesktopFileManager file_manager_;
    SynthesizerEngine synthesizer_;
    SynthesizerVolume midi_volume_;
    SequencerBackend sequencer_;
    MpvBackend wave_;
    MpvBackend video_;
    MediaDevice device_;
    Stage stage_;
    Engine engine_;
    SongSummary summary_;
    InformationWindow information_;
    SongNotes notes_;
    VolumeControl volume_;
    FileCommands file_commands_;
    MoveFile move_file_;
    Presets presets_;
    ViewPresets view_presets_;
    TrayMenu tray_menu_;
    QuickTips quick_tips_;
    SequencerBackend audition_sequencer_;
    MpvBackend audition_wave_;
    MpvBackend audition_video_;
    PlaylistFile playlist_file_;
    OpenPlaylist open_playlist_;
    PlaylistEditor playlist_editor_;
    DriveSearchWindow drive_search_;
    AboutBox about_;
    QtHelpViewer help_viewer_{user_scale_factor()};
    Help help_;
    DesktopPages pages_;
    WebLinks web_links_;
    MainWindowLayout layout_;
    OptionsServices options_services_;
    OptionsWindow options_;
    StartUp start_up_;
    ShutDown shut_down_;
    MainWindowCommands commands_;
};

}  // namespace

int main(int argc, char** argv) {
    const PosixFileSystem files;
    const std::string line =
        command_line(files, {argv + 1, static_cast<std::size_t>(std::max(argc - 1, 0))});
    if (line == "--help") return std::fputs(kHelp, stdout), 0;
    if (line == "--version") return std::puts("Zephyne " ZEPHYNE_VERSION), 0;

    EarlyWork fonts(read_fonts);
    QApplication application(argc, argv);
    const EarlyWork bus(open_session_bus);
    QApplication::setApplicationName("zephyne");
    QApplication::setApplicationVersion(ZEPHYNE_VERSION);
    QApplication::setDesktopFileName("zephyne");
    QApplication::setQuitOnLastWindowClosed(false);
    std::setlocale(LC_NUMERIC, "C");  // libmpv insists, and so do our files

    const SteadyClock clock;
    Scheduler scheduler(clock);
    LocalHandOver hand_over(scheduler);
    if (give_way(hand_over, line)) return 0;
    PosixFileSystem file_system;
    fonts.wait();
    Zephyne zephyne(file_system, scheduler, hand_over);

    const SignalWatcher watcher([&] {
        zephyne.end(CloseReason::session_end);
        QCoreApplication::exit(0);  // also out of a message that an earlier quit has led to
    });
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, [&](QSessionManager& session) {
            const bool may_ask = session.allowsInteraction();
            const bool ended = zephyne.end(may_ask ? CloseReason::user : CloseReason::session_end);
            if (!ended) session.cancel();
        });
    QTimer::singleShot(0, &application, [&] {
        if (zephyne.start(line) == Started::ended) QCoreApplication::exit(0);
    });
    // After the window, which need wait neither for its sound nor until its icon is drawn.
    QTimer::singleShot(0, &application, [&] {
        if (!zephyne.ended()) zephyne.begin_to_load_sound();
        QApplication::setWindowIcon(pictures::application_icon());
    });
    return QApplication::exec();
}
