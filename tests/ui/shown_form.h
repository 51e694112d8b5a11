// A form in its window, on a screen that nobody sees.
#pragma once

#include "tests/support/fakes.h"
#include "ui/qt/form_window.h"
#include "ui/qt/qt_window_host.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <utility>

namespace zephyne::test {

// Lets all go through that is under way, with no time passing.
inline void settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

// `Sample` is a form that writes its events into its `log`.
template <class Sample>
class ShownForm : public testing::Test {
  protected:
    void SetUp() override {
        host.create(form);
        form.load();
        form.set_visible(true);
        window = host.window_of(form);
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        taken();
    }

    template <class Widget = QWidget>
    Widget* widget(const Control& control) const {
        for (Widget* child : window->template findChildren<Widget*>()) {
            if (child->accessibleName().toStdString() == control.accessible_name()) return child;
        }
        return nullptr;
    }

    // What has been raised since the last call.
    Log taken() {
        settle();
        return std::exchange(form.log, {});
    }

    QtWindowHost host{1};
    Sample form;
    FormWindow* window = nullptr;
};

}  // namespace zephyne::test
