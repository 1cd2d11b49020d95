#include "issues/allotment_upload.h"

#include <cstdio>

#include "issues/allotment_file.h"
#include "messaging/issue_admin_requests.h"

void COFSAllotmentUpload::run(const std::string& exchange) {
  // The watch view refuses the command already; no other path may send an allotment either.
  if (!port_.hasAddIssueRight()) return;
  PromptPort& prompt = port_.prompt();
  const std::string path = prompt.chooseFile(false, "", "CSV Files(*.csv)|*.csv||");
  if (path.empty()) return;
  const AllotmentLayout layout = allotmentLayoutOf(exchange);
  const std::string key = allotmentExchangeKey(layout);
  int records = 0;
  int sent = 0;
  // Each line is reported or sent as soon as it is read, so the user sees the file's order and
  // a read failure half-way leaves the earlier allotments sent.
  const bool read = readAllotmentFile(path, layout, [&](AllotmentLine& line) {
    ++records;
    if (!line.message.empty()) {
      prompt.message("OFS Allotment Upload Error:" + line.message + " In Line Number " +
                     std::to_string(line.line));
      return;
    }
    requestAllotment(port_.messageLayer(), line.row, key);
    ++sent;
  });
  if (!read) {
    prompt.message("File Open Error");
    return;
  }
  char summary[96];
  std::snprintf(summary, sizeof summary,
                "Total Records : %d. Allotments Uploaded Successfully : %d.", records, sent);
  prompt.message(summary);
}
