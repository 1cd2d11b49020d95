#include "tools/ofs_check.h"

#include <algorithm>
#include <ostream>

#include "tools/check_commands.h"

namespace {

std::string oneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

}  // namespace

int runOfsCheck(int argc, const char* const* argv, std::ostream& out, std::ostream& err) {
  CLI::App app{"Reads the plug-in's files as the plug-in would and lists the lines it refuses.",
               "ofs-check"};
  app.require_subcommand(1);
  CheckRun run;
  addBasketCommand(app, run);
  addBidsCommand(app, run);
  addAllotmentCommand(app, run);
  addIssuesCommand(app, run);
  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    out << app.help();
    return kAllAccepted;
  } catch (const CLI::ParseError& e) {
    err << "ofs-check: " << oneLine(e.what()) << "\n";
    return kUsageError;
  }
  return run(out, err);
}
