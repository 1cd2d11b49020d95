// An issue as the exchange sends it: the list row and the company lookup row.
#pragma once

#include <cstdint>
#include <optional>

#include "host/sim/sim_data.h"
#include "host/sim/sim_message.h"

namespace sim {

// Every field of the issue, in the order the issue list sends them, dates made absolute.
SimFields issueRow(const Issue& issue, int64_t today);
// The summary that "get_company_ofs_issue" gives: tick in paise, the minimum quantity as the
// second occurrence of 55.
SimFields companyIssueRow(const Issue& issue);
// The open or close day of the issue; nullopt when its text is no date.
std::optional<int64_t> issueDay(const Issue& issue, uint32_t id, int64_t today);

}  // namespace sim
