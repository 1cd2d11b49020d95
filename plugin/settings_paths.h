// Where and how the plug-in's layout memory is written.
#pragma once

#include <string>

// The watch view's window placement: normal position, maximised and minimised positions, and
// the show state (1 normal, 2 minimised, 3 maximised).
struct WindowPlacement {
  int top = 0;
  int left = 0;
  int bottom = 0;
  int right = 0;
  int maxX = -1;
  int maxY = -1;
  int minX = -1;
  int minY = -1;
  int showState = 1;
};

inline constexpr const char* kPlacementSection = "DIALOG_POSITION";
inline constexpr const char* kPlacementKey = "OFSWatchView";

// Nine integers: top before left and bottom before right, as the file always had them.
std::string formatPlacement(const WindowPlacement& p);
// The host's first command-line argument, a backslash, then "\OFSSettings.ini": the doubled
// separator and the file named after the executable's path are the file's established place.
std::string watchPlacementPath(const std::string& firstArgument);

// Organisation and application of the frame's docking layout.
inline constexpr const char* kLayoutOrganisation = "Irbesys Technologies";
inline constexpr const char* kLayoutApplication = "Vorn_Plugins_OFS";

// Writes `key=value` into `[section]` of an ini file the way the platform's private-profile
// write does: the value as it stands (no quoting), other sections and keys kept, the section
// added at the end when missing. Written to a temporary file and renamed over the target.
// False when the file cannot be written.
bool writeProfileString(const std::string& path, const std::string& section, const std::string& key,
                        const std::string& value);
