// Who the plug-in says it is, and the rights it asks for.
#pragma once

#include <cstdint>

inline constexpr const char* kPluginName = "BUDRER";
inline constexpr const char* kPluginVersion = "3.14.8.3";
inline constexpr uint32_t kPluginBuildStamp = 29032010;
inline constexpr uint32_t kPluginInterfaceLevel = 12;
inline constexpr const char* kMenuGroupCaption = "VT";
// The use right is built as "%s: %s" of these two parts.
inline constexpr const char* kRightGroup = "VT";
inline constexpr const char* kRightOfs = "OFS";
inline constexpr const char* kAddIssueRight = "VT: Add OFS Issue";
inline constexpr uint32_t kScratchCapacity = 32768;
inline constexpr int kDocTemplateResourceId = 183;
