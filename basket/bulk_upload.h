// The bulk upload screen: a bid file of one of the four kinds loaded into that kind's grid, rows
// keyed by hand into the VT grid, the grid or the refused lines saved, and the rows placed one
// request each. It never draws: a view shows the grid of `kind()` and calls the commands.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "basket/basket_port.h"
#include "basket/bulk_bid_file.h"
#include "basket/bulk_bid_line.h"
#include "basket/bulk_manual_entry.h"

// Told when something the view shows has changed.
class BulkUploadListener {
 public:
  virtual void fieldsChanged() = 0;  // status, kind, entry, buttons
  virtual void rowsChanged() = 0;    // the shown grid's rows

 protected:
  ~BulkUploadListener() = default;
};

// Placing many rows: told after each row with the rows done and the total. It cannot stop the
// placement: every row of the grid is sent exactly once.
using BulkPlaceProgress = std::function<void(size_t done, size_t total)>;

class CBulkUpload {
 public:
  static constexpr char kTitle[] = "OFS Bulk Upload";
  // The "File Type" list, top entry first.
  static constexpr std::array<BidFileKind, 4> kFileKinds = {
      BidFileKind::Vt, BidFileKind::Neat, BidFileKind::Now, BidFileKind::NowModCxl};

  explicit CBulkUpload(BasketPort& port) : port_(port) {}
  void setListener(BulkUploadListener* listener) { listener_ = listener; }

  // The issue the VT list is for (null: any); it must outlive the screen's use of it.
  void open(const sOFSCol* issue);

  BidFileKind kind() const { return kind_; }
  void selectKind(BidFileKind kind);
  // The grid of the selected kind, top row first.
  const std::vector<BidLine>& rows() const { return grid(kind_); }
  const std::vector<BidLine>& grid(BidFileKind kind) const { return grids_[slot(kind)]; }
  const std::vector<std::string>& refusedLines() const { return refused_; }
  bool exportInvalidShown() const { return !refused_.empty(); }
  const std::string& status() const { return status_; }
  // Off from a placement until the grid changes.
  bool placeEnabled() const { return placeEnabled_; }
  // The rows at the top of the shown grid already sent; Place sends only those after them.
  size_t placedRows() const { return placed_[slot(kind_)]; }

  BulkEntry& entry() { return entry_; }
  const BulkEntry& entry() const { return entry_; }
  // The accounts the entry's "Client ID" offers.
  std::vector<std::string> accounts() const { return port_.userAccounts(); }
  // Whether the issue takes cut-off bids ("Y"), as the entry's "CutOff" shows it.
  const std::string& cutOffAllowed() const { return cutOffAllowed_; }
  // The account of the entry; its participant code comes with it.
  void selectClientId(const std::string& account);
  // The order type of the entry, with the participant code rules applied at once.
  void selectOrderType(const std::string& orderType);

  // "Browse": asks for a file and loads it.
  void browse(const BidLoadProgress& progress = {});
  // Loads `path` into the selected kind's grid, in place of what it held.
  void load(const std::string& path, const BidLoadProgress& progress = {});
  void add();  // "Add": the entry as a VT row
  // Sends every row of the shown grid not yet sent, after one question.
  void place(const BulkPlaceProgress& progress = {});
  void exportList();
  void exportInvalid();  // "Export Invalid Orders"
  void reset();          // "Reset"
  void deleteRow(size_t index);

  // The lookups the checks use: the port's issues and orders, the user's accounts.
  BidContext context() const;

 private:
  static size_t slot(BidFileKind kind) { return static_cast<size_t>(kind) - 1; }
  std::vector<BidLine>& shown() { return grids_[slot(kind_)]; }
  void takeRefusals(const BidFileLoad& load);
  void sendRow(const BidLine& row, const BidContext& context);
  void changed(bool rows = false);

  BasketPort& port_;
  BulkUploadListener* listener_ = nullptr;
  const sOFSCol* issue_ = nullptr;
  BidFileKind kind_ = BidFileKind::Vt;
  void gridChanged();

  std::array<std::vector<BidLine>, 4> grids_;
  // Rows only join a grid at its end, so the sent ones are always its first rows.
  std::array<size_t, 4> placed_{};
  std::vector<std::string> refused_;
  std::string status_;
  bool placeEnabled_ = true;
  BulkEntry entry_;
  std::string cutOffAllowed_;
};
