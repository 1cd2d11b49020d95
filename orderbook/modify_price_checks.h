// The checks of the modify-price window on one order, in the order they run. A refusal either
// ends the whole run (stop) or passes over this order only (skip).
#pragma once

#include <string>

#include "domain/records.h"

// The labels of the window's two boxes, which a stop may name for the focus.
inline constexpr char kModifyPriceLabel[] = "Price";
inline constexpr char kModifyQuantityLabel[] = "Quantity";

struct PriceRevisionVerdict {
  enum class Action { Send, Skip, Stop };
  Action action = Action::Send;
  std::string message;
  std::string focus;     // the label of the box a stop names; empty for none
  std::string quantity;  // what to send: the typed quantity, or the order's own

  // True when the order is refused.
  explicit operator bool() const { return action != Action::Send; }
};

// `price` is the typed rupee text; an empty `typedQuantity` keeps the order's own quantity.
PriceRevisionVerdict checkPriceRevision(const sOFSOrderInfo& order, const sOFSCol& issue,
                                        const std::string& price, const std::string& typedQuantity);
