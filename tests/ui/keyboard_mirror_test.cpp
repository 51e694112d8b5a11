// Tab, Enter, Alt and the other keys of a window, its focus, and what a screen reader finds there.
#include "tests/ui/sample_form.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QWindow>
#include <algorithm>

namespace zephyne::test {
namespace {

using KeyboardMirror = ShownForm<SampleForm>;

TEST_F(KeyboardMirror, TabFollowsTheNumbersPastWhatIsDisabledOrHidden) {
    EXPECT_EQ(form.focused(), &form.ok);  // the first stop, from the start
    form.box.set_enabled(false);
    form.line.set_visible(false);
    for (int i = 0; i < 3; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(taken(), (Log{"focus inner", "focus area", "focus slider"}));
}

TEST_F(KeyboardMirror, TabStaysWithinANarrowWindow) {
    form.set_place({0, 0, 2900, 4405});  // leaves box, area and ok outside
    taken();
    for (int i = 0; i < 4; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(taken(), (Log{"focus line", "focus slider", "focus list", "focus inner"}));
    form.set_place({0, 0, 6000, 4405});
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(taken(), Log{"focus box"});
}

TEST_F(KeyboardMirror, TheFocusIsTheSameForFormAndWindow) {
    form.line.set_focus();
    EXPECT_EQ(QApplication::focusWidget(), widget(form.line));
    widget(form.box)->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(form.focused(), &form.box);
    EXPECT_EQ(taken(), (Log{"focus line", "focus box"}));
}

TEST_F(KeyboardMirror, EnterAndEscapePressTheAnswersUnlessAKeyHasTheFocus) {
    form.set_default_button(&form.ok);
    form.set_cancel_button(&form.inner);
    QTest::keyClick(widget(form.line), Qt::Key_Return);
    QTest::keyClick(widget(form.line), Qt::Key_Escape);
    QTest::keyClick(widget(form.inner), Qt::Key_Return);
    EXPECT_EQ(taken(), (Log{"ok", "inner", "inner"}));
}

// As X11 has it, and Qt when it does not look ahead: a repetition is a release and a press, neither
// of them marked, at the same moment.
TEST_F(KeyboardMirror, AHeldKeyPressesOnce) {
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

TEST_F(KeyboardMirror, AltAndTheMarkedLetterPressAKeyThatShowsNoMark) {
    form.inner.set_caption("&Inner && outer");
    QTest::keyClick(widget(form.line), 'i', Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !form.log.empty(); })) << "seen going down first";
    EXPECT_EQ(taken(), Log{"inner"});
    const auto names = window->findChildren<QAbstractButton*>();
    EXPECT_TRUE(std::any_of(names.begin(), names.end(), [](const QAbstractButton* key) {
        return key->accessibleName() == "Inner & outer";
    }));
}

TEST_F(KeyboardMirror, ReleasedKeysReachTheFormByTheirNumber) {
    std::vector<int> keys;
    form.on_key_up = [&](int key) { keys.push_back(key); };
    QTest::keyClick(widget(form.list), Qt::Key_F2);
    QTest::keyClick(widget(form.ok), Qt::Key_A);
    QTest::keyClick(window, Qt::Key_Shift);
    EXPECT_EQ(keys, (std::vector<int>{113, 65}));
}

TEST_F(KeyboardMirror, ScreenReadersFindEachControlByKindAndNameAndCanPressIt) {
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

}  // namespace
}  // namespace zephyne::test
