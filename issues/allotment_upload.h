// The allotment upload: an exchange's allotment file sent line by line as allotments, each
// refused line reported with its number, and a summary at the end.
#pragma once

#include <string>

#include "issues/issues_port.h"

class COFSAllotmentUpload {
 public:
  explicit COFSAllotmentUpload(IssuesPort& port) : port_(port) {}

  // Asks for the file and uploads it in the layout of `exchange` ("nse_ipo" or "bse_ipo").
  // Does nothing for a user without the right "VT: Add OFS Issue" or when no file is chosen.
  void run(const std::string& exchange);

 private:
  IssuesPort& port_;
};
