#include "messaging/issue_fill.h"

#include <cstdlib>

#include "messaging/field_table.h"

namespace {

using C = sOFSCol;

constexpr TextField<C> kIssueFields[] = {
    {63032, &C::issueId},      {63001, &C::exchange},     {3, &C::field3},
    {10610, &C::category},     {13041, &C::field13041},   {63022, &C::floorPrice},
    {54079, &C::field54079},   {49165, &C::field49165},   {79, &C::field79},
    {107, &C::field107},       {55, &C::minQuantityText}, {10062, &C::issueSizeText},
    {10027, &C::lotSizeText},  {54009, &C::field54009},   {64211, &C::hniLimit},
    {67, &C::field67},         {12019, &C::field12019},   {12020, &C::field12020},
    {63005, &C::tickSizeText}, {13004, &C::field13004},   {10046, &C::field10046},
    {63059, &C::field63059},   {10100, &C::symbol},       {49033, &C::field49033},
    {61002, &C::field61002},   {54730, &C::assetSymbol},  {63023, &C::field63023},
    {54803, &C::field54803},   {54571, &C::biddingFlag},  {61362, &C::modifyCancelFlag},
    {63017, &C::field63017},
};

int64_t toInt64(const std::string& text) {
  return std::strtoll(text.c_str(), nullptr, 10);
}
double toDouble(const std::string& text) {
  return std::strtod(text.c_str(), nullptr);
}

}  // namespace

void fillIssue(const MessageView& row, sOFSCol& issue) {
  fillText<C>(row, issue, kIssueFields);
  issue.minQuantity = toInt64(issue.minQuantityText);
  issue.issueSize = toDouble(issue.issueSizeText);
  issue.lotSize = toInt64(issue.lotSizeText);
  issue.tickSize = toDouble(issue.tickSizeText);
}

void fillIssueSummary(const MessageView& row, sOFSIssueSummary& summary) {
  row.text(63032, 0, summary.issueId);
  row.number(63005, 0, summary.tickSize);
  row.number(55, 1, summary.minQuantity);
  row.text(10027, 0, summary.lotSize);
  row.text(63001, 0, summary.exchange);
  row.text(63059, 0, summary.field63059);
}
