#include "basket/basket_file.h"

#include <algorithm>
#include <cstdio>
#include <memory>

#include "domain/bid_field_splitter.h"
#include "domain/bid_line_reader.h"
#include "domain/client_rules.h"
#include "domain/exchange_names.h"
#include "domain/file_replace.h"
#include "domain/series.h"

using namespace std::string_literals;

namespace {

constexpr std::array<std::string sOFSPlaceOrder::*, kBasketColumnCount> kColumnFields = {
    &sOFSPlaceOrder::screenName, &sOFSPlaceOrder::proCli,    &sOFSPlaceOrder::clientId,
    &sOFSPlaceOrder::pCode,      &sOFSPlaceOrder::symbol,    &sOFSPlaceOrder::quantity,
    &sOFSPlaceOrder::price,      &sOFSPlaceOrder::orderType, &sOFSPlaceOrder::marginText,
    &sOFSPlaceOrder::cutOffText,
};

constexpr char kFileOpenError[] = "File Open Error";

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

void fillRow(std::array<std::string, kBasketColumnCount>& fields, const std::string& userId,
             sOFSPlaceOrder& row) {
  row = sOFSPlaceOrder{};
  for (int i = 0; i < kBasketColumnCount; ++i) row.*kColumnFields[i] = std::move(fields[i]);
  // Read back through the screen name: the skipped first character makes a saved "bse_ipo"
  // read "se_ipo", so a BSE row comes back as NSE. Kept as the product has always done it.
  row.exchange = exchangeScreenName(row.screenName);
  row.screenName = exchangeKey(row.exchange);
  row.margin = marginFlag(row.marginText);
  row.marketFlag = row.price == "MKT" ? "Y"s : std::string();
  row.side = "B"s;
  row.userId = userId;
  row.series = seriesOfSymbol(row.symbol);
}

}  // namespace

const std::array<const char*, kBasketColumnCount>& basketColumns() {
  static const std::array<const char*, kBasketColumnCount> titles = {
      "Exchange", "Pro/Cli", "Client Id",  "PCode",  "Issue ID",
      "Quantity", "Price",   "Order Type", "Margin", "CutOff"};
  return titles;
}

std::string basketColumnText(const sOFSPlaceOrder& row, int column) {
  if (column < 0 || column >= kBasketColumnCount) return {};
  return row.*kColumnFields[column];
}

std::string basketLine(const sOFSPlaceOrder& row) {
  std::string line;
  for (auto field : kColumnFields) (line += row.*field) += ',';
  return line;
}

std::string saveBasketFile(const std::string& path,
                           const std::vector<const sOFSPlaceOrder*>& rows) {
  if (rows.empty()) return "No items in the list";
  std::string text;
  for (const sOFSPlaceOrder* row : rows) (text += basketLine(*row)) += '\n';
  if (writeTextFile(path, text) != TextFileWrite::Written)
    return " Basket File Write Error: "s + kFileOpenError;
  return "Basket File Created Successfully";
}

bool readBasketLine(std::string_view line, const std::string& userId, sOFSPlaceOrder& row,
                    std::string& message) {
  // The line end counts, so a blank line is refused as having no comma, not as empty.
  if (line.empty()) {
    message = "Basket Read Error: Line is Empty ";
    return false;
  }
  if (line.find(',') == std::string_view::npos) {
    message = "Basket Read Error: Invalid Format: Not a CSV File ";
    return false;
  }
  // Every line the save writes has ten fields; a shorter one was not written by it.
  std::array<std::string, kBasketColumnCount> fields;
  if (BidFieldSplitter(line, 0).split(fields) < fields.size()) {
    message = "Basket Read Error: Invalid Format: Less than 10 Fields ";
    return false;
  }
  fillRow(fields, userId, row);
  return true;
}

BasketLoad loadBasketFile(const std::string& path, const std::string& userId) {
  File in(std::fopen(path.c_str(), "rb"), &std::fclose);
  if (!in) return {};
  return readBasketFile(in.get(), userId);
}

BasketLoad readBasketFile(std::FILE* file, const std::string& userId) {
  BasketLoad load;
  BidLineReader reader(file);
  std::string_view line;
  sOFSPlaceOrder row;
  std::string message;
  while (reader.next(line)) {
    ++load.lines;
    if (readBasketLine(line, userId, row, message))
      load.rows.push_back(std::move(row));
    else
      load.refusals.push_back({reader.lineNumber(), message});
  }
  // A folder opens but cannot be read; like a file that cannot be opened, it loads nothing.
  if (reader.failed()) return BasketLoad{};
  // Every line goes to the top of the list, so the list shows the file upside down.
  std::reverse(load.rows.begin(), load.rows.end());
  load.opened = true;
  return load;
}
