#include "plugin/settings_paths.h"

#include <cctype>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <vector>

#include "domain/file_replace.h"
#include "plugin/host_path.h"

std::string formatPlacement(const WindowPlacement& p) {
  char buffer[128];
  std::snprintf(buffer, sizeof buffer, "%d,%d,%d,%d,%d,%d,%d,%d,%d", p.top, p.left, p.bottom,
                p.right, p.maxX, p.maxY, p.minX, p.minY, p.showState);
  return buffer;
}

std::string watchPlacementPath(const std::string& firstArgument) {
  return firstArgument + "\\" + "\\OFSSettings.ini";
}

namespace {

std::string trimmed(const std::string& text) {
  const size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

bool sameName(const std::string& a, const std::string& b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (std::tolower(static_cast<unsigned char>(a[i])) !=
        std::tolower(static_cast<unsigned char>(b[i])))
      return false;
  return true;
}

}  // namespace

bool writeProfileString(const std::string& hostPath, const std::string& section,
                        const std::string& key, const std::string& value) {
  const std::string path = nativePath(hostPath);
  std::vector<std::string> lines;
  {
    std::ifstream in(path);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
  }
  const std::string entry = key + "=" + value;
  bool inSection = false;
  size_t sectionEnd = lines.size();
  bool sectionFound = false;
  bool written = false;
  for (size_t i = 0; i < lines.size() && !written; ++i) {
    const std::string line = trimmed(lines[i]);
    if (line.size() >= 2 && line.front() == '[' && line.back() == ']') {
      if (inSection) {
        sectionEnd = i;
        break;
      }
      inSection = sameName(line.substr(1, line.size() - 2), section);
      sectionFound = sectionFound || inSection;
      continue;
    }
    const size_t eq = line.find('=');
    if (inSection && eq != std::string::npos && sameName(trimmed(line.substr(0, eq)), key)) {
      lines[i] = entry;
      written = true;
    }
  }
  if (!written && sectionFound) {
    // Keys go after the section's last non-blank line.
    size_t at = sectionEnd;
    while (at > 0 && trimmed(lines[at - 1]).empty()) --at;
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), entry);
  } else if (!written) {
    lines.push_back("[" + section + "]");
    lines.push_back(entry);
  }
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return writeTextFile(path, text) == TextFileWrite::Written;
}
