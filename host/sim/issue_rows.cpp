#include "host/sim/issue_rows.h"

#include <algorithm>
#include <array>

#include "host/sim/sim_dates.h"
#include "host/sim/sim_numbers.h"

namespace sim {

namespace {

constexpr std::array<uint32_t, 31> kRowOrder = {
    63032, 63001, 3,     10610, 13041, 63022, 54079, 49165, 79,    107,   55,
    10062, 10027, 54009, 64211, 67,    12019, 12020, 63005, 13004, 10046, 63059,
    10100, 49033, 61002, 54730, 63023, 54803, 54571, 61362, 63017};

bool isDateField(uint32_t id) {
  return id == issue_field::kOpen || id == issue_field::kClose;
}

bool inRowOrder(uint32_t id) {
  return std::find(kRowOrder.begin(), kRowOrder.end(), id) != kRowOrder.end();
}

}  // namespace

std::string Issue::get(uint32_t id) const {
  auto it = fields.find(id);
  return it == fields.end() ? std::string() : it->second;
}

SimFields issueRow(const Issue& issue, int64_t today) {
  SimFields row;
  auto add = [&](uint32_t id, const std::string& value) {
    row.emplace_back(id, isDateField(id) ? resolveDate(value, today) : value);
  };
  for (uint32_t id : kRowOrder) {
    auto it = issue.fields.find(id);
    if (it != issue.fields.end()) add(id, it->second);
  }
  // Fields the list does not name follow, by id.
  for (const auto& [id, value] : issue.fields)
    if (!inRowOrder(id)) add(id, value);
  return row;
}

SimFields companyIssueRow(const Issue& issue) {
  using namespace issue_field;
  const auto tick = parseFixed(issue.get(kTick), 2);
  const std::string minimum = issue.get(kMinQuantity);
  return {{kId, issue.id()},
          {kExchange, issue.exchange()},
          {kSymbol, issue.symbol()},
          {kCompany, issue.get(kCompany)},
          {kTick, tick ? std::to_string(*tick) : "0"},
          {kMinQuantity, minimum},
          {kMinQuantity, minimum},
          {kLot, issue.get(kLot)},
          {kCutOff, issue.get(kCutOff)}};
}

std::optional<int64_t> issueDay(const Issue& issue, uint32_t id, int64_t today) {
  return parseDayText(resolveDate(issue.get(id), today));
}

}  // namespace sim
