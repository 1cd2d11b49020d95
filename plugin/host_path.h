// Paths the plug-in builds the host's way, with "\" between their parts, are opened through this
// one function so that the same text names the same file on every system.
#pragma once

#include <string>

// On Windows the path as it stands; elsewhere every "\" becomes "/".
std::string nativePath(const std::string& hostPath);

// True when the path has a folder part before its file name ("\UserSetting.ini" has none: the
// host gave no user directory).
bool hasDirectoryPart(const std::string& hostPath);
