// Bulk modify: the open limit orders of one contract go to the modify-price window.
#include <cstdlib>

#include "orderbook/order_book.h"
#include "orderbook/order_book_rules.h"

namespace {

std::string contractKey(const sOFSOrderInfo& order) {
  return order.issueId + "|" + order.exchange;
}

long long quantityOf(const sOFSOrderInfo& order) {
  return std::strtoll(order.quantity.c_str(), nullptr, 10);
}

std::string heading(const std::vector<sOFSOrderInfo*>& kept) {
  long long total = 0;
  for (const sOFSOrderInfo* order : kept) total += quantityOf(*order);
  return "Number Of Orders : " + std::to_string(kept.size()) +
         " Total Qty : " + std::to_string(total) + " ";
}

}  // namespace

void COrderBookDlgBar::bulkModify(const std::vector<sOFSOrderInfo*>& selected) {
  PromptPort& prompt = port_.prompt();
  if (!launcher_.ensureModifyPriceWindow())
    return prompt.message("Error creating Modify Multiple order Dlg");
  std::vector<sOFSOrderInfo*> kept;
  std::string contract;
  const sOFSOrderInfo* last = nullptr;
  for (sOFSOrderInfo* order : selected) {
    last = order;
    if (modifyCancelClosed(port_.issueOfOrder(*order)))
      return prompt.message("Bulk Modification is Not Allowed For " + order->ofsOrderNo);
    if (cfInactive(*order)) return prompt.message(kActiveCfNeeded);
    if (order->status != "open" || order->priceType == "MKT") continue;
    if (kept.empty()) contract = contractKey(*order);
    if (contractKey(*order) != contract) return prompt.message("Contract Information not matching");
    kept.push_back(order);
  }
  if (kept.empty()) {
    if (!last) return;
    if (last->status != "open") return prompt.message("Please select open Order");
    return prompt.message("Market Order Price Modification Not Allowed");
  }
  launcher_.openModifyPrice(kept, heading(kept));
}
