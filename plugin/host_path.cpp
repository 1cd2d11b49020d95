#include "plugin/host_path.h"

#include <algorithm>

std::string nativePath(const std::string& hostPath) {
#ifdef _WIN32
  return hostPath;
#else
  std::string path = hostPath;
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
#endif
}

bool hasDirectoryPart(const std::string& hostPath) {
  const size_t last = hostPath.find_last_of("\\/");
  return last != std::string::npos && hostPath.find_first_not_of("\\/") < last;
}
