#include "songdata/information_window.h"

#include "tests/songdata/midi_bytes.h"
#include "tests/support/world.h"

#include <gtest/gtest.h>

namespace zephyne::test {
namespace {

class InformationWindowTest : public testing::Test {
  protected:
    InformationWindowTest() {
        world.settings().Lowercase = 0;
        world.settings().AllowWav = 1;
        world.open_folder();
        world.click("Song.MID");
        world.happened();
        windows.on_modal = [this](Form& shown) {
            auto& form = dynamic_cast<Form3&>(shown);
            log.push_back("opened");
            if (while_open) while_open(form);
            if (form.loaded()) form.Command1.click();
            EXPECT_FALSE(form.loaded());
        };
    }

    World world{"Song.MID", "Other.mid", "noise.wav"};
    FakeWindows windows;
    InformationWindow window{world.stage, windows};
    Log log;
    std::function<void(Form3&)> while_open;

    void open(const std::string& image, std::function<void(Form3&)> check) {
        world.files.add_file(world.path("Song.MID"), image);
        while_open = std::move(check);
        log.clear();
        world.form.Command3.click();
        EXPECT_EQ(log, Log{"opened"});
    }

    static Log boxes(const Form3& form) {
        Log texts;
        for (const TextBox& box : form.Text1) texts.push_back(box.text());
        return texts;
    }
    static Log values(const Form3& form) {
        return {form.Label13.caption(), form.Label2.caption(), form.Label5.caption()};
    }
};

TEST_F(InformationWindowTest, ShowsTheFactsAndSortsTheTexts) {
    const std::string image =
        header(0, 1) + meta(1, "Hello") + meta(2, "(c) Clara") + meta(3, "Piano") +
        meta(4, "Grand") + meta(5, "Cop") + meta(5, "per ") + meta(5, "\nmoon") + meta(6, "Verse") +
        meta(2, "(p) Clara") + meta(7, "Lights") + meta(15, "rest") + meta(3, "\xA9");
    open(image, [&](Form3& form) {
        EXPECT_EQ(form.text2.text(), "Song.MID");
        EXPECT_EQ(form.text2.tooltip(), "/music/song.mid");
        EXPECT_EQ(form.Label3.tooltip(), "/music/song.mid");
        EXPECT_EQ(values(form), (Log{"0", std::to_string(image.size()) + " bytes", "1"}));
        EXPECT_EQ(boxes(form),
                  (Log{"Hello\r\n", "(c) Clara\r\n(p) Clara\r\n", "Piano\r\n", "Grand\r\n",
                       "Cop-per  moon-\r\n", "Verse\r\nLights\r\nrest\r\n"}));
        EXPECT_EQ(world.program.CurrentForm, FormNumber::Information);
    });
    EXPECT_EQ(world.program.CurrentForm, FormNumber::Main);
}

TEST_F(InformationWindowTest, ShowsQuestionMarksWithoutAHeader) {
    open(meta(6, "Verse"), [](Form3& form) {
        EXPECT_EQ(values(form), (Log{"?", "8 bytes", "?"}));
        EXPECT_EQ(form.box(6).text(), "Verse\r\n");
    });
    open("RIFF....RMIDdata...." + header(1, 0x8000), [](Form3& form) {
        EXPECT_EQ(values(form), (Log{"1", "34 bytes", "0"}));
    });
}

TEST_F(InformationWindowTest, OpensOnlyForASelectedMidiSong) {
    world.click("noise.wav");
    world.happened();
    world.form.Command3.click();
    EXPECT_EQ(world.happened(),
              Log{"message: Song Information works only with MIDI files. [Error]"});
    world.form.File1.set_selected({});
    world.form.Command3.click();
    world.form.File1.clear();
    world.form.Command3.click();
    EXPECT_EQ(world.happened(), Log{});
    EXPECT_EQ(log, Log{});
}

TEST_F(InformationWindowTest, IsFilledAnewOnEveryActivation) {
    open(header(1, 7) + meta(1, "old"), [&](Form3& form) {
        EXPECT_EQ(form.box(1).text(), "old\r\n");
        world.files.add_file(world.path("Song.MID"), header(0, 1) + meta(2, "new"));
        form.user_activated();
        EXPECT_EQ(values(form), (Log{"0", "20 bytes", "1"}));
        EXPECT_EQ(boxes(form), (Log{"", "new\r\n", "", "", "", ""}));

        world.files.vanish(world.path("Song.MID"));
        form.user_activated();
        EXPECT_EQ(values(form), (Log{"", "", ""}));
        EXPECT_EQ(boxes(form), (Log{"Error Encountered!", "", "", "", "", ""}));
        EXPECT_EQ(form.text2.text(), "Song.MID");
    });
}

TEST_F(InformationWindowTest, LetsEventsRunAfterLoadingAndEveryTextAndIsFilledOnce) {
    int pumps = 0;
    world.pump.on_pump = [&] {
        ++pumps;
        windows.find("Form3")->user_activated();  // again, while it is filled
    };
    std::string image = header(1, 7);
    std::string texts;
    for (int i = 0; i < 41; ++i) image += meta(i % 2 == 0 ? 1 : 0x51, "abc");
    for (int i = 0; i < 21; ++i) texts += "abc\r\n";
    open(image, [&](Form3& form) {
        EXPECT_EQ(pumps, 1 + 21 + 1) << "loaded, 21 texts, the 21st candidate";
        EXPECT_EQ(form.box(1).text(), texts);
    });
}

TEST_F(InformationWindowTest, ClosingItEndsItsFilling) {
    int pumps = 0;
    Form3* open_form = nullptr;
    while_open = [&](Form3& form) {
        open_form = &form;
        world.pump.on_pump = [&] {
            if (++pumps == 2) open_form->request_unload(CloseReason::user);
        };
        form.user_activated();
        EXPECT_EQ(pumps, 2);
        EXPECT_EQ(boxes(form), Log(6));
    };
    world.files.add_file(world.path("Song.MID"), meta(1, "a") + meta(1, "b") + meta(1, "c"));
    world.form.Command3.click();
    EXPECT_TRUE(open_form);
    EXPECT_EQ(world.program.CurrentForm, FormNumber::Main);
}

TEST_F(InformationWindowTest, RemembersItsPlaceHoweverItIsClosed) {
    Settings& settings = world.settings();
    open("", [&](Form3& form) {
        EXPECT_EQ(form.place(), (Place{5100, 2767, 9000, 6465})) << "the middle of the screen";
        form.user_moved(300, 450);
    });
    EXPECT_EQ(settings.F3Left, 300);
    EXPECT_EQ(settings.F3Top, 450);
    open("", [&](Form3& form) {
        EXPECT_EQ(form.place(), (Place{300, 450, 9000, 6465}));
        form.user_moved(0, 600);
        form.request_unload(CloseReason::user);
    });
    EXPECT_EQ(settings.F3Left, 0);
    open("", [&](Form3& form) { EXPECT_EQ(form.place(), (Place{5100, 600, 9000, 6465})); });
}

TEST_F(InformationWindowTest, ShowsTheWordsOfAKaraokeFileReadably) {
    const std::string image = karaoke_file(text_events({"@KMIDI KARAOKE FILE"}),
                                           text_events({"@TMoon", "\\Cop", "per", "/slow"}),
                                           meta(1, "later") + meta(3, "Bass") + meta(5, "la "));
    open(image, [](Form3& form) {
        EXPECT_EQ(boxes(form),
                  (Log{"MIDI KARAOKE FILE\r\nlater\r\n", "", "Soft Karaoke\r\nWords\r\nBass\r\n",
                       "", "Moon\r\n\r\nCopper\r\nslow\r\nla ", ""}));
    });
    const std::string no_words = meta(3, "Soft Karaoke") + text_events({"@Ttitle"});
    open(no_words, [](Form3& form) {
        EXPECT_EQ(form.box(1).text(), "@Ttitle\r\n");
        EXPECT_EQ(form.box(5).text(), "");
    });
}

}  // namespace
}  // namespace zephyne::test
