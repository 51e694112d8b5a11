// Two worlds of files that must not differ: a real folder, and the one that the logic is tested
// with.
#pragma once

#include "platform/files/posix_file_system.h"
#include "tests/support/memory_file_system.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace zephyne::test {

using Names = std::vector<std::string>;

class OnDisk {
  public:
    OnDisk() {
        std::string pattern = testing::TempDir() + "zephyne-files-XXXXXX";
        root = std::filesystem::canonical(::mkdtemp(pattern.data())).native();
    }
    ~OnDisk() { std::filesystem::remove_all(root); }

    void add_file(const std::string& name, const std::string& contents) const {
        std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
        std::ofstream(path(name), std::ios::binary) << contents;
    }
    void add_folder(const std::string& name) const {
        std::filesystem::create_directories(path(name));
    }
    void add_pipe(const std::string& name) const { ::mkfifo(path(name).c_str(), 0600); }
    void add_dangling_link(const std::string& name) const {
        std::filesystem::create_symlink("nowhere", path(name));
    }
    std::string path(const std::string& name) const { return root + "/" + name; }

    std::string root;
    PosixFileSystem files;
};

class InMemory {
  public:
    void add_file(const std::string& name, const std::string& contents) {
        files.add_file(path(name), contents);
    }
    void add_folder(const std::string& name) { files.add_folder(path(name)); }
    void add_pipe(const std::string& name) { files.add_file(path(name), "", FileKind::pipe); }
    void add_dangling_link(const std::string& name) {
        files.add_file(path(name), "", FileKind::dangling_link);
    }
    std::string path(const std::string& name) const { return root + "/" + name; }

    std::string root = "/home/clara/music";
    MemoryFileSystem files{PathStyle::posix, root};
};

// The fixture of what holds in both.
template <class World>
class InBothWorlds : public testing::Test {
  protected:
    std::string read(const std::string& name) {
        const auto contents = world_.files.read_file(world_.path(name), 1000);
        return contents ? *contents : "(" + contents.error().description + ")";
    }
    std::string resolved(const std::string& path) {
        const auto real = world_.files.resolve(path);
        return real ? *real : "(" + real.error().description + ")";
    }
    std::string write(const std::string& name, const std::string& text) {
        const auto file = world_.files.create_file(world_.path(name));
        if (!file) return "(" + file.error().description + ")";
        EXPECT_TRUE((*file)->write(text));
        EXPECT_TRUE((*file)->close());
        return read(name);
    }
    Names listed(FileResult<Names> names) {
        if (!names) return {"(" + names.error().description + ")"};
        std::sort(names->begin(), names->end());
        return *names;
    }

    World world_;
};

using Worlds = testing::Types<OnDisk, InMemory>;

// What only a real disk can show.
class OnRealDisk : public testing::Test {
  protected:
    OnDisk disk_;
};

}  // namespace zephyne::test
