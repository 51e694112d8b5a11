// Profile files on the file system; how they are read and changed is in core/text/profile_text.h.
#pragma once

#include "core/ports/file_system.h"
#include "core/ports/profile_file.h"

namespace zephyne {

class ProfileStrings final : public ProfileFile {
  public:
    explicit ProfileStrings(FileSystem& files) : files_(files) {}

    // A value that is no UTF-8 is read as Windows-1252.
    std::string get_string(const std::string& path, const std::string& section,
                           const std::string& key, const std::string& otherwise,
                           std::size_t longest) const override;

    bool write_string(const std::string& path, const std::string& section, const std::string& key,
                      const std::string& value) override;

  private:
    FileSystem& files_;
};

}  // namespace zephyne
