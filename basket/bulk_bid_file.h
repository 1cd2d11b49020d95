// A whole bid file read and checked the way the upload screen loads it; the screen and the
// command-line checker both go through here, so they refuse the same lines with the same texts.
#pragma once

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "basket/bulk_bid_context.h"
#include "basket/bulk_bid_line.h"

struct BidRefusal {
  int line = 0;   // as an editor numbers it; the pieces of a long line share it
  int count = 0;  // the VT kind's running count, which its reports quote
  std::string message;
};

struct BidFileLoad {
  bool opened = false;  // false: "File Open Error"; nothing was read
  std::vector<BidLine> rows;
  std::vector<BidRefusal> refusals;
  int lines = 0;         // every non-empty piece read: the records the file holds
  bool stopped = false;  // the progress callback stopped the load; the lines read so far stay
};

// Told every few thousand lines with the bytes of the file read so far and its size (-1 when it
// cannot be told); false stops the load.
using BidLoadProgress = std::function<bool(long bytesRead, long bytesTotal)>;

BidFileLoad loadBidFile(const std::string& path, BidFileKind kind, const BidContext& context,
                        const BidLoadProgress& progress = {});
BidFileLoad readBidFile(std::FILE* file, BidFileKind kind, const BidContext& context,
                        const BidLoadProgress& progress = {});
