// The tray icon in a real notification area, on a display of its own.
#include "tests/tray/display.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCoreApplication>
#include <cstdio>

namespace zephyne::test {

bool wait_until(const std::function<bool()>& so) {
    constexpr int too_long = 10'000;
    QElapsedTimer time;
    time.start();
    while (!so()) {
        if (time.elapsed() > too_long) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
        QProcess::execute("sleep", {"0.02"});
    }
    return true;
}

void mouse(int x, int y, const QStringList& then) {
    QProcess::execute("xdotool",
                      QStringList{"mousemove", QString::number(x), QString::number(y)} << then);
}

}  // namespace zephyne::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    zephyne::test::Running display(
        "Xvfb", {"-displayfd", "1", "-screen", "0", "800x600x24", "-nolisten", "tcp"});
    if (!display.started() || !display.process().waitForReadyRead(20'000)) {
        return std::fputs("There is no Xvfb to test on.\n", stderr), 1;
    }
    qputenv("DISPLAY", ":" + display.process().readLine().trimmed());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
