#include "shell/quick_tips.h"

#include "core/text/numbers.h"
#include "core/window_placing.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zephyne {
namespace {

constexpr const char* kFile = "QUICKTIP.INI";
constexpr const char* kSection = "TIP";
constexpr const char* kStart = "START";
constexpr const char* kCurrent = "CURRENT";
constexpr const char* kMissing = "unknown";
constexpr const char* kFirstTip = "1";
constexpr std::size_t kLongestTip = 999;  // characters

double number_of(const std::string& key) {
    const double number = leading_number(key);
    return std::isfinite(number) ? number : 0;
}

// With a blank in the place of the sign, which reading the file ignores.
std::string key_text(double number) {
    return number < 0 ? decimal(number) : " " + decimal(number);
}

}  // namespace

QuickTips::QuickTips(Stage& stage, WindowHost& windows, ProfileFile& profiles, Clipboard& clipboard)
    : stage_(stage), windows_(windows), profiles_(profiles), clipboard_(clipboard) {
    stage_.form.Command21.set_on_click([this] { show(); });
}

std::string QuickTips::tip_file() const {
    return joined(stage_.program.folders.own, kFile, stage_.files.path_style());
}

// The tips come with the program, and the place reached in them is the user's.
void QuickTips::fetch_tip_file() {
    const ProgramFolders& folders = stage_.program.folders;
    const auto own = stage_.files.check_readable(tip_file());
    if (own || own.error().kind != FileErrorKind::not_found) return;
    const auto supplied =
        stage_.files.read_file(folders.file(stage_.files, kFile), FileSystem::text_file_limit);
    if (supplied) (void)stage_.files.replace_file(tip_file(), *supplied);
}

std::string QuickTips::ReadTipValue(const std::string& key) const {
    const std::string path = stage_.program.folders.file(stage_.files, kFile);
    return profiles_.get_string(path, kSection, key, kMissing, kLongestTip);
}

bool QuickTips::WriteTipValue(const std::string& key, const std::string& value) {
    return profiles_.write_string(tip_file(), kSection, key, value);
}

// Quotes keep blanks, which do not matter here.
bool QuickTips::tips_at_start() {
    fetch_tip_file();
    std::string start = ReadTipValue(kStart);
    std::erase(start, ' ');
    return start == "T";
}

void QuickTips::set_tips_at_start(bool wanted) {
    fetch_tip_file();
    WriteTipValue(kStart, wanted ? "T" : "F");
}

std::string QuickTips::current() const {
    return unwritten_current_.value_or(ReadTipValue(kCurrent));
}

void QuickTips::set_current(const std::string& key) {
    unwritten_current_.reset();
    if (!WriteTipValue(kCurrent, key)) unwritten_current_ = key;
}

std::string QuickTips::ShowNextTip() {
    const std::string key = current();
    std::string text = ReadTipValue(key);
    std::string following = key_text(number_of(key) + 1);
    if (ReadTipValue(following) == kMissing) following = kFirstTip;
    set_current(following);
    return text;
}

std::string QuickTips::ShowPreviousTip() {
    std::string earlier = key_text(number_of(current()) - 2);
    if (ReadTipValue(earlier) == kMissing) earlier = kFirstTip;
    set_current(earlier);
    return ShowNextTip();
}

void QuickTips::show() {
    unload();
    fetch_tip_file();
    form_ = std::make_unique<Quick_Tip>();
    Form_Load(*form_);
}

void QuickTips::unload() {
    if (form_ && form_->loaded()) form_->request_unload(CloseReason::program);
}

void QuickTips::Form_Load(Quick_Tip& form) {
    form.load();
    form.on_activate = [this] { stage_.program.CurrentForm = FormNumber::QuickTip; };
    form.on_unload = [this, &form] {
        stage_.program.CurrentForm = FormNumber::Main;
        windows_.destroy(form);
    };
    const auto tell = [this, &form](std::string tip) {
        form.tiplabel.set_caption(std::move(tip));
        const int rest = form.place().height - form.tiplabel.place().height;
        const int screen = windows_.screen().height;
        form.make_room(std::min(windows_.text_height(form.tiplabel), screen - rest));
        const int lowest = std::max(screen - form.place().height, 0);
        if (form.place().top > lowest) form.move_to(form.place().left, lowest);
    };
    form.show_tip.set_value(tips_at_start() ? 1 : 0);
    form.show_tip.set_on_click([] {});  // read when the window is closed by "OK"
    form.Next_Tip_Button.set_on_click([this, tell] { tell(ShowNextTip()); });
    form.Command2.set_on_click([this, tell] { tell(ShowPreviousTip()); });
    form.Command1.set_on_click([this, &form] { clipboard_.set_text(form.tiplabel.caption()); });
    if (show_help) form.Quick_Tip_.set_on_click([this] { show_help(); });
    form.Quick_Tip_OK_Button.set_on_click([this, &form] {
        set_tips_at_start(form.show_tip.value() != 0);
        form.request_unload(CloseReason::program);
    });
    form.Quick_Tip_OK_Button.set_focus();

    windows_.create(form);
    tell(ShowNextTip());
    centre(form, windows_);
    windows_.set_extended_style(form, stage_.settings().ShowBar == 1
                                          ? stage_.program.TaskbarExStyle
                                          : stage_.program.NormalExStyle);
    form.set_visible(true);
    windows_.bring_to_front(form);  // at the start the main window comes up at the same time
}

}  // namespace zephyne
