#include "messaging/issue_admin_requests.h"

int32_t requestCancelUnallotted(MessageLayer& layer, const std::string& issueId,
                                const std::string& exchange) {
  Request r("om_delete_unalloted_ofs_issue", "om_delete_unalloted_ofs_issue is failed , ",
            Control::Second);
  r.add(63001, exchange).add(3, issueId);
  return layer.send(r);
}
