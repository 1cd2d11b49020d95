#include "plugin/settings_paths.h"

#include <cstdio>

std::string formatPlacement(const WindowPlacement& p) {
  char buffer[128];
  std::snprintf(buffer, sizeof buffer, "%d,%d,%d,%d,%d,%d,%d,%d,%d", p.top, p.left, p.bottom,
                p.right, p.maxX, p.maxY, p.minX, p.minY, p.showState);
  return buffer;
}

std::string watchPlacementPath(const std::string& firstArgument) {
  return firstArgument + "\\" + "\\OFSSettings.ini";
}
