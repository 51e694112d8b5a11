#include "engine/find_box.h"

#include "core/text/letter_case.h"

namespace zephyne {
namespace {

constexpr char32_t kEnter = 13;

}  // namespace

FindBox::FindBox(Stage& stage, BetweenSongs& between, SongList& songs)
    : stage_(stage), between_(between), songs_(songs) {
    TextBox& box = stage_.form.text2;
    box.on_change = [this] { text2_Change(); };
    box.on_lost_focus = [this] { text2_LostFocus(); };
    box.on_key_press = [this](char32_t key) {
        if (key != kEnter) return true;
        text2_Enter();
        return false;
    };
    stage_.form.Label8.on_click = [this] { stage_.form.text2.set_focus(); };
}

void FindBox::text2_Change() {
    Form1& f = stage_.form;
    if (f.File1.empty() || !f.text2.enabled() || stage_.program.FindSync) return;
    if (f.text2.text().empty()) return between_.EnableControls(Reselect::yes);

    // Rows that begin with the text stand together, from the first row that does not sort before
    // it.
    const std::size_t row = f.File1.lower_bound(f.text2.text());
    if (row == f.File1.count()) return;
    if (!starts_with_ignoring_case(f.File1.item(row).text, f.text2.text())) return;
    const FlagGuard switching(stage_.program.SwitchingSong);
    f.File1.set_selected(row);
    between_.DisableControls();
}

void FindBox::text2_Enter() {
    Form1& f = stage_.form;
    const bool found = !f.File1.enabled();
    if (f.File1.empty() || !f.File1.selected() || f.text2.text().empty() || !found) return;
    {
        const FlagGuard emptying(stage_.program.FindSync);
        f.text2.set_enabled(false);
        between_.EnableControls(Reselect::no);
    }
    songs_.File1_Click();
    f.text2.set_enabled(true);
}

void FindBox::text2_LostFocus() {
    if (stage_.form.text2.enabled()) between_.EnableControls(Reselect::yes);
}

}  // namespace zephyne
