#include "host/plugin_loader.h"

#include <dlfcn.h>

#include <filesystem>

namespace {

template <typename Fn>
void resolve(void* library, const char* name, Fn& slot) {
  slot = reinterpret_cast<Fn>(dlsym(library, name));
}

}  // namespace

LoadedPlugin loadPlugin(const std::string& path, std::string& error) {
  LoadedPlugin plugin;
  plugin.library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!plugin.library) {
    const char* why = dlerror();
    error = "cannot load plug-in " + path + ": " + (why ? why : "unknown error");
    return plugin;
  }
  resolve(plugin.library, "GetVornPluginInfo", plugin.info);
  resolve(plugin.library, "GetOptionalVornPluginInfo", plugin.optionalInfo);
  resolve(plugin.library, "InitVornPlugin", plugin.init);
  resolve(plugin.library, "ExitVornPlugin", plugin.exit);
  resolve(plugin.library, "AlertOn_ClientActivation", plugin.clientActivation);
  resolve(plugin.library, "ApplyFontVarPreference", plugin.fontPreference);
  if (!plugin.info || !plugin.init || !plugin.exit) {
    error = path + " is not a VornTrader plug-in";
    return plugin;
  }
  uint32_t stamp = 0;
  uint32_t level = 0;
  plugin.info(plugin.name, plugin.version, nullptr, &stamp, &level);
  return plugin;
}

std::string defaultPluginPath(const std::string& executablePath) {
  namespace fs = std::filesystem;
  std::error_code ec;
  fs::path exe = fs::canonical(fs::path(executablePath), ec);
  if (ec) exe = fs::path(executablePath);
  return (exe.parent_path().parent_path() / "lib" / "libofsvap.so").string();
}
