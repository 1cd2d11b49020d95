// The basket screen: bids prepared one row at a time on one issue, saved to and loaded from a
// basket file, and the ticked rows placed together after one question. It never draws: a view
// shows `fields()` and the rows and calls the setters.
#pragma once

#include <string>
#include <vector>

#include "basket/basket_port.h"
#include "domain/place_order.h"
#include "domain/screen_fields.h"

// The labels by which the view, the focus and scripts name the fields.
namespace basket_label {
inline constexpr char kExchange[] = "Exchange";
inline constexpr char kCompanyName[] = "Company Name";
inline constexpr char kIssueId[] = "Issue ID";
inline constexpr char kOpenDate[] = "Open Date";
inline constexpr char kCloseDate[] = "Close Date";
inline constexpr char kMinQty[] = "Min Qty";
inline constexpr char kOrderType[] = "Order Type";
inline constexpr char kQuantity[] = "Quantity";
inline constexpr char kPrice[] = "Price";
inline constexpr char kCutOff[] = "CutOff";
inline constexpr char kClientId[] = "Client ID";
inline constexpr char kMargin[] = "Margin";
inline constexpr char kParticipantCode[] = "Participant Code";
inline constexpr char kCutOffText[] = "CutOff Allowed";
}  // namespace basket_label

struct BasketFields {
  EntryText exchange{{}, false, true};  // "NSEIPO" or "BSEIPO"
  EntryText companyName{{}, false, true};
  EntryText issueId{{}, false, true};  // symbol-series
  EntryText openDate{{}, false, true};
  EntryText closeDate{{}, false, true};
  EntryText minQty{{}, false, true};
  EntryChoice orderType;
  EntryText quantity;
  EntryText price;  // rupees, or "MKT" for a cut-off bid
  bool cutOff = false;
  EntryChoice clientId;
  EntryChoice margin;
  EntryChoice participantCode;
  EntryText cutOffText{{}, false, true};  // the issue's cut-off allowance
  std::string path;                       // the basket file last loaded
  std::string count;                      // " Total : %d"
  std::string priceRange;                 // floor "-" ceiling, hidden
};

// Told when something the view shows has changed.
class BasketListener {
 public:
  virtual void fieldsChanged() = 0;  // texts, lists, enabled states, buttons, title
  virtual void rowsChanged() = 0;    // the list's rows or ticks

 protected:
  ~BasketListener() = default;
};

class CBasketManagerOFS {
 public:
  static constexpr char kTitle[] = "Basket Order";

  explicit CBasketManagerOFS(BasketPort& port) : port_(port) {}
  void setListener(BasketListener* listener) { listener_ = listener; }

  // The issue whose facts stand at the top (none: rows cannot be added); it must outlive the
  // screen's use of it.
  void open(const sOFSCol* issue);

  const BasketFields& fields() const { return fields_; }
  const std::string& title() const { return title_; }
  const std::string& addButtonText() const { return addButton_; }
  bool placeEnabled() const { return placeEnabled_; }

  // Typing and choosing; each refuses (false, field unchanged) what its field does not take.
  bool setQuantity(const std::string& text);  // digits
  bool setPrice(const std::string& text);     // "0123456789."
  bool setCutOff(bool ticked);
  bool selectClientId(const std::string& account);
  bool selectOrderType(const std::string& entry);
  bool selectMargin(const std::string& entry);
  bool selectParticipantCode(const std::string& entry);

  // The list, top row first.
  size_t rowCount() const { return rows_.size(); }
  const sOFSPlaceOrder& row(size_t index) const { return rows_[index]; }
  bool ticked(size_t index) const { return rows_[index].ticked == "Y"; }
  void setTicked(size_t index, bool on);
  // The fields take the row's values and "Add" becomes "&Modify" until the row is replaced.
  void editRow(size_t index);

  // The buttons.
  void add();    // "Add" / "&Modify"
  void place();  // "Place"
  void reset();  // "Reset"
  void save();   // "Export List"
  void load();   // "Browse"

 private:
  bool refuse(const std::string& message, const char* field = nullptr);
  bool checkEntry();
  bool buildRow(sOFSPlaceOrder& row);
  bool takeOrderType(sOFSPlaceOrder& row);
  bool checkSeries(sOFSPlaceOrder& row, const std::string& series);
  bool checkExchange(sOFSPlaceOrder& row);
  bool checkPrice(sOFSPlaceOrder& row);
  void fillOrderTypes();
  void entryDone();
  void showCount();
  void changed(bool rows = false);

  BasketPort& port_;
  BasketListener* listener_ = nullptr;
  const sOFSCol* issue_ = nullptr;
  BasketFields fields_;
  std::vector<sOFSPlaceOrder> rows_;
  std::string title_ = kTitle;
  std::string addButton_ = "Add";
  bool placeEnabled_ = true;
  size_t editing_ = 0;
  bool isEditing_ = false;
};
