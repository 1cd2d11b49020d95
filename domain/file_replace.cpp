#include "domain/file_replace.h"

#include <cstdio>

TextFileWrite writeTextFile(const std::string& path, std::string_view text) {
  const std::string temporary = path + ".tmp";
  std::FILE* out = std::fopen(temporary.c_str(), "wb");
  if (!out) return TextFileWrite::OpenFailed;
  const bool written = std::fwrite(text.data(), 1, text.size(), out) == text.size();
  const bool closed = std::fclose(out) == 0;
  if (written && closed && std::rename(temporary.c_str(), path.c_str()) == 0)
    return TextFileWrite::Written;
  std::remove(temporary.c_str());
  return TextFileWrite::WriteFailed;
}
