// ofs-check allotment: an exchange's allotment file through the allotment upload's reader and
// checks, without sending anything.
#include <memory>
#include <ostream>

#include "issues/allotment_file.h"
#include "tools/check_commands.h"

namespace {

int checkAllotment(const std::string& exchange, const std::string& file, std::ostream& out,
                   std::ostream& err) {
  const AllotmentLoad load = loadAllotmentFile(file, allotmentLayoutOf(exchange));
  if (!load.opened) {
    err << file << ": File Open Error\n";
    return kUsageError;
  }
  for (const AllotmentRefusal& refusal : load.refusals)
    out << file << ':' << refusal.line << ": " << refusal.message << '\n';
  out << load.lines << " lines, " << load.rows.size() << " accepted, " << load.refusals.size()
      << " refused\n";
  return load.refusals.empty() ? kAllAccepted : kSomeRefused;
}

}  // namespace

void addAllotmentCommand(CLI::App& app, CheckRun& run) {
  auto exchange = std::make_shared<std::string>();
  auto file = std::make_shared<std::string>();
  CLI::App* command = app.add_subcommand(
      "allotment",
      "An exchange's allotment file, line by line, through the allotment upload's reader and\n"
      "checks. The header line (holding \"SYMBOL\" for BSE, \"Member type\" for NSE) is skipped\n"
      "and not counted; line numbers count it.");
  command->add_option("--exchange", *exchange, "nse_ipo | bse_ipo: the layout to read")
      ->required()
      ->check(CLI::IsMember({"nse_ipo", "bse_ipo"}));
  command->add_option("FILE", *file, "The allotment file")->required();
  command->callback([&run, exchange, file] {
    run = [exchange, file](std::ostream& out, std::ostream& err) {
      return checkAllotment(*exchange, *file, out, err);
    };
  });
}
