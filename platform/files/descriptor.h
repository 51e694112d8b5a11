// An open file descriptor with an owner.
#pragma once

#include <unistd.h>

#include <utility>

namespace zephyne {

class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() { close(); }

    explicit operator bool() const { return number_ >= 0; }
    int number() const { return number_; }
    int release() { return std::exchange(number_, -1); }

    // False, with errno set, when the system reports an error that it kept until now.
    bool close() {
        const int closed = release();
        return closed < 0 || ::close(closed) == 0;
    }

  private:
    int number_ = -1;
};

}  // namespace zephyne
