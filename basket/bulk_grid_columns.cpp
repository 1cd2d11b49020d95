#include "basket/bulk_grid_columns.h"

#include "basket/bulk_bid_checks.h"

using C = BidColumn;

namespace {

BulkGridColumn field(const char* title, C column) {
  return {title, BulkCell::Field, column};
}

}  // namespace

const std::vector<BulkGridColumn>& bulkGridColumns(BidFileKind kind) {
  static const std::vector<BulkGridColumn> neat = {{"Client_Search", BulkCell::Empty, C::Count},
                                                   field("Book type", C::BookType),
                                                   field("Buy/Sell", C::BuySell),
                                                   field("Symbol", C::Symbol),
                                                   field("Series", C::Series),
                                                   field("Quantity", C::Quantity),
                                                   field("Price", C::Price),
                                                   field("Pro/Cli", C::ProCli),
                                                   field("Account Number", C::ClientId),
                                                   field("Participant code", C::PCode),
                                                   field("Margin", C::Margin),
                                                   field("Client Category", C::Category),
                                                   {"Client Type", BulkCell::ClientType, C::Count}};
  static const std::vector<BulkGridColumn> now = {field("Symbol", C::Symbol),
                                                  field("Series", C::Series),
                                                  field("Quantity", C::Quantity),
                                                  field("Price", C::Price),
                                                  field("Pro/Cli", C::ProCli),
                                                  field("Client iD", C::ClientId),
                                                  field("Participant Code", C::PCode),
                                                  field("Margin", C::Margin),
                                                  field("Walkin Client Code", C::WalkinCode),
                                                  field("Walkin Client Name", C::WalkinName),
                                                  field("Client Category", C::Category),
                                                  field("Client Type", C::NowClientType)};
  static const std::vector<BulkGridColumn> modCxl = {field("NOW Order Number", C::NowOrderNumber),
                                                     field("Symbol", C::Symbol),
                                                     field("Series", C::Series),
                                                     field("Quantity", C::Quantity),
                                                     field("Price", C::Price),
                                                     field("Pro/Cli", C::ProCli),
                                                     field("Client iD", C::ClientId),
                                                     field("Participant Code", C::PCode),
                                                     field("Margin", C::Margin),
                                                     field("Walkin Client Code", C::WalkinCode),
                                                     field("Mod/cxl Indicator", C::ModCxl),
                                                     field("Client Category", C::Category)};
  static const std::vector<BulkGridColumn> vt = {field("Exchange", C::Exchange),
                                                 field("Pro/Cli", C::ProCli),
                                                 field("Client Id", C::ClientId),
                                                 field("PCode", C::PCode),
                                                 field("Issue ID", C::IssueId),
                                                 field("Quantity", C::Quantity),
                                                 field("Price", C::Price),
                                                 field("Margin", C::Margin),
                                                 field("CutOff", C::CutOff),
                                                 field("OrderType", C::OrderType),
                                                 field("Client Category", C::Category)};
  switch (kind) {
    case BidFileKind::Neat:
      return neat;
    case BidFileKind::Now:
      return now;
    case BidFileKind::NowModCxl:
      return modCxl;
    case BidFileKind::Vt:
      break;
  }
  return vt;
}

std::string bulkCellText(const BidLine& row, const BulkGridColumn& column) {
  switch (column.cell) {
    case BulkCell::Field:
      return std::string(row[column.field]);
    case BulkCell::Empty:
      break;
    case BulkCell::ClientType:
      return bidClientType(bidProCliWord(row[C::ProCli]), row[C::ClientId]);
  }
  return {};
}
