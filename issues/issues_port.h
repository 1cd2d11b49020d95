// What the issue screens (watch view, market depth) need of the running plug-in. The control
// block implements it; tests may replace it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "domain/prompt_port.h"
#include "domain/records.h"
#include "issues/watch_menus.h"
#include "messaging/market_depth_state.h"
#include "messaging/message_layer.h"
#include "sdk/rx_control.h"

class CWatchView;

class IssuesPort {
 public:
  virtual MessageLayer& messageLayer() = 0;
  // A receive control of `kind` from the host, notifying the plug-in; null without the service.
  virtual IIrbeRxControl* obtainRxControl(int kind) = 0;
  virtual void releaseRxControl(IIrbeRxControl* control) = 0;
  // The watch view that hears of new issues and prices; null when it is gone.
  virtual void attachWatchView(CWatchView* view) = 0;
  virtual CWatchView* attachedWatchView() const = 0;
  // Seconds since 1970 by the clock the plug-in reads.
  virtual int64_t now() const = 0;
  // Whether the user holds the right "VT: Add OFS Issue".
  virtual bool hasAddIssueRight() = 0;
  virtual PromptPort& prompt() = 0;
  // The host's own message box and tabbed log; nothing happens without the service.
  virtual void hostMessageBox(const std::string& text) const = 0;
  virtual void log(const std::string& line) const = 0;
  // Registers one shortcut with the host for `window`; false when the host cannot register.
  virtual bool registerHotkey(void* window, const HotkeyRow& row) = 0;
  // The Market Depth window's state: present while the window is open.
  virtual std::unique_ptr<MarketDepthState>& marketDepthState() = 0;
  // Every issue the plug-in knows, in the order the issue lists brought them.
  virtual std::vector<const sOFSCol*> knownIssues() const = 0;
  // Subscribes the price feed of an instrument once; later calls do nothing.
  virtual void ensurePriceFeed(const std::string& exchange, const std::string& symbol) = 0;
  // The depth kept since the instrument's price feed was subscribed, or null. A port without
  // price feeds keeps none.
  virtual const MarketDepthState* feedDepthOf(const std::string& /*exchange*/,
                                              const std::string& /*symbol*/) const {
    return nullptr;
  }

 protected:
  ~IssuesPort() = default;
};
