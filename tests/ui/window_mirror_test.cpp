// How a window comes, goes, moves and is painted.
#include "tests/ui/sample_form.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPaintEvent>
#include <QTimer>

namespace zephyne::test {
namespace {

using WindowMirror = ShownForm<SampleForm>;

TEST_F(WindowMirror, TheCloseBoxAsksTheForm) {
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

TEST_F(WindowMirror, AModalWindowReturnsWhenHiddenClosedOrGone) {
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

TEST_F(WindowMirror, TheCornerOfTheScreenIsAPlaceLikeAnyOther) {
    SampleForm second;  // whose place is 0, 0, which the window system must be told, too
    host.create(second);
    EXPECT_TRUE(host.window_of(second)->testAttribute(Qt::WA_Moved));
}

TEST_F(WindowMirror, APlaceBetweenPixelsIsNotRoundedBehindTheProgramsBack) {
    form.move_to(1007, 503);
    settle();
    QTest::qWait(200);  // a window is taken to rest after a moment
    EXPECT_EQ(form.place(), (Place{1007, 503, 6000, 4405}));
    window->move(120, 80);
    QTest::qWait(200);
    EXPECT_EQ(form.place(), (Place{1800, 1200, 6000, 4405}));
}

TEST_F(WindowMirror, AWindowThatIsHiddenAndShownInOneStepNeverLeavesTheScreen) {
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

TEST_F(WindowMirror, AWindowIsNotResizedWhileTheWindowManagerTakesItUp) {
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

TEST_F(WindowMirror, AnAnimationPaintsOnlyItsOwnCorner) {
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

TEST_F(WindowMirror, WhatChangesFasterThanAScreenShowsIsPaintedWithTheNextPicture) {
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

}  // namespace
}  // namespace zephyne::test
