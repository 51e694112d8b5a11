// A display that nobody sees, and the programs that live on it.
#pragma once

#include <QElapsedTimer>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <functional>

namespace zephyne::test {

// A program that ends with the object.
class Running {
  public:
    Running(const QString& program, const QStringList& arguments) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(program, arguments);
        started_ = process_.waitForStarted();
    }
    ~Running() {
        process_.kill();
        process_.waitForFinished();
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    bool started() const { return started_; }
    QProcess& process() { return process_; }

  private:
    QProcess process_;
    bool started_ = false;
};

// A notification area for tray icons in the top left corner of the display.
class TrayHost : public Running {
  public:
    TrayHost()
        : Running("trayer", {"--edge", "top", "--align", "left", "--widthtype", "request",
                             "--height", "24"}) {}
};

// Handles events until something is so, for ten seconds at most; whether it is.
bool wait_until(const std::function<bool()>& so);

// The mouse: "click 1" is the left button.
void mouse(int x, int y, const QStringList& then);

}  // namespace zephyne::test
