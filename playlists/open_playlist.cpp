#include "playlists/open_playlist.h"

#include <utility>

namespace zephyne {

OpenPlaylist::OpenPlaylist(Stage& stage, PlayOrder& order, PlaylistFile& file)
    : stage_(stage),
      order_(order),
      file_(file),
      lists_(stage.form.File1, stage.form.List3, stage.events) {
    stage_.form.Command20.set_on_click([this] { Command20_Click(); });
}

void OpenPlaylist::Command20_Click() {
    auto playlist = file_.choose_and_read();
    if (!playlist || !file_.fill(lists_, std::move(*playlist))) return;
    order_.show_total();
    order_.begin_with_new_list();
}

}  // namespace zephyne
