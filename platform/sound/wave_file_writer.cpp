#include "platform/sound/wave_file_writer.h"

#include "platform/sound/sample_time.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <string_view>

namespace zephyne {
namespace {

constexpr std::uint64_t kHeaderSize = 44;
constexpr std::uint64_t kFrameSize = 4;
constexpr std::uint64_t kLargestData = 0xFFFFFFFF - kHeaderSize;

void add_number(std::vector<std::uint8_t>& bytes, std::uint64_t value, int size) {
    for (int i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> 8 * i));
}

void add_name(std::vector<std::uint8_t>& bytes, std::string_view name) {
    for (const char letter : name) bytes.push_back(static_cast<std::uint8_t>(letter));
}

void add_sample(std::vector<std::uint8_t>& bytes, float sample) {
    const long value = std::lround(std::clamp(sample, -1.0F, 1.0F) * 32767.0F);
    add_number(bytes, static_cast<std::uint64_t>(value), 2);
}

std::vector<std::uint8_t> header(std::uint64_t data_size) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(kHeaderSize);
    add_name(bytes, "RIFF");
    add_number(bytes, kHeaderSize - 8 + data_size, 4);
    add_name(bytes, "WAVEfmt ");
    add_number(bytes, 16, 4);
    add_number(bytes, 1, 2);  // PCM
    add_number(bytes, 2, 2);  // sides
    add_number(bytes, kFramesPerSecond, 4);
    add_number(bytes, kFramesPerSecond * kFrameSize, 4);
    add_number(bytes, kFrameSize, 2);
    add_number(bytes, 16, 2);  // bits in a sample
    add_name(bytes, "data");
    add_number(bytes, data_size, 4);
    return bytes;
}

}  // namespace

std::unique_ptr<WaveFileWriter> WaveFileWriter::create(const std::string& path) {
    constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    Descriptor file(::open(path.c_str(), kFlags, 0666));
    struct stat status = {};
    if (!file || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode)) return nullptr;
    std::unique_ptr<WaveFileWriter> writer(new WaveFileWriter(std::move(file)));
    if (!writer->put(header(0), 0)) return nullptr;
    return writer;
}

WaveFileWriter::~WaveFileWriter() {
    update_header();
}

void WaveFileWriter::write(const float* left, const float* right, int frames) {
    bytes_.clear();
    for (int i = 0; i < frames; ++i) {
        add_sample(bytes_, left[i]);
        add_sample(bytes_, right[i]);
    }
    if (data_size_ + bytes_.size() > kLargestData) return;
    if (put(bytes_, kHeaderSize + data_size_)) data_size_ += bytes_.size();
    if (data_size_ - size_in_header_ >= kFrameSize * kFramesPerSecond) update_header();
}

void WaveFileWriter::update_header() {
    if (put(header(data_size_), 0)) size_in_header_ = data_size_;
}

bool WaveFileWriter::put(const std::vector<std::uint8_t>& bytes, std::uint64_t at) {
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t count = ::pwrite(file_.number(), bytes.data() + done, bytes.size() - done,
                                       static_cast<off_t>(at + done));
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        done += static_cast<std::size_t>(count);
    }
    return true;
}

}  // namespace zephyne
