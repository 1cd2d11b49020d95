#include "domain/amount_rules.h"
#include "domain/client_rules.h"
#include "domain/issue_terms.h"
#include "domain/number_text.h"
#include "domain/prices.h"
#include "domain/series.h"
#include "orderentry/order_entry_steps.h"

namespace {

using namespace entry_label;

// The new price against the ceiling and the tick; decides whether the entry is a cut-off one.
Verdict checkRevisedPrice(const OrderEntryFields& f, Modification& m) {
  const std::string& price = f.price.text;
  if (auto v = checkCeiling(price, splitPriceRange(f.priceRange).ceiling)) return v;
  if (price == "MKT") m.cutOff = true;
  if (price.empty()) return refusal("Please enter some Price");
  if (price == "0") {
    if (!f.cutOff) return refusal("Price cant be zero", kPrice);
    m.cutOff = true;
  }
  std::string message;
  const int64_t tick = static_cast<int64_t>(m.order.issueTickSize) * 100;
  if (!m.cutOff && !checkPriceTickPaise(price, message, tick, 2)) return refusal(message);
  return {};
}

Verdict checkRevisedQuantity(const OrderEntryFields& f, const sOFSCol& issue,
                             const Modification& m) {
  const std::string& quantity = f.quantity.text;
  if (quantity.empty()) return refusal("Please enter some quantity");
  if (auto v = checkMinimumQuantity(quantity, issue)) return v;
  if (auto v = checkLot(quantity, issue)) return v;
  const Revision revision{m.order.exchange, seriesOfSymbol(f.ofsId.text),
                          m.order.margin,   m.order.price,
                          m.order.quantity, f.price.text,
                          quantity};
  std::string message;
  if (!checkNseRevision(revision, message)) return refusal(message);
  return {};
}

// The price band on the order, then the floor, issue size, amount and digit limits.
Verdict checkRevisedTerms(const OrderEntryFields& f, const sOFSCol& issue, Modification& m) {
  const std::string& quantity = f.quantity.text;
  const PriceBand band = splitPriceRange(f.priceRange);
  m.order.field63022 = band.floor;
  m.order.field63023 = band.ceiling;
  if (!m.cutOff && leadingDouble(f.price.text) < leadingDouble(band.floor)) {
    // Intended: the wording differs from the new bid's floor message.
    return refusal("Price Should be more than or equal to Floor Price " +
                   fixedText(leadingDouble(band.floor), 4));
  }
  m.order.priceType = m.cutOff ? "MKT" : "L";
  m.price = m.cutOff ? band.ceiling : f.price.text;
  if (auto v = checkIssueSize(quantity, issue)) return v;
  const std::string series = seriesOfSymbol(f.ofsId.text);
  if (auto v = checkAmount(series, f.price.text, m.cutOff, quantity, band.ceiling, issue)) {
    return v;
  }
  return checkNineDigits(quantity);
}

}  // namespace

Verdict checkModification(const OrderEntryFields& fields, const SubmitContext& context,
                          Modification& change) {
  if (auto v = checkOpenForBids(fields, context)) return v;
  if (auto v = checkRevisedPrice(fields, change)) return v;
  if (auto v = checkRevisedQuantity(fields, context.issue, change)) return v;
  if (auto v = checkRevisedTerms(fields, context.issue, change)) return v;
  change.quantity = fields.quantity.text;
  change.order.field12005 = fields.clientCategory.selected;
  change.order.proCliFlag = clientTypeCode(fields.clientType.selected);
  return {};
}
