// Keyboard and font set-up shared by the plug-in's windows.
#pragma once

#include <array>
#include <cstdint>

class QObject;
class QWidget;

// Tab order follows the reading order of the window's layouts (row by row, left to right;
// read-only fields are passed), and a field takes its label's text as its accessible name
// (the name the refusals use to put the focus on it). A list without a name takes its object
// name; a window should name its lists by their titles.
void setUpKeyboard(QWidget* window);

// The host's font variation is a change in points from the terminal's own font size, applied
// to the window and to every control with a font of its own (a heading); the result stays
// between kMinFontPoints and kMaxFontPoints. The window grows when its contents need more
// room, and never shrinks for it.
inline constexpr int kMinFontPoints = 6;
inline constexpr int kMaxFontPoints = 28;
void applyFontVariation(QWidget* window, int64_t variation, int64_t stamp);

// The plug-in's windows that follow the host's fonts, in the order they are re-applied.
inline constexpr const char* kFontFollowingWindows[] = {"OrderEntry", "BulkUpload", "IssueDetails",
                                                        "ModifyPrice", "MarketDepth"};
// A window made after the host's fonts changed starts with them.
void followHostFonts(QWidget* window, const std::array<int64_t, 2>& hostVariation);
// Re-applies the variation to each of those windows that exists under `root`.
void reapplyWindowFonts(QObject* root, int64_t variation, int64_t stamp);
