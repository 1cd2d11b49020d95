// ofs-check bids: a bulk bid file through the upload screen's readers and checks.
#include <map>
#include <memory>
#include <ostream>

#include "basket/bulk_bid_file.h"
#include "domain/file_replace.h"
#include "tools/check_commands.h"
#include "tools/context_files.h"

namespace {

struct BidsOptions {
  std::string format;
  std::string issues;
  std::string accounts;
  std::string orders;
  std::string tmCode;
  std::string writeAccepted;
  std::string file;
};

const std::map<std::string, BidFileKind> kFormats = {{"neat", BidFileKind::Neat},
                                                     {"now", BidFileKind::Now},
                                                     {"nowmod", BidFileKind::NowModCxl},
                                                     {"vt", BidFileKind::Vt}};

bool readContext(const BidsOptions& o, BidLookups& lookups, std::ostream& err) {
  std::string error;
  if ((!o.issues.empty() && !readIssueFile(o.issues, lookups, error)) ||
      (!o.accounts.empty() && !readAccountsFile(o.accounts, lookups, error)) ||
      (!o.orders.empty() && !readOrdersFile(o.orders, lookups, error))) {
    err << error << '\n';
    return false;
  }
  return true;
}

// The accepted lines exactly as read.
bool writeAccepted(const std::string& path, const std::vector<BidLine>& rows) {
  std::string text;
  for (const BidLine& row : rows) text += row.text();
  return writeTextFile(path, text) == TextFileWrite::Written;
}

int checkBids(const BidsOptions& o, std::ostream& out, std::ostream& err) {
  BidLookups lookups;
  if (!readContext(o, lookups, err)) return kUsageError;
  const BidFileLoad load = loadBidFile(o.file, kFormats.at(o.format), lookups.context(o.tmCode));
  if (!load.opened) {
    err << o.file << ": File Open Error\n";
    return kUsageError;
  }
  for (const BidRefusal& refusal : load.refusals)
    out << o.file << ':' << refusal.line << ": " << refusal.message << '\n';
  if (!o.writeAccepted.empty() && !writeAccepted(o.writeAccepted, load.rows)) {
    err << o.writeAccepted << ": File Open Error\n";
    return kUsageError;
  }
  out << load.lines << " lines, " << load.rows.size() << " accepted, " << load.refusals.size()
      << " refused\n";
  return load.refusals.empty() ? kAllAccepted : kSomeRefused;
}

constexpr char kBidsHelp[] =
    "A bulk bid file, line by line, through the upload screen's readers and checks.\n"
    "Issues are matched by symbol and series for neat, now and nowmod lines, and by issue id\n"
    "for vt lines; the issue file carries no issue number, so a vt line's issue id is matched\n"
    "against SYMBOL-SERIES (\"ABC-Retail\"). The issue file is read as the issue upload reads it\n"
    "(its refused lines give no issue; a start date in the past is not refused there). Without\n"
    "--issues the checks against the issue are skipped; without --accounts those of the account\n"
    "and its participant code; without --orders those of the order a nowmod line names. The\n"
    "checks after a skipped one still run.";

}  // namespace

void addBidsCommand(CLI::App& app, CheckRun& run) {
  auto o = std::make_shared<BidsOptions>();
  CLI::App* command = app.add_subcommand("bids", kBidsHelp);
  command->add_option("--format", o->format, "neat | now | nowmod | vt")
      ->required()
      ->check(CLI::IsMember({"neat", "now", "nowmod", "vt"}));
  command->add_option("--issues", o->issues, "The issue file (the exported issue list)");
  command->add_option("--accounts", o->accounts, "Lines of \"account,participant code\"");
  command->add_option("--orders", o->orders,
                      "Lines of \"order number,status,symbol-series,account,participant code,"
                      "quantity,price in paise\"");
  command->add_option("--tm-code", o->tmCode, "The trading member's code (default: empty)");
  command->add_option("--write-accepted", o->writeAccepted,
                      "Writes the accepted lines, as read, to this file");
  command->add_option("FILE", o->file, "The bid file")->required();
  command->callback([&run, o] {
    run = [o](std::ostream& out, std::ostream& err) { return checkBids(*o, out, err); };
  });
}
