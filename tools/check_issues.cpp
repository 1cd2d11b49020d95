// ofs-check issues: an issue file through the upload's reader and line checks.
#include <ctime>
#include <memory>
#include <ostream>

#include "issues/issue_file.h"
#include "tools/check_commands.h"

namespace {

struct IssuesOptions {
  std::string today;
  std::string file;
};

int checkIssues(const IssuesOptions& o, std::ostream& out, std::ostream& err) {
  std::optional<IssueDay> today = localIssueDay(std::time(nullptr));
  if (!o.today.empty()) today = issueFileDate(o.today);
  if (!today) {
    err << "ofs-check: --today: not a date: " << o.today << '\n';
    return kUsageError;
  }
  const IssueFileRead read = loadIssueFile(o.file, today);
  if (!read.opened) {
    err << o.file << ": File Open Error\n";
    return kUsageError;
  }
  for (const IssueFileRefusal& refusal : read.refusals)
    out << o.file << ':' << refusal.line << ": " << refusal.message << '\n';
  out << read.records << " lines, " << read.issues.size() << " accepted, " << read.refusals.size()
      << " refused\n";
  return read.refusals.empty() ? kAllAccepted : kSomeRefused;
}

}  // namespace

void addIssuesCommand(CLI::App& app, CheckRun& run) {
  auto o = std::make_shared<IssuesOptions>();
  CLI::App* command = app.add_subcommand(
      "issues",
      "An issue file (header line, then one issue a line) through the issue upload's checks.\n"
      "Line numbers are an editor's: the header is line 1. The count of lines leaves the header\n"
      "out, as the upload's total does.");
  command->add_option("--today", o->today,
                      "DD/MM/YYYY: the day a start date may not be before (default: the clock)");
  command->add_option("FILE", o->file, "The issue file")->required();
  command->callback([&run, o] {
    run = [o](std::ostream& out, std::ostream& err) { return checkIssues(*o, out, err); };
  });
}
