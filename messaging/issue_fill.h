// Filling the issue records from "om_get_ofs_issues" and "get_company_ofs_issue" rows.
#pragma once

#include "domain/records.h"
#include "messaging/field_readers.h"

// Every text field in answer order, then the numeric copies.
void fillIssue(const MessageView& row, sOFSCol& issue);
void fillIssueSummary(const MessageView& row, sOFSIssueSummary& summary);
