// Windows on a screen that nobody sees: what the user does must reach the controls, once, and what
// the program sets must reach the window without coming back.
#include "core/controls/form.h"
#include "core/controls/list_box.h"
#include "core/controls/simple_controls.h"
#include "core/controls/slider.h"
#include "core/controls/text_box.h"
#include "ui/qt/form_window.h"
#include "ui/qt/qt_window_host.h"
#include "ui/qt/rows_view.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QPaintEvent>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace zephyne {
namespace {

using Log = std::vector<std::string>;

// One of most kinds, and everything that is raised goes into the log.
struct SampleForm : Form {
    SampleForm()
        : Form({.name = "Sample", .title = "Sample", .width = 6000, .height = 4405}),
          group(*this, {.name = "group", .place = {150, 150, 2700, 900}, .caption = "Group"}),
          inner(*this, {.name = "inner",
                        .place = {300, 450, 1200, 300},
                        .caption = "Inner",
                        .tab = 1,
                        .stop = TabStop::yes,
                        .frame = &group}),
          box(*this, {.name = "box",
                      .place = {3000, 150, 1500, 255},
                      .caption = "Box",
                      .tab = 2,
                      .stop = TabStop::yes}),
          line(*this, TextLines::one, TextAccess::read_write,
               {.name = "line", .place = {150, 1200, 2700, 285}, .tab = 3, .stop = TabStop::yes}),
          area(*this, TextLines::many, TextAccess::read_write,
               {.name = "area", .place = {3000, 1200, 2700, 1200}, .tab = 4, .stop = TabStop::yes}),
          slider(
              *this, Orientation::horizontal,
              {.name = "slider", .place = {150, 1650, 2265, 255}, .tab = 5, .stop = TabStop::yes}),
          list(*this, ListOrder::as_added,
               {.name = "list", .place = {150, 2100, 2700, 1500}, .tab = 6, .stop = TabStop::yes}),
          ok(*this, {.name = "ok",
                     .place = {3000, 3000, 1200, 345},
                     .caption = "OK",
                     .tab = 0,
                     .stop = TabStop::yes}),
          roll(*this, ImageList::roll, {.name = "roll", .place = {4800, 150, 570, 600}}) {
        for (Control* control : controls()) {
            control->set_accessible_name(control->name());
            control->on_got_focus = [this, control] { log.push_back("focus " + control->name()); };
        }
        inner.set_on_click([this] { log.push_back("inner"); });
        ok.set_on_click([this] { log.push_back("ok"); });
        box.set_on_click([this] { log.push_back("box " + std::to_string(box.value())); });
        line.on_change = [this] { log.push_back("line " + line.text()); };
        area.on_change = [this] { log.push_back("area " + area.text()); };
        slider.set_on_change([this] { log.push_back("slid " + std::to_string(slider.value())); });
        list.on_click = [this] { log.push_back("row " + std::to_string(*list.selected())); };
    }

    Frame group;
    Button inner;
    CheckBox box;
    TextBox line;
    TextBox area;
    Slider slider;
    ListBox list;
    Button ok;
    Picture roll;
    Log log;
};

// Widgets need an application; another test file may have made it already.
class Application : public testing::Environment {
    void SetUp() override {
        if (QCoreApplication::instance()) return;
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        static int argc = 1;
        static char name[] = "mirror_test";
        static char* argv[] = {name, nullptr};
        application_ = std::make_unique<QApplication>(argc, argv);
    }
    void TearDown() override { application_.reset(); }

    std::unique_ptr<QApplication> application_;
};
[[maybe_unused]] const auto* const application = testing::AddGlobalTestEnvironment(new Application);

class MirrorTest : public testing::Test {
  protected:
    void SetUp() override {
        form.list.set_items({{"one", ""}, {"t\xff\xff", ""}, {"three", ""}});
        host.create(form);
        form.load();
        form.set_visible(true);
        window = host.window_of(form);
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        settle();
        form.log.clear();
    }

    // Lets all go through that is under way, with no time passing.
    static void settle() {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    template <class Widget = QWidget>
    Widget* widget(const Control& control) const {
        for (Widget* child : window->findChildren<Widget*>()) {
            if (child->accessibleName().toStdString() == control.accessible_name()) return child;
        }
        return nullptr;
    }

    Log taken() {
        settle();
        return std::exchange(form.log, {});
    }

    QtWindowHost host{1};
    SampleForm form;
    FormWindow* window = nullptr;
};

TEST_F(MirrorTest, WhatTheProgramSetsIsRaisedOnceAndShown) {
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
    auto* rows = widget<QListView>(form.list);
    EXPECT_EQ(rows->currentIndex().row(), 1);
    EXPECT_EQ(rows->model()->data(rows->currentIndex()), QString("t\uFFFD\uFFFD"));
}

TEST_F(MirrorTest, TypingPassesTheKeyFirstAndThenTheWholeText) {
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

TEST_F(MirrorTest, MarkedTextIsKnownOnBothSides) {
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

TEST_F(MirrorTest, DraggingASliderRaisesOneChangeAtTheRelease) {
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
    QApplication::sendEvent(slider, &message_opens);
    const Log let_go = {"slid " + std::to_string(form.slider.value())};
    EXPECT_EQ(taken(), let_go) << "the message box gets the release";
    QTest::mouseMove(slider, {90, middle});
    QTest::mouseRelease(slider, Qt::LeftButton, {}, {90, middle});
    EXPECT_EQ(taken(), Log{});

    QTest::mousePress(slider, Qt::LeftButton, {}, {60, middle});
    form.slider.set_visible(false);
    EXPECT_EQ(taken(), (Log{"focus list", "slid " + std::to_string(form.slider.value())}));
}

TEST_F(MirrorTest, RowsAreChosenByMouseAndByKey) {
    auto* rows = widget<QListView>(form.list);
    const auto click = [&](int row) {
        const QRect place = rows->visualRect(rows->model()->index(row, 0));
        QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, place.center());
    };
    click(1);
    click(1);
    QTest::keyClick(rows, Qt::Key_Down);
    QTest::keyClick(rows, Qt::Key_Home);
    EXPECT_EQ(taken(), (Log{"focus list", "row 1", "row 1", "row 2", "row 0"}));
}

TEST_F(MirrorTest, ADisabledFrameDisablesWhatIsInIt) {
    form.group.set_enabled(false);
    QTest::mouseClick(widget(form.inner), Qt::LeftButton);
    EXPECT_EQ(taken(), Log{});
    form.group.set_enabled(true);
    QTest::mouseClick(widget(form.inner), Qt::LeftButton);
    EXPECT_EQ(taken(), (Log{"focus inner", "inner"}));
}

TEST_F(MirrorTest, TabFollowsTheNumbersPastWhatIsDisabledOrHidden) {
    EXPECT_EQ(form.focused(), &form.ok);  // the first stop, from the start
    form.box.set_enabled(false);
    form.line.set_visible(false);
    for (int i = 0; i < 3; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(taken(), (Log{"focus inner", "focus area", "focus slider"}));
}

TEST_F(MirrorTest, TabStaysWithinANarrowWindow) {
    form.set_place({0, 0, 2900, 4405});  // leaves box, area and ok outside
    taken();
    for (int i = 0; i < 4; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(taken(), (Log{"focus line", "focus slider", "focus list", "focus inner"}));
    form.set_place({0, 0, 6000, 4405});
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(taken(), Log{"focus box"});
}

TEST_F(MirrorTest, TheFocusIsTheSameForFormAndWindow) {
    form.line.set_focus();
    EXPECT_EQ(QApplication::focusWidget(), widget(form.line));
    widget(form.box)->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(form.focused(), &form.box);
    EXPECT_EQ(taken(), (Log{"focus line", "focus box"}));
}

TEST_F(MirrorTest, EnterAndEscapePressTheAnswersUnlessAKeyHasTheFocus) {
    form.set_default_button(&form.ok);
    form.set_cancel_button(&form.inner);
    QTest::keyClick(widget(form.line), Qt::Key_Return);
    QTest::keyClick(widget(form.line), Qt::Key_Escape);
    QTest::keyClick(widget(form.inner), Qt::Key_Return);
    EXPECT_EQ(taken(), (Log{"ok", "inner", "inner"}));
}

// As X11 has it, and Qt when it does not look ahead: a repetition is a release and a press, neither
// of them marked, at the same moment.
TEST_F(MirrorTest, AHeldKeyPressesOnce) {
    form.set_default_button(&form.ok);
    std::uint64_t now = 1000;
    const auto send = [&](QEvent::Type type, std::uint32_t scan_code) {
        QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier, scan_code, 0, 0);
        event.setTimestamp(now);
        QCoreApplication::sendEvent(window->windowHandle(), &event);
    };
    for (Control* focused : std::initializer_list<Control*>{&form.line, &form.inner}) {
        focused->set_focus();
        form.log.clear();
        send(QEvent::KeyPress, 36);
        for (int repetition = 0; repetition < 3; ++repetition) {
            now += 40;
            send(QEvent::KeyRelease, 36);
            send(QEvent::KeyPress, 36);
        }
        EXPECT_EQ(taken().size(), 1U) << focused->name();
        now += 40;
        send(QEvent::KeyRelease, 36);
        send(QEvent::KeyPress, 104);
        EXPECT_EQ(taken().size(), 1U) << "another key at the same moment is another press";
        send(QEvent::KeyRelease, 104);
        now += 1;
        send(QEvent::KeyPress, 104);
        EXPECT_EQ(taken().size(), 1U) << "and so is the same key a moment later";
        send(QEvent::KeyRelease, 104);
        now += 1;
    }
}

TEST_F(MirrorTest, AltAndTheMarkedLetterPressAKeyThatShowsNoMark) {
    form.inner.set_caption("&Inner && outer");
    QTest::keyClick(widget(form.line), 'i', Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !form.log.empty(); })) << "seen going down first";
    EXPECT_EQ(taken(), Log{"inner"});
    const auto names = window->findChildren<QAbstractButton*>();
    EXPECT_TRUE(std::any_of(names.begin(), names.end(), [](const QAbstractButton* key) {
        return key->accessibleName() == "Inner & outer";
    }));
}

TEST_F(MirrorTest, ScreenReadersFindEachControlByKindAndNameAndCanPressIt) {
    const auto reader = [&](const Control& control) {
        return QAccessible::queryAccessibleInterface(widget(control));
    };
    const auto is = [&](const Control& control, QAccessible::Role role) {
        const QAccessibleInterface* seen = reader(control);
        return seen && seen->role() == role &&
               seen->text(QAccessible::Name).toStdString() == control.accessible_name();
    };
    EXPECT_TRUE(is(form.ok, QAccessible::Button));
    EXPECT_TRUE(is(form.box, QAccessible::CheckBox));
    EXPECT_TRUE(is(form.line, QAccessible::EditableText));
    EXPECT_TRUE(is(form.slider, QAccessible::Slider));
    EXPECT_TRUE(is(form.list, QAccessible::List));

    // Qt lets a key be seen going down, so its click takes a moment.
    reader(form.ok)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.log == Log{"ok"}; }, 2000));
    reader(form.box)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.box.value() == 1; }, 2000));
    reader(form.slider)->valueInterface()->setCurrentValue(30);
    EXPECT_EQ(form.slider.value(), 30);
}

TEST_F(MirrorTest, ReleasedKeysReachTheFormByTheirNumber) {
    std::vector<int> keys;
    form.on_key_up = [&](int key) { keys.push_back(key); };
    QTest::keyClick(widget(form.list), Qt::Key_F2);
    QTest::keyClick(widget(form.ok), Qt::Key_A);
    QTest::keyClick(window, Qt::Key_Shift);
    EXPECT_EQ(keys, (std::vector<int>{113, 65}));
}

TEST_F(MirrorTest, TheCloseBoxAsksTheForm) {
    bool refuse = true;
    form.on_query_unload = [&](CloseReason reason, bool& cancel) {
        EXPECT_EQ(reason, CloseReason::user);
        cancel = refuse;
    };
    window->close();
    EXPECT_TRUE(window->isVisible());
    refuse = false;
    window->close();
    settle();
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(form.loaded());
}

TEST_F(MirrorTest, AModalWindowReturnsWhenHiddenClosedOrGone) {
    auto question = std::make_unique<SampleForm>();
    const auto run_until = [&](auto act) {
        host.create(*question);
        question->load();
        QTimer::singleShot(0, [&] {
            EXPECT_EQ(QApplication::activeModalWidget(), host.window_of(*question));
            act();
        });
        host.run_modal(*question);
    };
    run_until([&] { question->set_visible(false); });
    run_until([&] { host.window_of(*question)->close(); });
    EXPECT_FALSE(question->loaded());
    run_until([&] { question.reset(); });
    settle();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(MirrorTest, TheCornerOfTheScreenIsAPlaceLikeAnyOther) {
    SampleForm second;  // whose place is 0, 0, which the window system must be told, too
    host.create(second);
    EXPECT_TRUE(host.window_of(second)->testAttribute(Qt::WA_Moved));
}

TEST_F(MirrorTest, APlaceBetweenPixelsIsNotRoundedBehindTheProgramsBack) {
    form.move_to(1007, 503);
    settle();
    QTest::qWait(200);  // a window is taken to rest after a moment
    EXPECT_EQ(form.place().left, 1007);
    EXPECT_EQ(form.place().top, 503);
    window->move(120, 80);
    QTest::qWait(200);
    EXPECT_EQ(form.place().left, 1800);
    EXPECT_EQ(form.place().top, 1200);
}

// Sees which part of a window is painted.
class PaintWatch final : public QObject {
  public:
    explicit PaintWatch(QWidget& window) { window.installEventFilter(this); }
    QRegion painted;
    int pictures = 0;

  protected:
    bool eventFilter(QObject* target, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            painted += static_cast<QPaintEvent*>(event)->region();
            ++pictures;
        }
        return QObject::eventFilter(target, event);
    }
};

TEST_F(MirrorTest, AWindowThatIsHiddenAndShownInOneStepNeverLeavesTheScreen) {
    int hidden = 0;
    window->on_hidden = [&] { ++hidden; };
    form.set_visible(false);
    form.set_visible(true);
    settle();
    EXPECT_EQ(hidden, 0);
    window->set_extended_style(0);
    form.set_visible(false);
    form.set_visible(true);
    EXPECT_EQ(hidden, 1) << "its taskbar button goes";
    form.set_visible(false);
    settle();
    EXPECT_EQ(hidden, 2);
    EXPECT_FALSE(window->isVisible());
    window->on_hidden = nullptr;
}

TEST_F(MirrorTest, AWindowIsNotResizedWhileTheWindowManagerTakesItUp) {
    form.set_visible(false);
    settle();
    form.set_visible(true);
    const QSize before = window->size();
    Place place = form.place();
    place.width += 1500;
    form.set_place(place);
    EXPECT_EQ(window->size(), before);
    QTRY_COMPARE(window->size().width(), before.width() + 100);
}

TEST_F(MirrorTest, AnAnimationPaintsOnlyItsOwnCorner) {
    PaintWatch watch(*window);
    window->update();
    QTRY_COMPARE(watch.pictures, 1);
    watch.painted = {};
    form.roll.set_image(2);
    const QRect corner(320, 10, 38, 40);
    QTRY_VERIFY(watch.painted.contains(corner));
    EXPECT_TRUE(corner.adjusted(-6, -6, 6, 6).contains(watch.painted.boundingRect()));

    // What is hidden is painted over.
    watch.painted = {};
    form.roll.set_visible(false);
    QTRY_VERIFY(watch.painted.contains(corner));
}

TEST_F(MirrorTest, WhatChangesFasterThanAScreenShowsIsPaintedWithTheNextPicture) {
    PaintWatch watch(*window);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 1000; ++i) {
        form.ok.set_caption(std::to_string(i));
        settle();
    }
    EXPECT_LE(watch.pictures, clock.elapsed() / 16 + 2);
    watch.painted = {};
    form.ok.set_caption("last");
    QTRY_VERIFY(!watch.painted.isEmpty());
}

TEST_F(MirrorTest, RowsAreSelectedWithMouseAndKeyboardByRangeAndByToggle) {
    form.list.set_items({});
    form.list.set_selecting(Selecting::extended);
    form.list.set_items({{"one", ""}, {"two", ""}, {"three", ""}, {"four", ""}});
    settle();
    auto* view = widget<QListView>(form.list);
    const auto click = [&](int row, Qt::KeyboardModifiers keys) {
        const QPoint place = view->visualRect(view->model()->index(row, 0)).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, keys, place);
        settle();
    };
    using Rows = std::vector<std::size_t>;
    click(1, {});
    click(3, Qt::ControlModifier);
    EXPECT_EQ(form.list.selected_rows(), (Rows{1, 3}));
    click(1, Qt::ShiftModifier);
    EXPECT_EQ(form.list.selected_rows(), (Rows{1, 2, 3}));
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Up, Qt::ControlModifier);
    QTest::keyClick(view, Qt::Key_Space, Qt::ControlModifier);
    EXPECT_EQ(form.list.selected_rows(), (Rows{0, 1, 2, 3}));
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(form.list.selected_rows(), (Rows{1, 2}));

    QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.list.selected_rows(), (Rows{0, 1, 2, 3}));

    form.list.on_double_click = [&] { form.log.push_back("opened"); };
    taken();
    QTest::keyClick(view, Qt::Key_Return);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {},
                       view->visualRect(view->model()->index(2, 0)).center());
    EXPECT_EQ(taken(), (Log{"opened", "opened"}));
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

TEST_F(MirrorTest, AHundredThousandRowsAreShownWithoutAskingForEach) {
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
}  // namespace zephyne
