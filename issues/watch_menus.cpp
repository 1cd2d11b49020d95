#include "issues/watch_menus.h"

namespace {

MenuEntry item(int command, const char* text) {
  return {command, text, {}};
}
MenuEntry separator() {
  return {};
}

}  // namespace

std::vector<MenuEntry> watchContextMenu(WatchTab tab, bool hasAddIssueRight) {
  std::vector<MenuEntry> menu;
  switch (tab) {
    case WatchTab::Current:
      menu = {item(kCmdScripProperties, "Scrip Properties\tShift+F7"),
              item(kCmdBasketOrder, "Basket Order\tCtrl+B"),
              item(kCmdBulkUpload, "Bulk Upload"),
              separator(),
              item(kCmdOrderEntry, "Order Entry\tF1"),
              item(kCmdOrderBook, "Order Book\tF3"),
              separator(),
              item(kCmdMarketDepth, "Market Depth\tF6"),
              separator()};
      if (hasAddIssueRight) {
        menu.push_back(item(kCmdAddIssue, "Add OFS Issue\tCtrl+A"));
        menu.push_back(item(kCmdModifyIssue, "Modify OFS Issue\tCtrl+M"));
        menu.push_back(item(kCmdUploadIssues, "Upload OFS Issue"));
        menu.push_back(item(kCmdExportIssues, "Export All OFS Issues"));
        menu.push_back(separator());
        menu.push_back({0,
                        "OFS Allotment Upload",
                        {item(kCmdAllotmentNse, "NSE"), item(kCmdAllotmentBse, "BSE")}});
        menu.push_back(item(kCmdCancelUnallotted, "Cancel UnAlloted Orders for this Issue"));
        menu.push_back(separator());
      }
      break;
    case WatchTab::Forthcoming:
      if (hasAddIssueRight) menu = {item(kCmdModifyIssue, "Modify OFS Issue\tCtrl+M"), separator()};
      break;
    case WatchTab::Past:
      if (hasAddIssueRight)
        menu = {item(kCmdCancelUnallotted, "Cancel UnAlloted Orders for this Issue"), separator()};
      break;
  }
  return menu;
}

const std::vector<HotkeyRow>& watchHotkeys() {
  // Order entry is registered twice under one number: F1 and the keypad's Plus.
  static const std::vector<HotkeyRow> rows = {
      {"OFS Order Entry", kKeyOrderEntry, "OFSOrderEntry", "F1", false},
      {"OFS Order Entry", kKeyOrderEntry, "OFSOrderEntry", "Plus", false},
      {"OFS Order Book", kKeyOrderBook, "OFSOrderBook", "F3", false},
      {"OFS BM", kKeyBasket, "OFSBM", "Ctrl+B", false},
      {"OFSScrip Prop", kKeyScripProperties, "OFSScripProp", "Shift+F7", false},
      {"Del", kKeyOrderBookDelete, "Order Book", "Delete", false},
      {"OFSMarket Depth", kKeyMarketDepth, "MarketDepth", "F6", false},
      {"Add OFS Issue", kKeyAddIssue, "Add OFS Issue", "Ctrl+A", true},
      {"Modify OFS Issue", kKeyModifyIssue, "Modify OFS Issue", "Ctrl+M", true},
  };
  return rows;
}

int commandForHotkey(int number) {
  switch (number) {
    case kKeyOrderEntry:
      return kCmdOrderEntry;
    case kKeyOrderBook:
      return kCmdOrderBook;
    case kKeyBasket:
      return kCmdBasketOrder;
    case kKeyScripProperties:
      return kCmdScripProperties;
    case kKeyMarketDepth:
      return kCmdMarketDepth;
    case kKeyAddIssue:
      return kCmdAddIssue;
    case kKeyModifyIssue:
      return kCmdModifyIssue;
    default:
      return 0;
  }
}
