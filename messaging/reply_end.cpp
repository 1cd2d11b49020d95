// The message that closes a reply: it carries 32766, whose occurrence 0 is the error code when
// the request failed (an empty code means success) and occurrence 1 the error text.
#include "messaging/dispatch_steps.h"
#include "messaging/query_requests.h"
#include "messaging/text_format.h"

namespace {

bool readErrorCode(const MessageView& end, std::string& code) {
  return end.text(32766, 0, code) && !code.empty();
}

std::string errorLine(const std::string& name, const std::string& code, const char* format) {
  return formatText(format, name.c_str(), static_cast<int>(code.size()), code.data());
}

std::string errorMessagePart(const std::string& errorText) {
  return formatText("Error Msg : %.*s. ", static_cast<int>(errorText.size()), errorText.data());
}

void refreshIssues(DispatchContext& context) {
  context.refreshWatchView();
  requestIssueList(context.messageLayer(), "nse_ipo");
  requestIssueList(context.messageLayer(), "bse_ipo");
}

void issueAdded(DispatchContext& context, const std::string& uploadTag) {
  if (uploadTag == "Upload End") return refreshIssues(context);
  if (uploadTag != "Normal End") return;
  refreshIssues(context);
  std::string text = context.endIssueDialog() ? "OFS issue added successfully"
                                              : "OFS issue modification is successful";
  context.tabbedLog(text);
  context.messageBox(text);
}

// A file upload ("Upload End") reports only to the log; one issue of the dialog also shows
// the error text in a message box.
void issueRefused(DispatchContext& context, const MessageView& end, const std::string& name,
                  const std::string& code, const std::string& uploadTag) {
  std::string line = errorLine(name, code, "Error in response : %s . Error Code : %.*s . ");
  std::string boxText;
  std::string errorText;
  if (end.text(32766, 1, errorText)) {
    line += errorMessagePart(errorText);
    boxText = errorText;
  }
  std::string issueId;
  if (end.text(32760, 0, issueId)) line += "IssueId : " + issueId;
  if (boxText.empty()) boxText = line;  // a refusal without a text still says something
  if (uploadTag == "Normal End") context.messageBox(boxText);
  context.tabbedLog(line);
}

void addIssueEnded(DispatchContext& context, const MessageView& end, const std::string& name) {
  std::string uploadTag;
  if (end.count(32760) > 0) end.text(32760, 1, uploadTag);
  std::string code;
  if (readErrorCode(end, code)) return issueRefused(context, end, name, code, uploadTag);
  issueAdded(context, uploadTag);
}

}  // namespace

void handleReplyEnd(DispatchContext& context, const MessageView& end, const std::string& name) {
  if (name == "om_add_ofs_issue") return addIssueEnded(context, end, name);
  if (name == "om_order_report_ofs") rebuildOrderBook(context.records(), context.orderBook());
  if (name == "om_get_order_history_ofs") context.historyReplyEnded();
  std::string code;
  if (readErrorCode(end, code))
    context.tabbedLog(errorLine(name, code, "Error in response : %s . Error Code : %.*s"));
}
