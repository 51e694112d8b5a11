// Two worlds of files that must not differ: a real folder, and the one that the logic is tested
// with.
#pragma once

#include "platform/files/posix_file_system.h"
#include "temporary_folder.h"
#include "tests/support/memory_file_system.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>

namespace zephyne::test {

using Names = std::vector<std::string>;

template <class T>
std::string error_of(const FileResult<T>& result) {
    return result ? "none" : result.error().description;
}

// What the file holds, or "(why it cannot be read)".
inline std::string read(const FileSystem& files, const std::string& path) {
    const auto contents = files.read_file(path, 1'000'000);
    return contents ? *contents : "(" + error_of(contents) + ")";
}

// What only a real disk can show.
class OnRealDisk : public testing::Test {
  protected:
    std::string path(const std::string& name) const { return disk_.path(name); }
    std::string read(const std::string& name) const { return test::read(files_, path(name)); }

    TemporaryFolder disk_;
    PosixFileSystem files_;
};

enum class Kept { on_disk, in_memory };

// The fixture of what holds in both; the same is built in each.
class InBothWorlds : public testing::TestWithParam<Kept> {
  protected:
    std::string path(const std::string& name) const { return disk_.path(name); }
    void add_file(const std::string& name, const std::string& contents = {}) {
        disk_.add_file(name, contents);
        memory_.add_file(path(name), contents);
    }
    void add_folder(const std::string& name) {
        disk_.add_folder(name);
        memory_.add_folder(path(name));
    }
    void add_pipe(const std::string& name) {
        ::mkfifo(path(name).c_str(), 0600);
        memory_.add_file(path(name), "", FileKind::pipe);
    }
    void add_dangling_link(const std::string& name) {
        std::filesystem::create_symlink("nowhere", path(name));
        memory_.add_file(path(name), "", FileKind::dangling_link);
    }

    std::string read(const std::string& name) const { return test::read(files_, path(name)); }
    std::string resolved(const std::string& path) const {
        const auto real = files_.resolve(path);
        return real ? *real : "(" + error_of(real) + ")";
    }
    std::string write(const std::string& name, const std::string& text) {
        const auto file = files_.create_file(path(name));
        if (!file) return "(" + error_of(file) + ")";
        EXPECT_TRUE((*file)->write(text));
        EXPECT_TRUE((*file)->close());
        return read(name);
    }
    Names listed(const std::string& folder = ".") const {
        Names names = files_.list_files(path(folder)).value_or(Names{"an error"});
        std::sort(names.begin(), names.end());
        return names;
    }

    TemporaryFolder disk_;
    PosixFileSystem posix_;
    MemoryFileSystem memory_{PathStyle::posix, disk_.root};
    FileSystem& files_ = GetParam() == Kept::on_disk ? static_cast<FileSystem&>(posix_) : memory_;
};

inline const auto kBothWorlds = testing::Values(Kept::on_disk, Kept::in_memory);

// A disk on which no file grows beyond a thousand bytes.
class SmallDisk {
  public:
    SmallDisk() {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{1000, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        ::signal(SIGXFSZ, old_action_);
    }

  private:
    rlimit before_{};
    void (*old_action_)(int) = ::signal(SIGXFSZ, SIG_IGN);
};

}  // namespace zephyne::test
