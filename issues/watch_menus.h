// The watch view's context menus, its shortcuts and the command numbers they share.
#pragma once

#include <string>
#include <vector>

enum WatchCommand : int {
  kCmdOrderEntry = 4,
  kCmdOrderBook = 5,
  kCmdBasketOrder = 6,
  kCmdScripProperties = 7,
  kCmdMarketDepth = 8,
  kCmdBulkUpload = 9,
  kCmdModifyIssue = 10,
  kCmdAddIssue = 11,
  kCmdAllotmentNse = 20,
  kCmdAllotmentBse = 21,
  kCmdCancelUnallotted = 22,
  kCmdExportIssues = 24,
  kCmdUploadIssues = 30,
};

enum class WatchTab : int { Current = 0, Forthcoming = 1, Past = 2 };

struct MenuEntry {
  int command = 0;               // 0 for a separator or a sub-menu
  std::string text;              // the item text, or the sub-menu's title
  std::vector<MenuEntry> items;  // a sub-menu's items

  bool isSeparator() const { return command == 0 && text.empty(); }
};

std::vector<MenuEntry> watchContextMenu(WatchTab tab, bool hasAddIssueRight);

struct HotkeyRow {
  const char* caption;
  int number;
  const char* name;
  const char* key;
  bool needsAddIssueRight;
};

inline constexpr const char* kHotkeyOwner = "OFSWatchView";
const std::vector<HotkeyRow>& watchHotkeys();

enum WatchHotkey : int {
  kKeyOrderEntry = 100,
  kKeyOrderBook = 200,
  kKeyBasket = 500,
  kKeyScripProperties = 600,
  kKeyOrderBookDelete = 1000,
  kKeyMarketDepth = 1100,
  kKeyAddIssue = 1500,
  kKeyModifyIssue = 1600,
};

// The menu command a shortcut number stands for; 0 when it has none (the order book's Delete).
int commandForHotkey(int number);
