// The columns each kind's upload grid shows, left to right, and the text of a cell.
#pragma once

#include <string>
#include <vector>

#include "basket/bulk_bid_line.h"

enum class BulkCell : uint8_t {
  Field,       // the line's field
  Empty,       // a column the file does not fill
  ClientType,  // the client type the row is placed as
};

struct BulkGridColumn {
  const char* title;
  BulkCell cell;
  BidColumn field;
};

const std::vector<BulkGridColumn>& bulkGridColumns(BidFileKind kind);
std::string bulkCellText(const BidLine& row, const BulkGridColumn& column);
