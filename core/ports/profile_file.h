// Small settings files of sections and keys, read and written one value at a time. Each call reads
// the file anew. User-interface thread only.
#pragma once

#include <cstddef>
#include <string>

namespace zephyne {

class ProfileFile {
  public:
    virtual ~ProfileFile() = default;

    // The value, as UTF-8 and cut to `longest` characters; `otherwise` when file, section or key
    // is missing or the file cannot be read.
    virtual std::string get_string(const std::string& path, const std::string& section,
                                   const std::string& key, const std::string& otherwise,
                                   std::size_t longest) const = 0;

    // Writes one value, and makes file and section where they are missing. False when that fails;
    // a file that may not be written, or cannot be read, keeps its contents.
    virtual bool write_string(const std::string& path, const std::string& section,
                              const std::string& key, const std::string& value) = 0;
};

}  // namespace zephyne
