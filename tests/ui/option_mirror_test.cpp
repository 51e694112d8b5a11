// Options and what's-this help in a window on a screen that nobody sees, and the help window.
#include "core/controls/form.h"
#include "core/controls/option_button.h"
#include "core/controls/simple_controls.h"
#include "ui/qt/form_window.h"
#include "ui/qt/help_window.h"
#include "ui/qt/qt_window_host.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <string>
#include <utility>
#include <vector>

namespace zephyne {
namespace {

struct OptionForm : Form {
    OptionForm() : Form({.name = "Options", .title = "Options", .width = 6000, .height = 4405}) {
        for (OptionButton* option : {&one, &two, &other}) {
            option->on_click = [this, option] { log.push_back(option->name()); };
        }
        two.set_help("What two is.");
    }

    Frame group{*this, {.name = "group", .place = {150, 150, 2700, 900}}};
    OptionButton one{*this, row("one", 300, 1, &group)};
    OptionButton two{*this, row("two", 600, 2, &group)};
    OptionButton other{*this, row("other", 1500, 3, nullptr)};
    std::vector<std::string> log;

  private:
    static ControlDesign row(std::string_view name, int top, int tab, Control* frame) {
        return {.name = name,
                .place = {300, top, 1500, 255},
                .caption = name,
                .tab = tab,
                .stop = TabStop::yes,
                .frame = frame};
    }
};

class OptionMirrorTest : public testing::Test {
  protected:
    void SetUp() override {
        host.create(form);
        form.load();
        form.two.select();
        form.set_visible(true);
        window = host.window_of(form);
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        form.log.clear();
    }
    QAbstractButton* key(const Control& control) const {
        for (auto* child : window->findChildren<QAbstractButton*>()) {
            if (child->accessibleName().toStdString() == control.name()) return child;
        }
        return nullptr;
    }
    std::vector<std::string> taken() { return std::exchange(form.log, {}); }

    // The text of the note that is open; closes it.
    static std::string note() {
        QWidget* popup = QApplication::activePopupWidget();
        if (!popup) return "";
        const std::string text = static_cast<QLabel*>(popup)->text().toStdString();
        popup->close();
        return text;
    }

    QtWindowHost host{1};
    OptionForm form;
    FormWindow* window = nullptr;
};

TEST_F(OptionMirrorTest, FollowsTheGroupInBothDirections) {
    EXPECT_TRUE(key(form.two)->isChecked());
    QTest::mouseClick(key(form.one), Qt::LeftButton);
    QTest::mouseClick(key(form.one), Qt::LeftButton);
    EXPECT_EQ(taken(), (std::vector<std::string>{"one", "one"}));
    EXPECT_TRUE(key(form.one)->isChecked());
    EXPECT_FALSE(key(form.two)->isChecked());
    form.two.select();
    form.other.select();
    EXPECT_FALSE(key(form.one)->isChecked());
    EXPECT_TRUE(key(form.two)->isChecked()) << "the other group leaves it alone";
    EXPECT_EQ(QAccessible::queryAccessibleInterface(key(form.two))->role(),
              QAccessible::RadioButton);
}

TEST_F(OptionMirrorTest, TabStopsOnceInAGroupAndTheArrowsChoose) {
    key(form.two)->setFocus();
    QTest::keyClick(key(form.two), Qt::Key_Tab);
    EXPECT_EQ(form.focused(), &form.other);
    QTest::keyClick(key(form.other), Qt::Key_Backtab);
    EXPECT_EQ(form.focused(), &form.two) << "not one, which is not selected";
    QTest::keyClick(key(form.two), Qt::Key_Up);
    EXPECT_EQ(form.focused(), &form.one);
    EXPECT_EQ(taken(), std::vector<std::string>{"one"});
    QTest::keyClick(key(form.one), Qt::Key_Space);
    EXPECT_EQ(taken(), std::vector<std::string>{"one"});
}

TEST_F(OptionMirrorTest, TellsWhatAControlIsByMouseAndByKey) {
    QHelpEvent asked(QEvent::WhatsThis, {1, 1}, {50, 50});
    QCoreApplication::sendEvent(key(form.two), &asked);
    EXPECT_EQ(note(), "What two is.");
    QTest::keyClick(key(form.two), Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(note(), "What two is.");
    QTest::keyClick(key(form.one), Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(note(), "") << "there is nothing to say";

    for (const OptionButton* option : {&form.one, &form.two}) {
        QHelpEvent may_ask(QEvent::QueryWhatsThis, {1, 1}, {50, 50});
        QCoreApplication::sendEvent(key(*option), &may_ask);
        EXPECT_EQ(may_ask.isAccepted(), option == &form.two);
    }
    EXPECT_EQ(taken(), std::vector<std::string>()) << "asking is not using";
}

TEST(HelpWindow, OpensAtTheBeginningOnceAndCloses) {
    const QTemporaryDir folder;
    QFile file(folder.filePath("zephyne.hlp"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<html><body><h1>Guide</h1><p id=\"a\">About a.</p></body></html>");
    file.close();
    QtHelpViewer viewer(1);
    viewer.close();
    viewer.show_contents(file.fileName().toStdString());
    HelpWindow* const window = viewer.window();
    ASSERT_TRUE(window);
    EXPECT_EQ(window->findChild<HelpPage*>()->toPlainText(), "Guide\nAbout a.");
    viewer.show_contents(file.fileName().toStdString());
    EXPECT_EQ(viewer.window(), window);
    QTest::keyClick(window, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(viewer.window());
    viewer.show_contents("/nowhere/zephyne.hlp");
    EXPECT_TRUE(viewer.window()) << "an empty page, no crash";
    viewer.close();
}

}  // namespace
}  // namespace zephyne
