// Loads a plug-in library and finds its entry points by name, as the terminal always has.
#pragma once

#include <string>

#include "sdk/plugin_exports.h"

struct LoadedPlugin {
  void* library = nullptr;
  decltype(&GetVornPluginInfo) info = nullptr;
  decltype(&GetOptionalVornPluginInfo) optionalInfo = nullptr;
  decltype(&InitVornPlugin) init = nullptr;
  decltype(&ExitVornPlugin) exit = nullptr;
  decltype(&AlertOn_ClientActivation) clientActivation = nullptr;
  decltype(&ApplyFontVarPreference) fontPreference = nullptr;

  std::string name;
  std::string version;
  bool running = false;
};

// Empty `error` on success.
LoadedPlugin loadPlugin(const std::string& path, std::string& error);
// The plug-in next to this executable: ../lib/libofsvap.so.
std::string defaultPluginPath(const std::string& executablePath);
