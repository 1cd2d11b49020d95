// The "Modify Multiple Order Price" window: one new price (and optionally one new quantity) for
// a set of open, limit-priced orders of one contract, sent as one modification per order.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "domain/records.h"

class OrderBookPort;

// Told when something the view shows has changed.
class ModifyPriceListener {
 public:
  virtual void fieldsChanged() = 0;  // the price and quantity texts
  virtual void rowsResetting() = 0;  // the list is about to be replaced...
  virtual void rowsReset() = 0;      // ...and has been
  virtual void visibilityChanged() = 0;

 protected:
  ~ModifyPriceListener() = default;
};

class CModifyOrderPrice {
 public:
  static constexpr char kTitle[] = "Modify Multiple Order Price";
  static constexpr int kColumnCount = 3;
  static const std::array<const char*, kColumnCount>& columns();

  explicit CModifyOrderPrice(OrderBookPort& port) : port_(port) {}
  void setListener(ModifyPriceListener* listener) { listener_ = listener; }

  // The orders stay the book's; the window shows them until the next load. Makes it visible.
  void load(std::vector<sOFSOrderInfo*> orders, std::string heading);

  const std::string& heading() const { return heading_; }
  int rowCount() const { return static_cast<int>(orders_.size()); }
  // The order number, its quantity and its current price in rupees.
  std::string columnText(int row, int column) const;
  const std::string& priceText() const { return price_; }
  const std::string& quantityText() const { return quantity_; }
  bool visible() const { return visible_; }

  // A text with a character the box does not take is refused and the box keeps its text.
  bool setPrice(const std::string& text);
  bool setQuantity(const std::string& text);

  // Checks and sends each order in list order; hides once something was sent.
  void ok();
  void cancel();

 private:
  // True when the modification went out.
  bool send(const sOFSOrderInfo& order, const std::string& quantity);
  void setVisible(bool visible);

  OrderBookPort& port_;
  ModifyPriceListener* listener_ = nullptr;
  std::vector<sOFSOrderInfo*> orders_;
  std::string heading_;
  std::string price_;
  std::string quantity_;
  bool visible_ = false;
};
