// The plug-in's exported entry points, looked up by the host by name.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sdk/host_app.h"

#define VAP_EXPORT __attribute__((visibility("default")))

extern "C" {

// Name, version, build stamp and interface level of the plug-in. Returns 1.
VAP_EXPORT int GetVornPluginInfo(std::string& name, std::string& version, void* reserved,
                                 uint32_t* buildStamp, uint32_t* interfaceLevel);
// The menu group caption and the rights the plug-in asks for, appended to `entries`.
VAP_EXPORT void GetOptionalVornPluginInfo(std::string& groupCaption,
                                          std::vector<std::string>& entries);
// Starts the plug-in for the logged-in user. Success shows only as the plug-in's frame.
VAP_EXPORT int InitVornPlugin(IVornHostApp* app, const std::string& userId, uint32_t loginKind,
                              void* reserved);
VAP_EXPORT void ExitVornPlugin();
// Does nothing; answers arrive through the receive controls. Returns 0.
VAP_EXPORT int ProcessVornPluginMsg(void* msg);
// The host made a client active: filters the order book to it. 0 before initialisation.
VAP_EXPORT int AlertOn_ClientActivation(const std::string& clientId, void* reserved1,
                                        void* reserved2);
// The host's fonts changed; the arguments go on to pu_get_FontVariation.
VAP_EXPORT void ApplyFontVarPreference(int64_t* variation, int64_t* stamp);
VAP_EXPORT const char* GetBCGCBProVersion();
VAP_EXPORT int32_t ConvertRupeestoPaise(const char* rupees, int32_t decimals, int32_t multiplier);
VAP_EXPORT int32_t vornu_get_formatted_month_in_number(const char* month);

}  // extern "C"
