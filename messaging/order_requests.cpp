#include "messaging/order_requests.h"

#include <optional>

#include "domain/prices.h"

// One-letter flags are assigned as strings: gcc 12 at -O3 misreads a literal assignment as an
// overlapping copy (-Wrestrict).
using namespace std::string_literals;

namespace {

constexpr char kPlaceOfsPrefix[] = "set_ipo_ofs_order is failed , ";
constexpr char kPlaceWalkinPrefix[] = "put_ipo_ofs_order is failed , ";
constexpr char kCancelPrefix[] = "cancel_ipo_ofs_order is failed , ";
constexpr char kModifyPrefix[] = "modify_ipo_ofs_order is failed , ";

enum class Placement { Screen, Bulk };

// Unlike the screens' own mapping, a text that is neither screen name goes out unchanged.
std::string wireExchange(const std::string& screenName) {
  if (screenName == "BSEIPO") return "bse_ipo";
  if (screenName == "NSEIPO") return "nse_ipo";
  return screenName;
}

std::string paiseText(const std::string& rupees) {
  return std::to_string(static_cast<long>(convertRupeesToPaise(rupees.c_str(), 2, 1)));
}

std::optional<std::string> freshUuid(const OrderContext& context) {
  if (!context.getUuid) return std::nullopt;
  std::string uuid;
  context.getUuid(uuid);
  return uuid;
}

Request& addUuid(Request& r, const std::optional<std::string>& uuid) {
  return uuid ? r.add(54158, *uuid) : r;
}

Request& addMarketTag(Request& r, bool market) {
  return market ? r.add(12008, "MKT").add(32760, "MKT") : r.add(12008, "L");
}

// Rewrites the Pro/Cli choice as its letter; true when the order named its side.
bool prepareForPlacing(sOFSPlaceOrder& order) {
  if (order.proCli == "PRO") order.proCli = "F"s;
  if (order.proCli == "CLI") order.proCli = "C"s;
  const bool sideGiven = !order.side.empty();
  // Intended: an order without a side is sent without 12003 and then reads "B".
  if (!sideGiven) order.side = "B"s;
  return sideGiven;
}

std::string_view marginOrNo(const sOFSPlaceOrder& order) {
  return order.margin.empty() ? std::string_view("NO") : std::string_view(order.margin);
}

int32_t placeOfs(const OrderContext& c, sOFSPlaceOrder& o, const std::string& price,
                 Placement placement) {
  const bool sideGiven = prepareForPlacing(o);
  const bool bulk = placement == Placement::Bulk;
  const std::string exchange = wireExchange(o.screenName);
  const std::string paise = paiseText(price);
  const std::optional<std::string> uuid = freshUuid(c);
  Request r("om_put_order_ofs", kPlaceOfsPrefix, Control::First);
  r.add(64030, "CNC").add(63001, exchange).add(31003, c.userId).add(54001, o.clientId);
  r.add(63100, o.issueId).add(12004, o.quantity);
  r.add(63058, o.category.empty() ? std::string_view("Institutional") : o.category);
  r.add(12008, o.priceType).add(10306, paise).addIf(sideGiven, 12003, o.side);
  r.add(54056, o.proCli).add(64170, marginOrNo(o)).addIf(!o.pCode.empty(), 10332, o.pCode);
  r.addIf(bulk && !o.bsePCode.empty(), 13034, o.bsePCode).add(12005, "OFS");
  addUuid(r, uuid).addIf(!bulk && !o.bsePCode.empty(), 13034, o.bsePCode);
  if (c.layer.sendOrder(r) != 0) return 1;
  if (!bulk && c.placedOrders) (*c.placedOrders)[o.reference] = o;
  return 0;
}

int32_t placeWalkin(const OrderContext& c, sOFSPlaceOrder& o, const std::string& price) {
  const bool sideGiven = prepareForPlacing(o);
  const std::string paise = paiseText(price);
  const std::optional<std::string> uuid = freshUuid(c);
  Request r("om_put_order_walkin", kPlaceWalkinPrefix, Control::First);
  r.add(63001, "nse_ipo").add(31003, c.userId).add(63100, o.issueId).add(12004, o.quantity);
  addMarketTag(r, !o.marketFlag.empty()).add(10306, paise).addIf(sideGiven, 12003, o.side);
  r.add(54056, o.proCli).add(64170, marginOrNo(o));
  r.add(10332, o.pCode.empty() ? c.defaultPCode : o.pCode).add(12005, "OFS");
  addUuid(r.add(64916, o.walkinClientId), uuid);
  return c.layer.sendOrder(r);
}

// The cancel of either flavour: the exchange is "nse_ipo" whatever the order's own.
int32_t cancel(const OrderContext& c, const char* name, const std::string& userId,
               uint32_t clientField, const std::string& client, const std::string& issueId,
               const std::string& orderNo) {
  const std::optional<std::string> uuid = freshUuid(c);
  Request r(name, kCancelPrefix, Control::First);
  r.add(63001, "nse_ipo").add(31003, userId).add(clientField, client).add(63100, issueId);
  addUuid(r.add(64001, orderNo), uuid);
  c.layer.sendOrder(r);
  return 1;
}

std::string_view marginWord(const std::string& margin) {
  if (margin == "100% Margin") return "YES";
  if (margin == "No Margin") return "NO";
  return {};
}

// The reported record keeps a BSE order's participant code in `pCode`.
std::string_view bsePCodeOf(const sOFSOrderInfo& order) {
  return order.exchange == "bse_ipo" ? std::string_view(order.pCode) : std::string_view();
}

struct ModifyOptions {
  const std::string* walkinPCode = nullptr;  // null: the ofs request
  bool* sent = nullptr;
};

int32_t modify(const OrderContext& c, const sOFSOrderInfo& o, const std::string& price,
               const std::string& quantity, ModifyOptions options) {
  const bool isWalkin = options.walkinPCode != nullptr;
  const std::string& pCode = isWalkin ? *options.walkinPCode : o.pCode;
  const std::string paise = paiseText(price);
  const std::optional<std::string> uuid = freshUuid(c);
  Request r(isWalkin ? "om_modify_order_walkin" : "om_modify_order_ofs", kModifyPrefix,
            Control::First);
  r.add(63001, o.exchange).add(31003, o.field31003);
  if (isWalkin) {
    r.add(64916, o.walkinClientId);
  } else {
    r.add(54001, o.clientId);
  }
  addMarketTag(r.add(63100, o.issueId).add(12005, "OFS"), o.priceType == "MKT");
  r.add(10306, paise).add(12004, quantity).add(64001, o.ofsOrderNo).add(12003, o.field12003);
  const std::string_view margin = marginWord(o.margin);
  r.add(54056, o.cfStatus).addIf(!margin.empty(), 64170, margin);
  addUuid(r.addIf(!pCode.empty(), 10332, pCode), uuid);
  r.addIf(!isWalkin && !bsePCodeOf(o).empty(), 13034, bsePCodeOf(o));
  const bool sent = c.layer.sendOrder(r) == 0;
  if (options.sent) *options.sent = sent;
  return 1;
}

}  // namespace

int32_t placeOfsOrder(const OrderContext& context, sOFSPlaceOrder& order) {
  return placeOfs(context, order, order.price, Placement::Screen);
}

int32_t placeWalkinOrder(const OrderContext& context, sOFSPlaceOrder& order) {
  return placeWalkin(context, order, order.price);
}

int32_t placeOfsOrderBulk(const OrderContext& context, sOFSPlaceOrder& order,
                          const std::string& price) {
  return placeOfs(context, order, price, Placement::Bulk);
}

int32_t placeWalkinOrderBulk(const OrderContext& context, sOFSPlaceOrder& order,
                             const std::string& price) {
  return placeWalkin(context, order, price);
}

int32_t cancelOfsOrder(const OrderContext& context, const sOFSOrderInfo& order) {
  return cancel(context, "om_cancel_order_ofs", context.userId, 54001, order.clientId,
                order.issueId, order.ofsOrderNo);
}

int32_t cancelWalkinOrder(const OrderContext& context, const sOFSOrderInfo& order) {
  return cancel(context, "om_cancel_order_walkin", context.userId, 64916, order.walkinClientId,
                order.issueId, order.ofsOrderNo);
}

int32_t cancelOfsOrderBulk(const OrderContext& context, const sOFSPlaceOrder& row) {
  return cancel(context, "om_cancel_order_ofs", context.userId, 54001, row.clientId, row.issueId,
                row.orderNumber);
}

int32_t cancelWalkinOrderBulk(const OrderContext& context, const sOFSPlaceOrder& row) {
  return cancel(context, "om_cancel_order_walkin", row.userId, 64916, row.walkinClientId,
                row.issueId, row.orderNumber);
}

int32_t modifyOfsOrder(const OrderContext& context, const sOFSOrderInfo& order,
                       const std::string& price, const std::string& quantity, bool* sent) {
  return modify(context, order, price, quantity, {nullptr, sent});
}

int32_t modifyWalkinOrder(const OrderContext& context, const sOFSOrderInfo& order,
                          const std::string& price, const std::string& quantity,
                          const std::string& pCode, bool* sent) {
  return modify(context, order, price, quantity, {&pCode, sent});
}

int32_t modifyOfsOrderBulk(const OrderContext& context, const sOFSOrderInfo& order,
                           const sOFSPlaceOrder& row) {
  return modify(context, order, row.price, row.quantity, {});
}

int32_t modifyWalkinOrderBulk(const OrderContext& context, const sOFSOrderInfo& order,
                              const sOFSPlaceOrder& row) {
  return modify(context, order, row.price, row.quantity, {&row.pCode, nullptr});
}
