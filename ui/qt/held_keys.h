// Tells the repetitions of a held key from new presses, where Qt takes the one for the other.
//
// On X11 a held key repeats as a release and a press with one time stamp. Qt marks the two as a
// repetition only if the press has been read already when it handles the release, which it often
// has not: a held Enter would then press OK, what opened next, and so on.
#pragma once

#include <QObject>
#include <cstdint>

namespace zephyne {

class HeldKeys final : public QObject {
  public:
    // Watches the windows of the application, which must be there, until it is destroyed.
    HeldKeys();

    // A press at the very moment at which the same key was released goes to the window as what it
    // is, with isAutoRepeat() true.
    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    std::uint32_t released_key_ = 0;  // scan code of the key released last; 0: none
    std::uint64_t released_at_ = 0;   // ms, on the clock of the events
};

}  // namespace zephyne
