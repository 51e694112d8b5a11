// Reads the system's fonts on a thread of its own while the application starts, because the first
// text of the window would else wait for that.
#pragma once

#include <thread>

namespace zephyne {

class FontPreparation {
  public:
    FontPreparation();
    ~FontPreparation() { wait(); }
    FontPreparation(const FontPreparation&) = delete;
    FontPreparation& operator=(const FontPreparation&) = delete;

    // Until it is done. To be called before the first window is built.
    void wait();

  private:
    std::thread thread_;
};

}  // namespace zephyne
