// Builds the ports, builds the program on them, and runs it.
#include "core/program.h"
#include "core/scheduler.h"
#include "core/sheets/form1.h"
#include "core/sheets/tray_form.h"
#include "engine/engine.h"
#include "engine/media_device.h"
#include "engine/stage.h"
#include "platform/desktop/desktop_beeper.h"
#include "platform/desktop/desktop_file_manager.h"
#include "platform/desktop/local_hand_over.h"
#include "platform/desktop/mersenne_random.h"
#include "platform/desktop/program_start.h"
#include "platform/desktop/qt_event_pump.h"
#include "platform/desktop/signal_watcher.h"
#include "platform/desktop/steady_clock.h"
#include "platform/files/posix_file_system.h"
#include "platform/sound/audio_output.h"
#include "platform/sound/sequencer_backend.h"
#include "platform/sound/synthesizer_engine.h"
#include "platform/sound/synthesizer_volume.h"
#include "platform/video/mpv_backend.h"
#include "playlists/open_playlist.h"
#include "playlists/playlist_editor.h"
#include "playlists/playlist_file.h"
#include "shell/input_box.h"
#include "shell/message_box.h"
#include "songdata/file_commands.h"
#include "songdata/information_window.h"
#include "songdata/move_file.h"
#include "songdata/presets.h"
#include "songdata/song_notes.h"
#include "songdata/song_summary.h"
#include "songdata/view_presets.h"
#include "songdata/volume_control.h"
#include "ui/main_window_layout.h"
#include "ui/qt/pictures.h"
#include "ui/qt/pixels.h"
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
          pump_(scheduler),
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
          audition_sequencer_(scheduler, synthesizer_),
          audition_wave_(scheduler, environment("ZEPHYNE_AUDIO")),
          audition_video_(scheduler, environment("ZEPHYNE_AUDIO")),
          playlist_file_(stage_, file_dialogs_),
          open_playlist_(stage_, engine_.order, playlist_file_),
          playlist_editor_(stage_, engine_, scheduler, windows_, playlist_file_,
                           {audition_sequencer_, audition_wave_, audition_video_}),
          layout_(stage_, windows_),
          start_up_(stage_, engine_, layout_, windows_, hand_over),
          shut_down_(stage_, engine_) {
        program_.folders = program_folders(files_, start_surroundings());
        midi_volume_.keep_in(joined(program_.folders.own, "midi-volume", files_.path_style()));
        windows_.create(form_);
        synthesizer_.on_problem = [this](const std::string& sentence) {
            messages_.ShowDlgMessage(sentence, 0, "Zephyne");
        };
        start_up_.choose_volume_device = [this] { volume_.start(); };
        start_up_.show_presets = [this] { presets_.show_tooltips(); };
        shut_down_.close_notes = [this] { notes_.unload(); };
        shut_down_.end_program = [] { QCoreApplication::exit(0); };
    }

    Started start(const std::string& command_line) { return start_up_.Form_Load(command_line); }
    bool end(CloseReason reason) { return form_.request_unload(reason); }
    bool ended() const { return program_.Ending; }

  private:
    PosixFileSystem& files_;
    Program program_;
    Form1 form_;
    TrayForm tray_;
    QtEventPump pump_;
    QtWindowHost windows_{user_scale_factor()};
    QtFileDialogs file_dialogs_{user_scale_factor()};
    DesktopBeeper beeper_;
    MersenneRandom random_;
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
    SequencerBackend audition_sequencer_;
    MpvBackend audition_wave_;
    MpvBackend audition_video_;
    PlaylistFile playlist_file_;
    OpenPlaylist open_playlist_;
    PlaylistEditor playlist_editor_;
    MainWindowLayout layout_;
    StartUp start_up_;
    ShutDown shut_down_;
};

}  // namespace

int main(int argc, char** argv) {
    const PosixFileSystem files;
    const std::string line =
        command_line(files, {argv + 1, static_cast<std::size_t>(std::max(argc - 1, 0))});
    if (line == "--help") return std::fputs(kHelp, stdout), 0;
    if (line == "--version") return std::puts("Zephyne " ZEPHYNE_VERSION), 0;

    QApplication application(argc, argv);
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
    Zephyne zephyne(file_system, scheduler, hand_over);

    const SignalWatcher watcher([&] { zephyne.end(CloseReason::session_end); });
    QObject::connect(&application, &QGuiApplication::commitDataRequest,
                     [&](QSessionManager& session) {
                         if (!zephyne.end(CloseReason::user)) session.cancel();
                     });
    QTimer::singleShot(0, &application, [&] {
        if (zephyne.start(line) == Started::ended) QCoreApplication::exit(0);
    });
    // After the window, which need not wait until its icon is drawn in all sizes.
    QTimer::singleShot(0, &application,
                       [] { QApplication::setWindowIcon(pictures::application_icon()); });
    return QApplication::exec();
}
