#include "host/sim/data_records.h"

#include <algorithm>

#include "host/sim/sim_dates.h"
#include "host/sim/sim_numbers.h"

namespace sim {

namespace {

constexpr std::pair<const char*, uint32_t> kIssueKeys[] = {
    {"id", 63032},        {"exchange", 63001}, {"code", 3},           {"series", 10610},
    {"floor", 63022},     {"rms", 54079},      {"open", 49165},       {"close", 79},
    {"minqty", 55},       {"size", 10062},     {"lot", 10027},        {"hni", 64211},
    {"tick", 63005},      {"cutoff", 63059},   {"symbol", 10100},     {"company", 49033},
    {"asset", 54730},     {"ceiling", 63023},  {"indicative", 54803}, {"bidding", 54571},
    {"modcancel", 61362}, {"retail", 54009},   {"closing", 67}};

std::optional<uint32_t> issueFieldId(const std::string& key) {
  for (const auto& [name, id] : kIssueKeys)
    if (key == name) return id;
  const auto number = parseCount(key);
  if (number && *number > 0 && *number < 65536) return static_cast<uint32_t>(*number);
  return std::nullopt;
}

bool isIpoExchange(const std::string& key) {
  return key == "nse_ipo" || key == "bse_ipo";
}

bool isDate(const std::string& text) {
  return parseSigned(text) || parseDayText(text);
}

std::string checkIssue(const Issue& issue, const ExchangeData& data) {
  using namespace issue_field;
  for (uint32_t id : {kId, kExchange, kSymbol, kOpen, kClose})
    if (issue.get(id).empty()) return "issue needs field " + std::to_string(id);
  if (!isIpoExchange(issue.exchange())) return "issue exchange must be nse_ipo or bse_ipo";
  if (!isDate(issue.get(kOpen)) || !isDate(issue.get(kClose)))
    return "issue dates are days from today (+3, -2, 0) or DD/MM/YYYY";
  for (const Issue& other : data.issues) {
    if (other.id() == issue.id()) return "issue " + issue.id() + " is there twice";
    if (other.exchange() == issue.exchange() && other.symbol() == issue.symbol())
      return "symbol " + issue.symbol() + " is there twice";
  }
  return {};
}

const Issue* findIssue(const ExchangeData& data, const std::string& id) {
  for (const Issue& issue : data.issues)
    if (issue.id() == id) return &issue;
  return nullptr;
}

Order takeOrder(Pairs& pairs) {
  Order order;
  order.number = pairs.take("no", "");
  order.user = pairs.take("user", "U1");
  order.issueId = pairs.take("issue", "");
  order.account = pairs.take("account", "");
  order.walkin = pairs.take("walkin", "");
  order.quantity = pairs.take("qty", "");
  order.proCli = pairs.take("procli", "C");
  order.margin = pairs.take("margin", "YES");
  order.pCode = pairs.take("pcode", "");
  order.bsePCode = pairs.take("bsepcode", "");
  order.category = pairs.take("category", "");
  order.status = pairs.take("status", "open");
  order.reason = pairs.take("reason", "");
  order.cfStatus = pairs.take("cf", "Active");
  order.exchangeNumber = pairs.take("exchangeno", "");
  return order;
}

}  // namespace

std::optional<std::string> Pairs::take(const std::string& key) {
  for (size_t i = 0; i < pairs_.size(); ++i) {
    if (pairs_[i].first != key) continue;
    taken_[i] = true;
    return pairs_[i].second;
  }
  return std::nullopt;
}

std::string Pairs::take(const std::string& key, const std::string& otherwise) {
  return take(key).value_or(otherwise);
}

std::string Pairs::leftover() const {
  for (size_t i = 0; i < pairs_.size(); ++i)
    if (!taken_[i]) return pairs_[i].first;
  return {};
}

std::string readIssue(Pairs& pairs, ExchangeData& data) {
  Issue issue;
  for (const auto& [key, value] : pairs.all()) {
    const auto id = issueFieldId(key);
    if (!id) continue;  // left over, so reported
    pairs.take(key);
    issue.fields[*id] = value;
  }
  std::string error = checkIssue(issue, data);
  if (error.empty()) data.issues.push_back(std::move(issue));
  return error;
}

std::string readAccount(Pairs& pairs, ExchangeData& data) {
  Account account{pairs.take("id", ""), pairs.take("pcode", ""), pairs.take("custodian", ""),
                  pairs.take("name", "")};
  if (account.id.empty()) return "account needs id";
  if (std::any_of(data.accounts.begin(), data.accounts.end(),
                  [&](const Account& a) { return a.id == account.id; }))
    return "account " + account.id + " is there twice";
  data.accounts.push_back(std::move(account));
  return {};
}

std::string readCategory(Pairs& pairs, ExchangeData& data) {
  CategoryRow row{pairs.take("series", ""), pairs.take("value", "")};
  if (row.series.empty() || row.value.empty()) return "category needs series and value";
  data.categories.push_back(std::move(row));
  return {};
}

std::string readAsset(Pairs& pairs, ExchangeData& data) {
  Asset asset{pairs.take("exchange", ""), pairs.take("symbol", ""), 0, 2};
  const auto decimals = parseCount(pairs.take("decimals", "2"));
  if (asset.exchange != "nse_cm" && asset.exchange != "bse_cm")
    return "asset exchange must be nse_cm or bse_cm";
  if (asset.symbol.empty()) return "asset needs symbol";
  if (!decimals || *decimals > 6) return "asset decimals must be 0 to 6";
  asset.decimals = static_cast<int>(*decimals);
  const auto ltp = parseFixed(pairs.take("ltp", ""), asset.decimals);
  if (!ltp)
    return "asset ltp must be a price with at most " + std::to_string(*decimals) + " decimals";
  asset.ltp = *ltp;
  data.assets.push_back(std::move(asset));
  return {};
}

std::string readPeer(Pairs& pairs, ExchangeData& data) {
  const std::string user = pairs.take("user", "");
  if (user.empty()) return "peer needs user";
  data.peerData[user] = pairs.take("data", "");
  return {};
}

std::string readOrder(Pairs& pairs, ExchangeData& data) {
  Order order = takeOrder(pairs);
  const std::string price = pairs.take("price", "");
  const auto paise = parseFixed(price, 2);
  const Issue* issue = findIssue(data, order.issueId);
  if (!parseCount(order.number)) return "order needs a number no=";
  if (!issue) return "order names issue " + order.issueId + ", which no earlier line gives";
  if (order.account.empty() == order.walkin.empty()) return "order needs account= or walkin=";
  if (!parseCount(order.quantity)) return "order needs a quantity qty=";
  if (price != "MKT" && !paise) return "order price is rupees (101.50) or MKT";
  for (const Order& other : data.orders)
    if (other.number == order.number) return "order " + order.number + " is there twice";
  order.exchange = issue->exchange();
  order.symbol = issue->symbol();
  order.priceType = paise ? "L" : "MKT";
  order.price = paise ? std::to_string(*paise) : "MKT";
  data.orders.push_back(std::move(order));
  return {};
}

}  // namespace sim
