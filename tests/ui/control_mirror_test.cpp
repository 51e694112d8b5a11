// What the user does in a window must reach the controls, once, and what the program sets must
// reach the window without coming back.
#include "tests/ui/sample_form.h"
#include "ui/qt/rows_view.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QLineEdit>
#include <QListView>
#include <QTextEdit>

namespace zephyne::test {
namespace {

class ControlMirror : public ShownForm<SampleForm> {
  protected:
    QListView* rows() const { return widget<QListView>(form.list); }
    QPoint middle_of(int row) const {
        return rows()->visualRect(rows()->model()->index(row, 0)).center();
    }
    void click_row(int row, Qt::KeyboardModifiers keys = {}) const {
        QTest::mouseClick(rows()->viewport(), Qt::LeftButton, keys, middle_of(row));
        settle();
    }
};

TEST_F(ControlMirror, WhatTheProgramSetsIsRaisedOnceAndShown) {
    form.line.set_text("abc");
    form.area.set_text("first\r\nsecond");
    form.slider.set_value(70);
    form.box.set_value(1);
    form.list.set_selected(1);

    EXPECT_EQ(taken(), (Log{"line abc", "area first\r\nsecond", "slid 70", "box 1", "row 1"}));
    EXPECT_EQ(widget<QLineEdit>(form.line)->text(), "abc");
    EXPECT_EQ(widget<QTextEdit>(form.area)->toPlainText(), "first\nsecond");
    EXPECT_EQ(widget<QAbstractSlider>(form.slider)->value(), 70);
    EXPECT_TRUE(widget<QAbstractButton>(form.box)->isChecked());
    EXPECT_EQ(rows()->currentIndex().row(), 1);
    EXPECT_EQ(rows()->currentIndex().data(), QString("t\uFFFD\uFFFD"));
}

TEST_F(ControlMirror, TypingPassesTheKeyFirstAndThenTheWholeText) {
    form.line.on_key_press = [](char32_t character) { return character != U'#'; };
    QTest::keyClicks(widget(form.line), "a#b");
    QTest::keyClick(widget(form.area), 'x');
    QTest::keyClick(widget(form.area), Qt::Key_Return);
    QTest::keyClick(widget(form.area), 'y');
    EXPECT_EQ(form.line.text(), "ab");
    EXPECT_EQ(form.area.text(), "x\r\ny");

    // A handler that corrects the text has the last word.
    form.line.on_change = [this] { form.line.set_text("fixed"); };
    QTest::keyClick(widget(form.line), 'c');
    EXPECT_EQ(widget<QLineEdit>(form.line)->text(), "fixed");
}

TEST_F(ControlMirror, MarkedTextIsKnownOnBothSides) {
    form.line.set_text("proposal");
    form.line.select_all();
    EXPECT_EQ(widget<QLineEdit>(form.line)->selectedText(), "proposal");
    QTest::keyClick(widget(form.line), Qt::Key_End);
    EXPECT_EQ(form.line.selected_text(), "");
    form.area.set_text("first\r\nsecond");
    QTest::keyClick(widget(form.area), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.area.selected_text(), "first\nsecond");
    form.area.set_text("other");
    EXPECT_EQ(form.area.selected_text(), "");
}

TEST_F(ControlMirror, DraggingASliderRaisesOneChangeAtTheRelease) {
    QWidget* slider = widget(form.slider);
    const int middle = slider->height() / 2;
    QTest::mousePress(slider, Qt::LeftButton, {}, {20, middle});
    for (int x = 30; x <= 90; x += 10) QTest::mouseMove(slider, {x, middle});
    EXPECT_EQ(taken(), Log{"focus slider"});
    EXPECT_NEAR(form.slider.value(), 60, 3);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, {90, middle});
    EXPECT_EQ(taken(), Log{"slid " + std::to_string(form.slider.value())});

    QTest::keyClick(slider, Qt::Key_End);
    EXPECT_EQ(taken(), Log{"slid 100"});

    // Taken away in the hand, it is let go.
    QTest::mousePress(slider, Qt::LeftButton, {}, {20, middle});
    QEvent message_opens(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(slider, &message_opens);
    const Log let_go = {"slid " + std::to_string(form.slider.value())};
    EXPECT_EQ(taken(), let_go) << "the message box gets the release";
    QTest::mouseMove(slider, {90, middle});
    QTest::mouseRelease(slider, Qt::LeftButton, {}, {90, middle});
    EXPECT_EQ(taken(), Log{});

    QTest::mousePress(slider, Qt::LeftButton, {}, {60, middle});
    form.slider.set_visible(false);
    EXPECT_EQ(taken(), (Log{"focus list", "slid " + std::to_string(form.slider.value())}));
}

TEST_F(ControlMirror, RowsAreChosenByMouseAndByKey) {
    click_row(1);
    click_row(1);
    QTest::keyClick(rows(), Qt::Key_Down);
    QTest::keyClick(rows(), Qt::Key_Home);
    EXPECT_EQ(taken(), (Log{"focus list", "row 1", "row 1", "row 2", "row 0"}));
}

TEST_F(ControlMirror, RowsAreSelectedWithMouseAndKeyboardByRangeAndByToggle) {
    form.list.set_items({});
    form.list.set_selecting(Selecting::extended);
    form.list.set_items({{"one", ""}, {"two", ""}, {"three", ""}, {"four", ""}});
    settle();
    using Rows = std::vector<std::size_t>;
    click_row(1);
    click_row(3, Qt::ControlModifier);
    EXPECT_EQ(form.list.selected_rows(), (Rows{1, 3}));
    click_row(1, Qt::ShiftModifier);
    EXPECT_EQ(form.list.selected_rows(), (Rows{1, 2, 3}));
    rows()->setFocus();
    QTest::keyClick(rows(), Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClick(rows(), Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(form.list.selected_rows(), (Rows{0, 1, 2, 3}));
    QTest::keyClick(rows(), Qt::Key_Down);
    QTest::keyClick(rows(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(form.list.selected_rows(), (Rows{1, 2}));
    QTest::keyClick(rows(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.list.selected_rows(), (Rows{0, 1, 2, 3}));

    form.list.on_double_click = [&] { form.log.push_back("opened"); };
    taken();
    QTest::keyClick(rows(), Qt::Key_Return);
    QTest::mouseDClick(rows()->viewport(), Qt::LeftButton, {}, middle_of(2));
    EXPECT_EQ(taken(), (Log{"opened", "opened"}));
}

TEST_F(ControlMirror, ADisabledFrameDisablesWhatIsInIt) {
    form.group.set_enabled(false);
    QTest::mouseClick(widget(form.inner), Qt::LeftButton);
    EXPECT_EQ(taken(), Log{});
    form.group.set_enabled(true);
    QTest::mouseClick(widget(form.inner), Qt::LeftButton);
    EXPECT_EQ(taken(), (Log{"focus inner", "inner"}));
}

// Counts what a view asks for.
class CountingRows final : public Rows {
  public:
    mutable int questions = 0;
    std::size_t chosen = 0;

    std::optional<std::size_t> selected() const override {
        ++questions;
        return chosen;
    }
    QString text(std::size_t row) const override {
        ++questions;
        return QString::number(row);
    }
    void paint_row(QPainter&, const paint::Scale&, const QRect&, const paint::RowState&,
                   std::size_t) const override {
        ++questions;
    }
    void pressed(std::size_t, ClickWith) override {}
    void moved_to(std::size_t, ClickWith) override {}
};

TEST_F(ControlMirror, AHundredThousandRowsAreShownWithoutAskingForEach) {
    constexpr std::size_t many = 100'000;
    auto* rows = new CountingRows;
    RowsView view(nullptr, rows, paint::ListKind::Plain);
    view.resize(200, 160);
    view.lay_out({}, view.rect());
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    rows->reset(many);
    rows->chosen = many - 1;
    view.follow_selection();
    settle();
    view.grab();

    EXPECT_EQ(view.currentIndex().row(), static_cast<int>(many - 1));
    EXPECT_TRUE(view.viewport()->rect().intersects(view.visualRect(view.currentIndex())));
    EXPECT_LT(rows->questions, 1000);
}

}  // namespace
}  // namespace zephyne::test
