#include "issues/issue_file_screens.h"

#include "domain/file_replace.h"
#include "issues/issue_file.h"
#include "messaging/issue_admin_requests.h"
#include "messaging/text_format.h"

namespace {

constexpr char kUploadFilter[] =
    "All Files (*.*)|*.*|CSV Files(*.csv)|*.csv; *.csv|Text Documents(*.txt)|*.txt; *.txt||";
constexpr char kExportFilter[] =
    "All Files (*.*)|*.*|CSV Files(*.csv)|*.csv; *.csv|Text Documents(*.txt)|*.txt; "
    "*.txt|EXCEL Files(*.xls)|*.xls; *.xls||";
// The bid list export's default name, kept for the issue list too.
constexpr char kExportName[] = "BasketOrderOFS.csv";

}  // namespace

void uploadIssueFile(IssuesPort& port) {
  if (!port.hasAddIssueRight()) return;
  PromptPort& prompt = port.prompt();
  const std::string path = prompt.chooseFile(false, "", kUploadFilter);
  if (path.empty()) return;
  const IssueFileRead read = loadIssueFile(path, localIssueDay(port.now()));
  if (!read.opened) return prompt.message("File Open Error");
  for (const IssueFileRefusal& refusal : read.refusals)
    prompt.message("Upload OFS Issue Error:" + refusal.message + " In Line Number " +
                   std::to_string(refusal.number));
  // Only once the whole file is read, so that the end flags ride on the last accepted issue.
  for (size_t i = 0; i < read.issues.size(); ++i)
    requestAddIssue(port.messageLayer(), read.issues[i], 1, i + 1 == read.issues.size() ? 1 : 0);
  prompt.message(formatText("Total Records : %d. Uploaded OFS Issues Successfully : %d.",
                            read.records, static_cast<int>(read.issues.size())));
}

void exportIssueFile(IssuesPort& port) {
  if (!port.hasAddIssueRight()) return;
  PromptPort& prompt = port.prompt();
  const std::vector<const sOFSCol*> issues = port.knownIssues();
  if (issues.empty()) return prompt.message("No items in the list");
  const std::string path = prompt.chooseFile(true, kExportName, kExportFilter);
  if (path.empty()) return;
  switch (writeTextFile(path, issueFileText(issues))) {
    case TextFileWrite::OpenFailed:
      return prompt.message("File Open Error");
    case TextFileWrite::WriteFailed:
      return prompt.message("Issue File Write Error:");
    case TextFileWrite::Written:
      return prompt.message("Issue File Created Successfully");
  }
}
