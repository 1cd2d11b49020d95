// The docked order book's commands on the lines a dealer selected: modify, cancel, bulk
// modify, carry forward and history. The lists themselves belong to the orders map; this class
// holds no order of its own. It never draws: the view hands it the selected records.
#pragma once

#include <string>
#include <vector>

#include "domain/records.h"
#include "orderbook/order_book_port.h"

// The windows the book opens; the view implements it.
class OrderBookLauncher {
 public:
  // Order entry in modify mode on `order`, created when it does not exist, brought forward.
  virtual void openOrderModification(const sOFSOrderInfo& order, const sOFSCol& issue) = 0;
  // Creates the "Modify Multiple Order Price" window once; false when that failed.
  virtual bool ensureModifyPriceWindow() = 0;
  virtual void openModifyPrice(std::vector<sOFSOrderInfo*> orders, const std::string& heading) = 0;
  virtual void openHistory(const std::string& orderNo) = 0;
  // The small prompt that asks for an order number, then opens its history.
  virtual void askHistoryOrderNumber() = 0;

 protected:
  ~OrderBookLauncher() = default;
};

// The menu command and the list's own double-click or Enter word the same refusal differently.
enum class ModifyPath { Menu, List };

class COrderBookDlgBar {
 public:
  static constexpr char kTitle[] = "Order Book";
  // The name the book's menu group is registered under.
  static constexpr char kMenuGroup[] = "OFSOrderBook";

  COrderBookDlgBar(OrderBookPort& port, OrderBookLauncher& launcher)
      : port_(port), launcher_(launcher) {}

  // Lines in selection order. True when the dealer confirmed and the orders were walked: the
  // view then moves the focus to the next line.
  bool cancelOrders(const std::vector<sOFSOrderInfo*>& selected);
  // `focused` may be null (no line).
  void modifyOrder(const sOFSOrderInfo* focused, ModifyPath path);
  void bulkModify(const std::vector<sOFSOrderInfo*>& selected);
  void carryForward(const std::vector<sOFSOrderInfo*>& selected);
  // The focused order's history; without a focused line the order number is asked for.
  void showHistory(const sOFSOrderInfo* focused);

 private:
  OrderBookPort& port_;
  OrderBookLauncher& launcher_;
};

// A command of the book's context menu with its accelerator.
struct OrderBookCommand {
  enum Id { Modify, Cancel, History, BulkModify, CarryForward };
  Id id;
  const char* text;
  const char* key;  // empty: menu only
};
const std::vector<OrderBookCommand>& orderBookCommands();
