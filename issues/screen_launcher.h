// The screens the watch view opens. The UI implements it; each method answers false when that
// screen is not part of this build, and the command then does nothing.
#pragma once

#include <string>

struct sOFSCol;

class ScreenLauncher {
 public:
  virtual bool openOrderEntry(sOFSCol& issue) = 0;
  virtual bool openOrderBook() = 0;
  virtual bool openBasket() = 0;
  virtual bool openBulkUpload() = 0;
  virtual bool openScripProperties(sOFSCol& issue) = 0;
  virtual bool openMarketDepth(sOFSCol& issue) = 0;
  // Null: add a new issue; otherwise modify this one.
  virtual bool openIssueDetails(sOFSCol* issue) = 0;
  virtual bool openIssueUpload() = 0;
  virtual bool openIssueExport() = 0;
  virtual bool openAllotmentUpload(const std::string& exchange) = 0;
  // The order book's Delete key: cancel the selected orders.
  virtual bool deleteInOrderBook() = 0;

 protected:
  ~ScreenLauncher() = default;
};
