// Any bytes as an existing settings file, into which one entry is written: the entry is there
// afterwards, and every other line of the file is kept.
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "plugin/settings_paths.h"

namespace {

// One scratch folder for the whole run, removed when the process ends.
const std::string& scratchFile() {
  static const std::string file = [] {
    std::string pattern = (std::filesystem::temp_directory_path() / "ofs-fuzz-XXXXXX").string();
    if (!mkdtemp(pattern.data())) std::abort();
    static const std::string folder = pattern;
    std::atexit([] { std::filesystem::remove_all(folder); });
    return folder + "/OFSSettings.ini";
  }();
  return file;
}

size_t lineCount(const std::string& text) {
  size_t lines = 0;
  for (size_t start = 0; start < text.size(); ++lines) {
    const size_t end = text.find('\n', start);
    start = end == std::string::npos ? text.size() : end + 1;
  }
  return lines;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string before(reinterpret_cast<const char*>(data), size);
  const std::string& path = scratchFile();
  std::ofstream(path, std::ios::binary) << before;
  if (!writeProfileString(path, "Placement", "Rect", "1,2,3,4")) std::abort();
  std::ifstream in(path, std::ios::binary);
  const std::string after((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (after.find("Rect=1,2,3,4\n") == std::string::npos) __builtin_trap();
  const size_t grown = lineCount(after) - lineCount(before);
  if (lineCount(after) < lineCount(before) || grown > 2) __builtin_trap();
  return 0;
}
