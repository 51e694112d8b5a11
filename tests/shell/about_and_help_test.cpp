#include "shell/about_box.h"
#include "shell/help.h"
#include "shell/help_topics.h"
#include "shell/web_links.h"
#include "tests/support/fakes.h"
#include "tests/support/memory_file_system.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>

namespace zephyne::test {
namespace {

struct FakeViewer final : HelpViewer {
    Log log;
    void show_contents(const std::string& file) override { log.push_back("show " + file); }
    void close() override { log.push_back("close"); }
    void ask_whats_this() override { log.push_back("ask"); }
};
struct FakePages final : PageOpener {
    Log log;
    void open_page(const std::string& path) override { log.push_back(path); }
};

class AboutBoxTest : public testing::Test {
  protected:
    void show(const std::function<void(Form5&)>& user) {
        windows.on_modal = [&](Form& form) { user(dynamic_cast<Form5&>(form)); };
        about.show();
    }

    Program program;
    FakeWindows windows;
    AboutBox about{program, windows, {"1.2.3", [] { return Log{"Qt 6", "FluidSynth 2"}; }}};
};

TEST_F(AboutBoxTest, NamesTheProgramItsVersionAndItsLibraries) {
    show([&](Form5& form) {
        EXPECT_EQ(form.title(), "About Zephyne");
        EXPECT_EQ(form.Panel1.caption(), "ZEPHYNE");
        EXPECT_EQ(form.Panel2.caption(), "Version 1.2.3");
        EXPECT_EQ(form.Panel4.caption(), "Qt 6\r\nFluidSynth 2\r\n");
        EXPECT_EQ(program.CurrentForm, FormNumber::About);
        form.Command1.click();
        EXPECT_FALSE(form.loaded());
    });
    EXPECT_EQ(program.CurrentForm, FormNumber::Main);
}

TEST_F(AboutBoxTest, RemembersItsPlaceHoweverItIsClosed) {
    show([](Form5& form) {
        form.user_moved(300, 450);
        form.Command1.click();
    });
    show([](Form5& form) {
        EXPECT_EQ(form.place().left, 300);
        EXPECT_EQ(form.place().top, 450);
        form.user_moved(600, 0);
        form.request_unload(CloseReason::user);
    });
    show([](Form5& form) {
        EXPECT_EQ(form.place().left, 600);
        EXPECT_EQ(form.place().top, (12000 - form.place().height) / 2) << "0 is no place";
    });
}

TEST_F(AboutBoxTest, AskedForAgainClosesTheOpenOneFirst) {
    int shown = 0;
    show([&](Form5& first) {
        if (++shown == 2) return first.Command1.click();
        about.show();
        EXPECT_FALSE(first.loaded());
    });
    EXPECT_EQ(shown, 2);
    EXPECT_EQ(program.CurrentForm, FormNumber::Main);
}

TEST(Help, OpensTheFilesThatComeWithTheProgramAndReadsItsTopics) {
    Program program;
    program.folders = {"/own", "/installed"};
    program.HelpFile = "/installed/zephyne.hlp";
    MemoryFileSystem files(PathStyle::posix, "/music");
    files.add_file("/installed/zephyne.hlp", "<p id=\"a\">All about a.</p>");
    files.add_file("/installed/zephyne.htm");
    FakeViewer viewer;
    Help help(program, files, viewer);
    help.show_contents();
    help.ask_whats_this();
    help.close();
    EXPECT_EQ(viewer.log, (Log{"show /installed/zephyne.hlp", "ask", "close"}));
    EXPECT_EQ(help.topic("a"), "All about a.");
    EXPECT_EQ(help.topic("b"), "");
    program.HelpFile = "/nowhere";
    EXPECT_EQ(Help(program, files, viewer).topic("a"), "");

    FakePages pages;
    WebLinks links(program, files, pages);
    links.show();
    files.add_file("/own/zephyne.htm");
    links.show();
    EXPECT_EQ(pages.log, (Log{"/installed/zephyne.htm", "/own/zephyne.htm"}));
}

TEST(HelpTopics, ATopicIsPlainText) {
    const std::string html =
        "<h1 id=\"top\">Title</h1>\n<p class=\"x\" id=\"a\"><b>Delay:</b> 1 &lt; 2 &amp;lt;\r\n"
        "   and <i>so\non</i>.</p><p id=\"ab\">other</p><p id=\"open\">never closed";
    EXPECT_EQ(help_topic(html, "a"), "Delay: 1 < 2 &lt; and so on.");
    EXPECT_EQ(help_topic(html, "ab"), "other");
    EXPECT_EQ(help_topic(html, "top"), "Title");
    for (const char* none : {"", "b", "open", "x"}) EXPECT_EQ(help_topic(html, none), "") << none;
    for (const char* damaged : {"", "id=\"a\"", "<p id=\"a\"", "<p id=\"a\">", "<p id=\"a\"></p"}) {
        EXPECT_EQ(help_topic(damaged, "a"), "") << damaged;
    }
}

TEST(TheGuide, HasNoDeadLinksAndNoMissingPictures) {
    const std::string folder = ZEPHYNE_DATA "/help/";
    std::ifstream file(folder + "zephyne.hlp");
    const std::string html{std::istreambuf_iterator<char>(file), {}};
    ASSERT_FALSE(html.empty());
    const auto each = [&](const char* pattern, const auto& look) {
        const std::regex expression(pattern);
        const std::sregex_iterator begin(html.begin(), html.end(), expression), end;
        EXPECT_NE(begin, end) << pattern;
        for (auto at = begin; at != end; ++at) look(at->str(1));
    };
    each("href=\"#([^\"]*)\"", [&](const std::string& topic) {
        EXPECT_NE(html.find("id=\"" + topic + "\""), std::string::npos) << topic;
    });
    each("src=\"([^\"]*)\"", [&](const std::string& picture) {
        EXPECT_TRUE(std::filesystem::exists(folder + picture)) << picture;
        EXPECT_LT(std::filesystem::file_size(folder + picture), 100'000U) << picture;
    });
}

}  // namespace
}  // namespace zephyne::test
