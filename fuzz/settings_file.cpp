// Settings files of any bytes: what has been read and written twice stays the same. (The first
// time may leave out a time of 0, which then comes back as its default.)
#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/settings_file.h"
#include "tests/support/fakes.h"
#include "tests/support/memory_file_system.h"
#include "tests/support/virtual_time.h"

using namespace zephyne;

namespace {

std::string read_and_write(MemoryFileSystem& files, const std::string& text) {
    files.add_file("/zephyne/zephyne.ini", text);
    test::VirtualClock clock;
    Scheduler scheduler(clock);
    test::Log log;
    test::ScriptedMessages messages(log);
    Form1 form(files, scheduler);
    Program program;
    program.folders.own = "/zephyne";
    ReadSettings(program, form, files);
    WriteSettings(program, form, files, messages);
    return files.contents("/zephyne/zephyne.ini").value_or("");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MemoryFileSystem files(PathStyle::posix, "/music");
    const std::string once =
        read_and_write(files, std::string(reinterpret_cast<const char*>(data), size));
    const std::string twice = read_and_write(files, once);
    if (read_and_write(files, twice) != twice) std::abort();
    return 0;
}
