// Feeds arbitrary bytes through the same path as the velarix command: the
// bytes are the script, read from standard input.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <sstream>
#include <string>

#include "velarix/vxCommand.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string base = [] {
        auto dir = std::filesystem::temp_directory_path() / "velarix-fuzz";
        std::filesystem::create_directories(dir);
        return dir.string();
    }();
    Velarix::vxCommandOptions options;
    options.base = base;
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
    std::ostringstream out;
    std::ostringstream err;
    Velarix::vxRunCommand(options, in, out, err);
    // Files the script wrote are removed, so that every run starts alike.
    std::error_code ignored;
    for (const auto& entry : std::filesystem::directory_iterator(base, ignored)) {
        std::filesystem::remove_all(entry.path(), ignored);
    }
    return 0;
}
