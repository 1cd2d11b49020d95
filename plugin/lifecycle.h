// Start, run-time notifications and shutdown of the plug-in, behind the exported entry points.
#pragma once

#include <cstdint>
#include <string>

#include "plugin/plugin_platform.h"
#include "sdk/host_app.h"

// Creates the control block when the host is compatible and the user may use the plug-in.
bool compatibilityCheck(PluginPlatform& platform);
void initPlugin(PluginPlatform& platform, IVornHostApp* app, const std::string& userId,
                uint32_t loginKind);
void exitPlugin(PluginPlatform& platform);
// 0 before initialisation; otherwise remembers the client and filters the order book to it.
int activateClient(const std::string& clientId);
void applyFontPreference(int64_t* variation, int64_t* stamp);

// The client the host made active last (empty: no filter).
const std::string& activeClient();
