// A folder of its own on the real disk, gone at the end.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace zephyne::test {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string pattern = std::filesystem::temp_directory_path() / "zephyne-test-XXXXXX";
        root = std::filesystem::canonical(::mkdtemp(pattern.data()));
    }
    ~TemporaryFolder() { std::filesystem::remove_all(root); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path(const std::string& name) const { return root + "/" + name; }

    // Makes missing folders on the way, too, and returns the path.
    std::string add_file(const std::string& name, const std::string& contents = {}) const {
        std::filesystem::create_directories(std::filesystem::path(path(name)).parent_path());
        std::ofstream(path(name), std::ios::binary) << contents;
        return path(name);
    }
    void add_folder(const std::string& name) const {
        std::filesystem::create_directories(path(name));
    }

    std::string root;
};

}  // namespace zephyne::test
