// Options and what's-this help in a window on a screen that nobody sees, and the help window.
#include "core/controls/option_button.h"
#include "tests/ui/sample_form.h"
#include "ui/qt/help_window.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QTemporaryDir>

namespace zephyne::test {
namespace {

struct OptionForm : Form {
    OptionForm() : Form({.name = "Options", .title = "Options", .width = 6000, .height = 4405}) {
        for (OptionButton* option : {&one, &two, &other}) {
            option->on_click = [this, option] { log.push_back(option->name()); };
        }
        two.set_help("What two is.");
        two.select();
    }

    Frame group{*this, {.name = "group", .place = {150, 150, 2700, 900}}};
    OptionButton one{*this, stop("one", {300, 300, 1500, 255}, 1, &group)};
    OptionButton two{*this, stop("two", {300, 600, 1500, 255}, 2, &group)};
    OptionButton other{*this, stop("other", {300, 1500, 1500, 255}, 3)};
    Log log;
};

class OptionMirror : public ShownForm<OptionForm> {
  protected:
    QAbstractButton* key(const Control& control) const { return widget<QAbstractButton>(control); }

    // The text of the note that is open; closes it.
    static std::string note() {
        QWidget* popup = QApplication::activePopupWidget();
        if (!popup) return "";
        const std::string text = static_cast<QLabel*>(popup)->text().toStdString();
        popup->close();
        return text;
    }
};

TEST_F(OptionMirror, FollowsTheGroupInBothDirections) {
    EXPECT_TRUE(key(form.two)->isChecked());
    QTest::mouseClick(key(form.one), Qt::LeftButton);
    QTest::mouseClick(key(form.one), Qt::LeftButton);
    EXPECT_EQ(taken(), (Log{"one", "one"}));
    EXPECT_TRUE(key(form.one)->isChecked());
    EXPECT_FALSE(key(form.two)->isChecked());
    form.two.select();
    form.other.select();
    EXPECT_FALSE(key(form.one)->isChecked());
    EXPECT_TRUE(key(form.two)->isChecked()) << "the other group leaves it alone";
    EXPECT_EQ(QAccessible::queryAccessibleInterface(key(form.two))->role(),
              QAccessible::RadioButton);
}

TEST_F(OptionMirror, TabStopsOnceInAGroupAndTheArrowsChoose) {
    key(form.two)->setFocus();
    QTest::keyClick(key(form.two), Qt::Key_Tab);
    EXPECT_EQ(form.focused(), &form.other);
    QTest::keyClick(key(form.other), Qt::Key_Backtab);
    EXPECT_EQ(form.focused(), &form.two) << "not one, which is not selected";
    QTest::keyClick(key(form.two), Qt::Key_Up);
    EXPECT_EQ(form.focused(), &form.one);
    EXPECT_EQ(taken(), Log{"one"});
    QTest::keyClick(key(form.one), Qt::Key_Space);
    EXPECT_EQ(taken(), Log{"one"});
}

TEST_F(OptionMirror, TellsWhatAControlIsByMouseAndByKey) {
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
    EXPECT_EQ(taken(), Log()) << "asking is not using";
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
}  // namespace zephyne::test
