#include "songdata/information_window.h"

#include "core/text/letter_case.h"
#include "core/text/numbers.h"
#include "core/window_placing.h"
#include "songdata/soft_karaoke.h"
#include "songdata/text_joining.h"

#include <array>
#include <optional>
#include <string>

namespace zephyne {
namespace {

using CategoryTexts = std::array<ShownText, kTextCategories>;

ShownText& text_of(CategoryTexts& texts, TextCategory category) {
    return texts[static_cast<std::size_t>(category) - 1];
}

// The section of a Soft Karaoke file that holds its header lines and syllables.
struct KaraokePart {
    std::size_t begin = 0;
    std::size_t end = 0;

    bool holds(const MidiTextItem& item) const {
        return item.meta_type == 1 && item.offset >= begin && item.offset < end;
    }
};

// Puts header and words of a Soft Karaoke file into their boxes; an empty part for other files.
KaraokePart show_karaoke(std::string_view image, CategoryTexts& texts) {
    const auto signature = find_soft_karaoke(image);
    if (!signature) return {};
    SoftKaraokeReader reader(image, *signature);
    if (!reader.read_header()) return {};
    while (reader.read_words()) {
    }
    text_of(texts, TextCategory::GeneralText).append(reader.transcript().header_text);
    text_of(texts, TextCategory::SongLyrics).append(reader.transcript().words_text + "\r\n");
    return {*signature, reader.position()};
}

void show_header(Form3& form, const MidiScanResult& facts) {
    const auto shown = [&](std::int16_t number) {
        return facts.header_found ? decimal(std::int64_t{number}) : "?";
    };
    form.Label5.set_caption(shown(facts.track_count));
    form.Label13.set_caption(shown(facts.format));
}

}  // namespace

InformationWindow::InformationWindow(Stage& stage, WindowHost& windows)
    : stage_(stage), windows_(windows) {
    stage_.form.Command3.set_on_click([this] { Command3_Click(); });
}

void InformationWindow::Command3_Click() {
    if (stage_.form.File1.empty() || !stage_.form.File1.selected()) return;
    if (song_kind(stage_.program.CurrentSongPath) == SongKind::midi) return show();
    stage_.messages.ShowDlgMessage("Song Information works only with MIDI files.", 0, "Error");
}

void InformationWindow::show() {
    Form3 form;
    Form_Load(form);
    windows_.create(form);
    windows_.run_modal(form);
    windows_.destroy(form);
}

void InformationWindow::Form_Load(Form3& form) {
    const Settings& settings = stage_.settings();
    form.load();
    put_in_place(form, windows_, {settings.F3Left, settings.F3Top}, centred(form, windows_));
    form.on_activate = [this, &form] { Form_Activate(form); };
    form.on_unload = [this, &form] { Form_Unload(form); };
    form.Command1.set_on_click([&form] { form.request_unload(CloseReason::program); });
    form.Command1.set_focus();
}

void InformationWindow::Form_Unload(const Form3& form) {
    stage_.settings().F3Left = form.place().left;
    stage_.settings().F3Top = form.place().top;
    stage_.program.CurrentForm = FormNumber::Main;
}

// The desktop may take the window's activity away and give it back while it is being filled; one
// filling is enough then.
void InformationWindow::Form_Activate(Form3& form) {
    stage_.program.CurrentForm = FormNumber::Information;
    if (filling_) return;
    const FlagGuard filling(filling_);
    fill(form);
}

bool InformationWindow::let_events_run(const Form3& form) {
    stage_.events.pump();
    return form.loaded() && !stage_.program.Ending;
}

void InformationWindow::fill(Form3& form) {
    const std::string path = stage_.program.CurrentSongPath;
    form.text2.set_text(stage_.program.CurrentSongName);
    form.text2.set_tooltip(lower_case(path));
    form.Label3.set_tooltip(lower_case(path));
    for (Label* value : {&form.Label2, &form.Label5, &form.Label13}) value->set_caption("");
    for (TextBox& box : form.Text1) box.set_text("");

    const auto image = load_midi_image(stage_.files, path);
    if (!image) return form.box(1).set_text("Error Encountered!");
    form.Label2.set_caption(decimal(static_cast<std::int64_t>(image->file_length)) + " bytes");
    if (!let_events_run(form)) return;
    show_header(form, scan_midi_header(*image));
    show_texts(form, *image);
}

void InformationWindow::show_texts(Form3& form, const MidiImage& image) {
    CategoryTexts texts;
    const KaraokePart karaoke = show_karaoke(image.bytes, texts);
    MidiTextScanner scanner(image.bytes);
    MidiTextItem item;
    for (ScanStep step; (step = scanner.next(item)) != ScanStep::end;) {
        if (step == ScanStep::item && !karaoke.holds(item)) {
            text_of(texts, category_of(item.meta_type)).append(item, JoiningRule::window);
        }
        if (!let_events_run(form)) return;
    }
    for (std::size_t i = 0; i < texts.size(); ++i) form.Text1[i].set_text(texts[i].text());
}

}  // namespace zephyne
