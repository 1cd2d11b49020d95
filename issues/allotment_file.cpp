#include "issues/allotment_file.h"

#include <array>
#include <cstdio>
#include <memory>

#include "domain/bid_field_splitter.h"
#include "domain/bid_line_reader.h"
#include "domain/prices.h"

namespace {

using Row = sOFSAllotmentRow;

// Where a row's named fields stand in a layout, numbered from 1 as the exchanges number their
// columns. The other columns travel in `columns` only.
struct ColumnPlace {
  size_t column;
  std::string Row::*field;
};

constexpr size_t kBseColumnCount = 11;
constexpr std::array<ColumnPlace, 7> kBseColumns = {{
    {1, &Row::symbol},
    {4, &Row::ucc},
    {6, &Row::bidQuantity},
    {7, &Row::bidPrice},
    {8, &Row::orderNo},
    {9, &Row::allottedQuantity},
    {10, &Row::allottedPrice},
}};

constexpr size_t kNseColumnCount = 15;
constexpr std::array<ColumnPlace, 7> kNseColumns = {{
    {3, &Row::symbol},
    {4, &Row::orderNo},
    {7, &Row::client},
    {9, &Row::bidQuantity},
    {10, &Row::bidPrice},
    {12, &Row::allottedQuantity},
    {13, &Row::allottedPrice},
}};

std::string paiseText(const std::string& rupees) {
  char text[24];
  std::snprintf(text, sizeof text, "%lld",
                static_cast<long long>(convertRupeesToPaise(rupees.c_str(), 2, 1)));
  return text;
}

void fillRow(std::string_view text, AllotmentLayout layout, Row& row) {
  const bool bse = layout == AllotmentLayout::Bse;
  row.columns.resize(bse ? kBseColumnCount : kNseColumnCount);
  // The first field begins at the line's first character; columns past the layout's are left.
  BidFieldSplitter(text, -1).split(row.columns);
  for (const ColumnPlace& place : bse ? kBseColumns : kNseColumns)
    row.*place.field = row.columns[place.column - 1];
}

}  // namespace

AllotmentLayout allotmentLayoutOf(const std::string& exchange) {
  return exchange == "bse_ipo" ? AllotmentLayout::Bse : AllotmentLayout::Nse;
}

const char* allotmentExchangeKey(AllotmentLayout layout) {
  return layout == AllotmentLayout::Bse ? "bse_ipo" : "nse_ipo";
}

bool isAllotmentHeader(std::string_view text, AllotmentLayout layout) {
  const char* marker = layout == AllotmentLayout::Bse ? "SYMBOL" : "Member type";
  return text.find(marker) != std::string_view::npos;
}

std::string readAllotmentLine(std::string_view text, AllotmentLayout layout, Row& row) {
  // The line end belongs to the text, so only a line cut short by a NUL byte before its first
  // character is empty; a blank line is refused for having no comma. The trailing blanks are
  // the product's own.
  row = Row{};
  if (text.empty()) return "Allotment Read Error: Line is Empty ";
  if (text.find(',') == std::string_view::npos)
    return "Allotment Read Error: Invalid Format: Not a CSV File ";
  fillRow(text, layout, row);
  std::string message =
      layout == AllotmentLayout::Bse ? checkBseAllotment(row) : checkNseAllotment(row);
  if (!message.empty()) return message;
  // The checks saw the prices as written; the request carries them in paise.
  row.bidPrice = paiseText(row.bidPrice);
  row.allottedPrice = paiseText(row.allottedPrice);
  row.exchange = allotmentExchangeKey(layout);
  return {};
}

bool readAllotmentFile(const std::string& path, AllotmentLayout layout,
                       const AllotmentVisitor& visit) {
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> in(std::fopen(path.c_str(), "rb"), &std::fclose);
  return in && readAllotmentFile(in.get(), layout, visit);
}

bool readAllotmentFile(std::FILE* file, AllotmentLayout layout, const AllotmentVisitor& visit) {
  BidLineReader reader(file);
  std::string_view text;
  AllotmentLine line;
  while (reader.next(text)) {
    // Only the first line can be the header: a later line that happens to hold the marker is
    // an allotment, checked and reported like any other, never skipped unseen.
    if (reader.lineNumber() == 1 && isAllotmentHeader(text, layout)) continue;
    line.line = reader.lineNumber();
    line.message = readAllotmentLine(text, layout, line.row);
    visit(line);
  }
  // A folder opens but cannot be read: it is a file that cannot be opened.
  return !reader.failed();
}

AllotmentLoad loadAllotmentFile(const std::string& path, AllotmentLayout layout) {
  AllotmentLoad load;
  const bool read = readAllotmentFile(path, layout, [&load](AllotmentLine& line) {
    ++load.lines;
    if (line.message.empty()) {
      load.rows.push_back(std::move(line.row));
    } else {
      load.refusals.push_back({line.line, std::move(line.message)});
    }
  });
  if (!read) return {};
  load.opened = true;
  return load;
}
