#include "messaging/issue_admin_requests.h"

#include "messaging/text_format.h"

namespace {

// The issue's naming tag: its symbol name, joined to its series when it has one.
std::string namingTag(const sOFSCol& issue) {
  if (issue.category.empty()) return issue.field3;
  return formatText("%s-%s", issue.field3.c_str(), issue.category.c_str());
}

const char* endTag(uint64_t upload, uint64_t lastRow) {
  if (upload && lastRow) return "Upload End";
  if (!upload && !lastRow) return "Normal End";
  return nullptr;
}

}  // namespace

int32_t requestAddIssue(MessageLayer& layer, const sOFSCol& issue, uint64_t upload,
                        uint64_t lastRow) {
  const std::string minQuantity =
      formatText("%llu", static_cast<unsigned long long>(issue.minQuantity));
  const std::string issueSize = formatText("%.0lf", issue.issueSize);
  const std::string lotSize = formatText("%llu", static_cast<unsigned long long>(issue.lotSize));
  const std::string tickSize = formatText("%.2lf", issue.tickSize);
  const std::string tag = namingTag(issue);
  const char* end = endTag(upload, lastRow);

  Request r("om_add_ofs_issue", "om_add_ofs_issue is failed , ", Control::Second);
  const auto ifSet = [&r](uint32_t id, const std::string& text) {
    r.addIf(!text.empty(), id, text);
  };
  ifSet(63001, issue.exchange);
  ifSet(3, issue.field3);
  ifSet(10610, issue.category);
  ifSet(13041, issue.field13041);
  ifSet(63022, issue.floorPrice);
  ifSet(54079, issue.field54079);
  ifSet(49165, issue.field49165);
  ifSet(79, issue.field79);
  ifSet(107, issue.field107);
  r.add(55, minQuantity).add(10062, issueSize).add(10027, lotSize);
  ifSet(54009, issue.field54009);
  ifSet(64211, issue.hniLimit);
  ifSet(67, issue.field67);
  r.add(12019, issue.field12019).add(12020, issue.field12020).add(63005, tickSize);
  ifSet(13004, issue.field13004);
  ifSet(10046, issue.field10046);
  ifSet(63059, issue.field63059);
  ifSet(10100, issue.symbol);
  ifSet(49033, issue.field49033);
  ifSet(61002, issue.field61002);
  r.add(54730, issue.assetSymbol);
  ifSet(63023, issue.field63023);
  ifSet(54803, issue.field54803);
  ifSet(54571, issue.biddingFlag);
  ifSet(61362, issue.modifyCancelFlag);
  ifSet(63017, issue.field63017);
  r.add(32760, tag);
  if (end) r.add(32760, end);
  return layer.send(r);
}

int32_t requestAllotment(MessageLayer& layer, const sOFSAllotmentRow& row,
                         const std::string& exchange) {
  Request r("om_ofs_allotment", "om_ofs_allotment is failed , ", Control::Second);
  r.add(63001, exchange).add(3, row.symbol).add(49238, row.orderNo);
  r.add(54001, exchange == "bse_ipo" ? row.ucc : row.client);
  r.add(12004, row.allottedQuantity).add(10306, row.bidPrice);
  // The order book shows 10308 and 10307 as the allotted quantity and price.
  r.add(10308, row.allottedQuantity).add(10307, row.allottedPrice);
  r.add(20001, "fill").add(12003, "B");
  return layer.send(r);
}

int32_t requestCancelUnallotted(MessageLayer& layer, const std::string& issueId,
                                const std::string& exchange) {
  Request r("om_delete_unalloted_ofs_issue", "om_delete_unalloted_ofs_issue is failed , ",
            Control::Second);
  r.add(63001, exchange).add(3, issueId);
  return layer.send(r);
}
