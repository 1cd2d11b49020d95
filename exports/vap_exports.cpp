// The plug-in's exported entry points: the one place where the core meets Qt. Everything else
// of the library is hidden.
#include <cstdio>

#include <QtGlobal>

#include "domain/prices.h"
#include "plugin/lifecycle.h"
#include "plugin/plugin_identity.h"
#include "sdk/plugin_exports.h"
#include "ui/qt_platform.h"

extern "C" {

int GetVornPluginInfo(std::string& name, std::string& version, void*, uint32_t* buildStamp,
                      uint32_t* interfaceLevel) {
  name = kPluginName;
  version = kPluginVersion;
  if (buildStamp) *buildStamp = kPluginBuildStamp;
  if (interfaceLevel) *interfaceLevel = kPluginInterfaceLevel;
  return 1;
}

void GetOptionalVornPluginInfo(std::string& groupCaption, std::vector<std::string>& entries) {
  groupCaption = kMenuGroupCaption;
  entries.push_back(std::string(kRightGroup) + ": " + kRightOfs);
  entries.push_back(kAddIssueRight);
}

int InitVornPlugin(IVornHostApp* app, const std::string& userId, uint32_t loginKind, void*) {
  initPlugin(qtPlatform(), app, userId, loginKind);
  return 0;
}

void ExitVornPlugin() {
  exitPlugin(qtPlatform());
}

int ProcessVornPluginMsg(void*) {
  return 0;
}

int AlertOn_ClientActivation(const std::string& clientId, void*, void*) {
  return activateClient(clientId);
}

void ApplyFontVarPreference(int64_t* variation, int64_t* stamp) {
  applyFontPreference(variation, stamp);
}

const char* GetBCGCBProVersion() {
  return QT_VERSION_STR;
}

int32_t ConvertRupeestoPaise(const char* rupees, int32_t decimals, int32_t multiplier) {
  return convertRupeesToPaise(rupees, decimals, multiplier);
}

int32_t vornu_get_formatted_month_in_number(const char* month) {
  return monthNumber(month);
}

}  // extern "C"
