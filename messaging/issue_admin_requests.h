// Requests that administer issues. Every builder returns 1 whatever happened.
#pragma once

#include <cstdint>
#include <string>

#include "domain/allotment_row.h"
#include "domain/records.h"
#include "messaging/message_layer.h"

// One issue, from the dialog (both flags zero: the reply ends the dialog) or one row of an
// issue file (upload set; the file's last issue also sets lastRow). The end tag is sent only
// when the two flags agree.
int32_t requestAddIssue(MessageLayer& layer, const sOFSCol& issue, uint64_t upload,
                        uint64_t lastRow);
// One accepted allotment line, prices already in paise.
int32_t requestAllotment(MessageLayer& layer, const sOFSAllotmentRow& row,
                         const std::string& exchange);
int32_t requestCancelUnallotted(MessageLayer& layer, const std::string& issueId,
                                const std::string& exchange);
