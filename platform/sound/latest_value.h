// Hands the newest value of something from one thread to one other, without a lock and without
// either ever waiting. Values in between are lost, which is what is wanted of a wish or a state.
//
// Three copies go round: one belongs to the writer, one to the reader, one lies between them.
#pragma once

#include <array>
#include <atomic>

namespace zephyne {

template <typename Value>
class LatestValue {
  public:
    void write(const Value& value) {  // the writing thread
        slots_[writers_] = value;
        writers_ = middle_.exchange(writers_ | kFresh, std::memory_order_acq_rel) & ~kFresh;
    }

    // The newest value; the same again when nothing new has come. It stays as it is until the
    // next call. The reading thread.
    const Value& read() {
        if (fresh()) {
            readers_ = middle_.exchange(readers_, std::memory_order_acq_rel) & ~kFresh;
        }
        return slots_[readers_];
    }

    // Has something been written that was not read yet? Any thread.
    bool fresh() const { return (middle_.load(std::memory_order_acquire) & kFresh) != 0; }

  private:
    static constexpr unsigned kFresh = 4;

    std::array<Value, 3> slots_{};
    unsigned writers_ = 0;
    std::atomic<unsigned> middle_{1};
    unsigned readers_ = 2;
};

}  // namespace zephyne
