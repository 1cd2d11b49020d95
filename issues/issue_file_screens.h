// "Upload OFS Issue" and "Export All OFS Issues": the issue file in and out, for a user with the
// right "VT: Add OFS Issue". Neither has a window of its own; both speak through the prompt.
#pragma once

#include "issues/issues_port.h"

// Asks for a file, reports each refused line, then sends every accepted issue, the last one
// marked as the end of the upload, and says how many were sent.
void uploadIssueFile(IssuesPort& port);
// Writes every known issue to the file the user names.
void exportIssueFile(IssuesPort& port);
