// What the response dispatcher needs of the control block: its records, its lists, its ports
// to the host and the windows it tells of news. One line on each, for the implementer.
#pragma once

#include <memory>
#include <string>

#include "domain/order_book_lists.h"
#include "domain/record_maps.h"
#include "messaging/market_depth_state.h"
#include "messaging/message_layer.h"

class DispatchContext {
 public:
  // The otp_* table answers are read through.
  virtual const OtpOps& otp() = 0;
  // The record maps and the issue symbol and placed-order lists.
  virtual OFSRecords& records() = 0;
  // The order book's open and closed lists.
  virtual OrderBookLists& orderBook() = 0;
  // Where follow-up requests (issue lists, asset price) are sent.
  virtual MessageLayer& messageLayer() = 0;
  // One line to the host's tabbed log (pu_add_to_tabbed_log).
  virtual void tabbedLog(const std::string& line) = 0;
  // A modal message box with the text alone.
  virtual void messageBox(const std::string& text) = 0;
  // Whether the user holds the right "VT: Add OFS Issue".
  virtual bool hasAddIssueRight() = 0;
  // The user's default PCode, shown for a placement answered without one.
  virtual std::string defaultPCode() = 0;
  // Keeps the text of the last peer-data answer.
  virtual void storePeerData(const std::string& text) = 0;

  // The watch view places a new issue on its tab.
  virtual void issueAdded(sOFSCol& issue) = 0;
  // The watch view learns that an underlying's price is known for the first time.
  virtual void assetFirstShown(const std::string& exchange, const std::string& symbol) = 0;
  // The watch view repaints its lists.
  virtual void refreshWatchView() = 0;
  // Resets and closes the issue dialog; true when it was adding an issue (not modifying one).
  virtual bool endIssueDialog() = 0;

  // The history window appends one line for this row.
  virtual void historyRowAdded(std::unique_ptr<sOFSOrderInfo> row) = 0;
  // The history reply has ended: the window fills its details block.
  virtual void historyReplyEnded() = 0;

  // The Market Depth window's state, or null while the window is closed.
  virtual MarketDepthState* marketDepth() = 0;
  // The Market Depth window repaints from its state.
  virtual void marketDepthChanged() = 0;
  // Hands (exchange, symbol) to the host's receive object so that its updates keep coming.
  virtual void handInstrumentToHost(const std::string& exchange, const std::string& symbol) = 0;
  // The depth kept for an instrument whose price feed is subscribed, or null.
  virtual MarketDepthState* feedDepth(const std::string& exchange, const std::string& symbol) = 0;
  // A kept depth changed; the watch view's details of its issue repaint.
  virtual void feedDepthChanged(const MarketDepthState& depth) = 0;

 protected:
  ~DispatchContext() = default;
};
