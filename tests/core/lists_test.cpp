#include "core/playlist_entry.h"
#include "core/text/letter_case.h"
#include "tests/core/control_bench.h"

#include <gtest/gtest.h>

#include <random>

namespace zephyne::test {
namespace {

// Names that are easily put in the wrong order: equal but for case or accents' bytes, one the
// beginning of another, with "|", and not UTF-8 at all.
class RandomNames {
  public:
    std::string name() {
        static const std::vector<std::string> parts = {
            "a",  "A", "b", ".mid", ".MID", " ",    "|", "é", "É", "ß", "ss",
            "SS", "İ", "Ω", "ω",    "\xFF", "\xE9", "~", "1", "-", "ﬁ", "fi"};
        std::string result;
        for (auto count = 1 + random_() % 4; count > 0; --count) {
            result += parts[random_() % parts.size()];
        }
        return result;
    }
    std::size_t below(std::size_t end) { return random_() % end; }

  private:
    std::mt19937 random_{1997};
};

struct Lists : Form {
    Lists() : Form({.name = "Lists"}) {}
    ListBox bulk{*this, ListOrder::by_text, {.name = "bulk"}};
    ListBox one_by_one{*this, ListOrder::by_text, {.name = "one_by_one"}};
    ListBox entries{*this, ListOrder::by_entry, {.name = "entries"}, split_entry_line};
    ListBox queue{*this, ListOrder::as_added, {.name = "queue"}};
};

TEST(SortedList, FilledInBulkOrOneByOneItHoldsTheSameRowsInOrder) {
    RandomNames random;
    for (int round = 0; round < 50; ++round) {
        Lists lists;
        std::vector<ListItem> items(random.below(40));
        for (std::size_t i = 0; i < items.size(); ++i) {
            items[i] = {random.name(), "real " + std::to_string(i)};
            lists.one_by_one.add(items[i]);
        }
        lists.bulk.set_items(items);
        ASSERT_EQ(lists.bulk.items(), lists.one_by_one.items());
        ASSERT_EQ(lists.bulk.count(), items.size());
        for (std::size_t i = 1; i < items.size(); ++i) {
            const std::string above(lists.bulk.item(i - 1).text);
            const std::string below(lists.bulk.item(i).text);
            ASSERT_LE(collation_key(above), collation_key(below)) << above << " before " << below;
        }
    }
}

TEST(SortedList, EntriesStandInStepWithTheirNames) {
    RandomNames random;
    for (int round = 0; round < 100; ++round) {
        Lists lists;
        std::vector<ListItem> names;
        std::vector<ListItem> entries;
        for (auto count = random.below(40); count > 0; --count) {
            const std::string name = random.name();
            const std::string folder = random.below(2) == 0 ? "/b/" : "/a/" + random.name() + "/";
            names.push_back({name, {}});
            entries.push_back({name + "|" + folder, {}});
        }
        lists.bulk.set_items(names);
        lists.entries.set_items(entries);
        for (std::size_t row = 0; row < names.size(); ++row) {
            const auto [name, folder] = split_entry_line(lists.entries.item(row).text);
            ASSERT_EQ(name, lists.bulk.item(row).text) << "row " << row;
        }
    }
}

TEST(SortedList, OrdersEntriesByNameThenFolder) {
    Lists lists;
    for (const char* entry : {"a.mid.mid|/1/", "b.mid|/2/", "a.mid|/z/", "B.mid|/1/", "a.mid|/b/",
                              "a.mid|/B/", "a|b.mid|/c/"}) {
        lists.entries.add({entry, {}});
    }
    EXPECT_EQ(lists.entries.items(), ListRows({{"a.mid|/B/", {}},
                                               {"a.mid|/b/", {}},
                                               {"a.mid|/z/", {}},
                                               {"a.mid.mid|/1/", {}},
                                               {"a|b.mid|/c/", {}},
                                               {"B.mid|/1/", {}},
                                               {"b.mid|/2/", {}}}));
}

TEST(SortedList, RowsThatLookTheSameKeepTheirRealNames) {
    Lists lists;
    lists.bulk.set_items({{"Song.mid", "SONG.mid"}, {"Another.mid", {}}, {"Song.mid", "song.mid"}});
    EXPECT_EQ(lists.bulk.item(0).real(), "Another.mid");
    EXPECT_EQ(lists.bulk.item(1).real(), "SONG.mid");
    EXPECT_EQ(lists.bulk.item(2).real(), "song.mid");
    EXPECT_EQ(lists.bulk.add({"Song.mid", "Song.MID"}), 3U) << "behind its likes";
}

TEST(AnyList, ItsRowsCanBeCopiedAndOutliveTheListThatTheyCameFrom) {
    Lists lists;
    lists.bulk.set_items({{"b.mid", "B.MID"}, {"a.mid", {}}, {"c.mid", {}}});
    lists.queue.set_items(lists.bulk.items());
    lists.bulk.add(lists.bulk.item(1));
    lists.bulk.set_items({{"other.mid", {}}});
    lists.queue.remove(0);
    lists.queue.add(lists.queue.item(0));
    EXPECT_EQ(lists.queue.items(),
              ListRows({{"b.mid", "B.MID"}, {"c.mid", {}}, {"b.mid", "B.MID"}}));
    EXPECT_EQ(lists.bulk.items(), ListRows({{"other.mid", {}}}));
}

TEST(SortedList, FindsTheFirstRowThatBeginsWithATextInAnyCase) {
    Lists lists;
    lists.bulk.set_items({{"Abc.mid", {}}, {"abcd.mid", {}}, {"Élan.mid", {}}, {"Zulu.mid", {}}});
    EXPECT_EQ(lists.bulk.lower_bound("ab"), 0U);
    EXPECT_EQ(lists.bulk.lower_bound("ABCD"), 1U);
    EXPECT_EQ(lists.bulk.lower_bound("abc.mid"), 0U) << "the whole name";
    EXPECT_EQ(lists.bulk.lower_bound("zulu.mid"), 2U);
    EXPECT_EQ(lists.bulk.lower_bound("éLAN.mid"), 3U);
    EXPECT_EQ(lists.bulk.lower_bound("ÿ"), 4U);
}

TEST(AnyList, TheSelectedRowStaysSelectedWhileItIsThere) {
    RandomNames random;
    for (int round = 0; round < 200; ++round) {
        Lists lists;
        for (int i = 0; i < 10; ++i) lists.bulk.add({random.name(), std::to_string(i)});
        lists.bulk.set_selected(random.below(10));
        const ListItem chosen = lists.bulk.item(*lists.bulk.selected());
        for (int i = 0; i < 5; ++i) lists.bulk.add({random.name(), "new"});
        ASSERT_EQ(lists.bulk.item(lists.bulk.selected().value()), chosen);
        while (lists.bulk.selected()) {
            ASSERT_EQ(lists.bulk.item(*lists.bulk.selected()), chosen);
            lists.bulk.remove(random.below(lists.bulk.count()));
        }
    }
}

// A list of a to f, and which of them are selected after each act of the user's.
struct SelectionDesk : Form {
    explicit SelectionDesk(Selecting selecting) : Form({.name = "Selection"}) {
        list.set_selecting(selecting);
        list.set_items({{"a", {}}, {"b", {}}, {"c", {}}, {"d", {}}, {"e", {}}, {"f", {}}});
        list.on_click = [this] { ++clicks; };
    }
    std::string selected() const {
        std::string rows;
        for (const std::size_t row : list.selected_rows()) rows += list.item(row).text;
        return rows;
    }
    std::string click(std::size_t row, ClickWith key = ClickWith::nothing) {
        list.click(row, key);
        return selected();
    }
    std::string move(std::size_t row, ClickWith key = ClickWith::nothing) {
        list.move_to(row, key);
        return selected();
    }

    ListBox list{*this, ListOrder::by_text, {.name = "list"}};
    int clicks = 0;
};

TEST(AnExtendedList, SelectsByClickByRangeAndByToggle) {
    SelectionDesk desk(Selecting::extended);
    EXPECT_EQ(desk.click(1), "b");
    EXPECT_EQ(desk.click(3, ClickWith::ctrl), "bd");
    EXPECT_EQ(desk.click(1, ClickWith::ctrl), "d");
    EXPECT_EQ(desk.click(4, ClickWith::shift), "bcde") << "from the last toggle on";
    EXPECT_EQ(desk.click(0, ClickWith::shift), "ab") << "from the same row, upwards";
    EXPECT_EQ(desk.move(2), "c");
    EXPECT_EQ(desk.move(3, ClickWith::shift), "cd");
    EXPECT_EQ(desk.clicks, 7);
    EXPECT_EQ(desk.move(5, ClickWith::ctrl), "cd") << "only the keyboard moves";
    EXPECT_EQ(desk.list.selected(), 5U);
    EXPECT_EQ(desk.clicks, 7);
    EXPECT_TRUE(desk.list.choose_all());
    EXPECT_EQ(desk.selected(), "abcdef");
    EXPECT_EQ(desk.clicks, 8);
    desk.list.set_enabled(false);
    desk.list.select_none();
    EXPECT_TRUE(desk.list.choose_all());
    EXPECT_EQ(desk.selected(), "");
    desk.list.set_enabled(true);
    EXPECT_EQ(desk.click(5, ClickWith::ctrl), "f");
    desk.list.set_selected(0);
    EXPECT_EQ(desk.selected(), "a") << "as the program sets it";
}

TEST(ASimpleList, TogglesEveryRowThatIsClicked) {
    SelectionDesk desk(Selecting::simple);
    EXPECT_EQ(desk.click(1), "b");
    EXPECT_EQ(desk.click(4), "be");
    EXPECT_EQ(desk.move(3), "be");
    EXPECT_EQ(desk.click(1), "e");
    desk.list.double_click(2);
    EXPECT_EQ(desk.selected(), "ce");
    desk.list.select_all();
    EXPECT_EQ(desk.selected(), "abcdef");
    desk.list.select_none();
    EXPECT_EQ(desk.selected(), "");
    EXPECT_EQ(desk.clicks, 4);
}

TEST(AnExtendedList, KeepsItsSelectionWhenOtherRowsComeAndGo) {
    SelectionDesk desk(Selecting::extended);
    desk.click(1);
    desk.click(4, ClickWith::ctrl);
    desk.click(5, ClickWith::ctrl);
    desk.list.add({"aa", {}});
    desk.list.remove_rows({0, 1, 3, 6});
    EXPECT_EQ(desk.selected(), "be") << "b to e are left, but for c";
    EXPECT_EQ(desk.list.count(), 3U);
    EXPECT_FALSE(desk.list.selected()) << "the keyboard was on f";
    EXPECT_EQ(desk.click(0, ClickWith::shift), "bde") << "the range began behind the last row";
    desk.list.set_items({{"x", {}}});
    EXPECT_EQ(desk.selected(), "");
    EXPECT_EQ(desk.click(0, ClickWith::shift), "x");
}

struct FolderDesk : Form {
    FolderDesk(PathStyle style, const std::string& folder, const std::vector<Volume>& volumes,
               const Log& below = {})
        : Form({.name = "Folders"}), files(style, folder) {
        for (const Volume& volume : volumes) {
            files.add_volume(volume.root, volume.name, volume.label);
        }
        for (const std::string& name : below) files.add_folder(name);
        drives = std::make_unique<DriveList>(*this, files, ControlDesign{.name = "Drives"});
        folders = std::make_unique<DirList>(*this, files, ControlDesign{.name = "Folders"});
    }

    Log rows() const {
        Log texts;
        for (const FolderRow& row : folders->rows()) {
            texts.push_back(std::string(static_cast<std::size_t>(row.depth), '>') + row.text);
        }
        return texts;
    }

    MemoryFileSystem files;
    std::unique_ptr<DriveList> drives;
    std::unique_ptr<DirList> folders;
};

TEST(FolderLists, ShowTheWayFromTheVolumeDownAndWhatLiesBelow) {
    FolderDesk desk(PathStyle::posix, "/home/clara/music",
                    {{"/home/clara", "Home", ""}, {"/", "System", ""}},
                    {"rags", "Blues", "études", "Etudes"});
    EXPECT_EQ(desk.drives->drive().name, "Home") << "the longest root";
    EXPECT_EQ(desk.rows(), (Log{"Home", ">music", ">>Blues", ">>Etudes", ">>rags", ">>études"}));
    EXPECT_EQ(desk.folders->current_row(), 1U);

    desk.folders->open(5);
    EXPECT_EQ(desk.folders->path(), "/home/clara/music/études");
    desk.folders->open(0);
    EXPECT_EQ(desk.folders->path(), "/home/clara");
    ASSERT_TRUE(desk.folders->set_path("/home/"));
    EXPECT_EQ(desk.rows(), (Log{"System", ">home", ">>clara"}));
    desk.drives->follow(desk.folders->path());
    EXPECT_EQ(desk.drives->drive().name, "System");
}

TEST(FolderLists, WorkOnDrivesWithoutRegardToCase) {
    FolderDesk desk(PathStyle::windows, "C:\\", {{"C:\\", "c:", "SYSTEM"}, {"D:\\", "d:", ""}},
                    {"D:\\Songs\\Rags"});
    EXPECT_EQ(desk.rows(), Log{"c:"});
    EXPECT_EQ(desk.drives->drive().text(), "c:  [SYSTEM]");
    ASSERT_TRUE(desk.drives->set_drive_of("d:\\songs"));
    ASSERT_TRUE(desk.folders->set_path("d:\\songs\\"));
    EXPECT_EQ(desk.folders->path(), "D:\\Songs");
    EXPECT_EQ(desk.rows(), (Log{"d:", ">Songs", ">>Rags"}));
    EXPECT_FALSE(desk.drives->set_drive_of("E:\\"));
    EXPECT_EQ(desk.drives->drive().name, "d:");
}

TEST(FolderLists, StayWhereTheyAreWhenAFolderCannotBeRead) {
    FolderDesk desk(PathStyle::posix, "/music", {}, {"secret"});
    desk.files.add_file("/music/a.mid");
    desk.files.deny("/music/secret");
    EXPECT_FALSE(desk.folders->set_path("/music/secret"));
    EXPECT_FALSE(desk.folders->set_path("/music/a.mid"));
    desk.folders->open(2);
    EXPECT_EQ(desk.folders->path(), "/music");

    desk.files.remove("/music/secret");
    desk.folders->open(2);  // seen, but no longer there: the list is read anew
    EXPECT_EQ(desk.rows(), (Log{"System", ">music"}));
}

TEST(FolderLists, AChosenDriveStaysChosenWhenOthersComeAndGo) {
    FolderDesk desk(PathStyle::posix, "/music", {{"/", "System", ""}, {"/stick", "Stick", ""}});
    desk.drives->choose(1);
    desk.files.remove("/stick");
    desk.drives->refresh();
    EXPECT_EQ(desk.drives->drive().name, "System");
    desk.files.add_volume("/disc", "Disc");
    desk.drives->refresh();
    desk.drives->choose(1);
    desk.files.add_volume("/stick", "Stick");
    desk.drives->refresh();
    EXPECT_EQ(desk.drives->drive().name, "Disc");
}

}  // namespace
}  // namespace zephyne::test
