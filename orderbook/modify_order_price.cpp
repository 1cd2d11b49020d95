#include "orderbook/modify_order_price.h"

#include <set>
#include <utility>

#include "domain/char_classes.h"
#include "domain/prices.h"
#include "messaging/order_requests.h"
#include "orderbook/modify_price_checks.h"
#include "orderbook/order_book_port.h"

const std::array<const char*, CModifyOrderPrice::kColumnCount>& CModifyOrderPrice::columns() {
  static constexpr std::array<const char*, kColumnCount> kColumns = {"OFS Order Number",
                                                                     "Total Qty", "Price to Fill"};
  return kColumns;
}

void CModifyOrderPrice::load(std::vector<sOFSOrderInfo*> orders, std::string heading) {
  if (listener_) listener_->rowsResetting();
  orders_ = std::move(orders);
  heading_ = std::move(heading);
  if (listener_) listener_->rowsReset();
  setVisible(true);
}

std::string CModifyOrderPrice::columnText(int row, int column) const {
  if (row < 0 || row >= rowCount()) return {};
  const sOFSOrderInfo* order = orders_[static_cast<size_t>(row)];
  if (!order) return {};
  switch (column) {
    case 0:
      return order->ofsOrderNo;
    case 1:
      return order->quantity;
    case 2:
      return paiseToRupeesText(order->price);
    default:
      return {};
  }
}

bool CModifyOrderPrice::setPrice(const std::string& text) {
  if (!isPriceTyping(text)) return false;
  price_ = text;
  return true;
}

bool CModifyOrderPrice::setQuantity(const std::string& text) {
  if (!isDigits(text)) return false;
  quantity_ = text;
  return true;
}

void CModifyOrderPrice::ok() {
  PromptPort& prompt = port_.prompt();
  std::set<std::string> shown;  // a skip is told once per run, however many orders it hits
  bool anySent = false;
  for (const sOFSOrderInfo* order : orders_) {
    if (!order) continue;
    const sOFSCol* issue = port_.issueOfOrder(*order);
    if (!issue) continue;  // nothing to hold the order against
    const PriceRevisionVerdict v = checkPriceRevision(*order, *issue, price_, quantity_);
    if (v.action == PriceRevisionVerdict::Action::Stop) {
      if (!v.focus.empty()) prompt.focus(v.focus);
      prompt.message(v.message);
      return;
    }
    if (v.action == PriceRevisionVerdict::Action::Skip) {
      if (shown.insert(v.message).second) prompt.message(v.message);
      continue;
    }
    anySent = send(*order, v.quantity) || anySent;
  }
  if (!anySent) return;
  price_.clear();
  quantity_.clear();
  if (listener_) listener_->fieldsChanged();
  setVisible(false);
}

void CModifyOrderPrice::cancel() {
  setVisible(false);
}

bool CModifyOrderPrice::send(const sOFSOrderInfo& order, const std::string& quantity) {
  const OrderContext context = port_.orderContext();
  bool sent = false;
  if (order.clientId.empty()) {
    modifyWalkinOrder(context, order, price_, quantity, order.pCode, &sent);
  } else {
    modifyOfsOrder(context, order, price_, quantity, &sent);
  }
  return sent;
}

void CModifyOrderPrice::setVisible(bool visible) {
  visible_ = visible;
  if (listener_) listener_->visibilityChanged();
}
