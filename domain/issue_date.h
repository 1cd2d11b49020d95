// Dates of the issue list ("21/11/2026", "21-Nov-2026", "21Nov2026") as comparable times.
#pragma once

#include <cstdint>
#include <string>

// Calendar time (local midnight) of the date; -1 when the text is not a date or names a day the
// month does not have. A refused open date therefore never makes an issue forthcoming, and a
// refused close date puts it among the past issues.
int64_t parseIssueDate(const std::string& text);
