// Writes a WAVE file (RIFF, 16-bit PCM, stereo, 44100 frames a second), so that it is a whole file
// at every moment, up to about the last second, even if the program is killed.
#pragma once

#include "platform/files/descriptor.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zephyne {

// Used by one thread at a time.
class WaveFileWriter {
  public:
    // Begins a new file, over an old one of the name. nullptr when that is not possible, or the
    // name is that of a pipe, socket or device.
    static std::unique_ptr<WaveFileWriter> create(const std::string& path);

    ~WaveFileWriter();
    WaveFileWriter(const WaveFileWriter&) = delete;
    WaveFileWriter& operator=(const WaveFileWriter&) = delete;

    // Appends frames, cut off beyond full scale. What the file cannot take (the disk is full, or
    // its 4 GiB are) is lost.
    void write(const float* left, const float* right, int frames);

    // Brings the sizes in the header up to date.
    void update_header();

  private:
    explicit WaveFileWriter(Descriptor file) : file_(std::move(file)) {}
    bool put(const std::vector<std::uint8_t>& bytes, std::uint64_t at);

    Descriptor file_;
    std::uint64_t data_size_ = 0;
    std::uint64_t size_in_header_ = 0;
    std::vector<std::uint8_t> bytes_;
};

}  // namespace zephyne
