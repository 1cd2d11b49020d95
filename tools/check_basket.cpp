// ofs-check basket: the refused lines, then the rows in the order the basket list shows them,
// each as the save would write it.
#include <memory>
#include <ostream>

#include "basket/basket_file.h"
#include "tools/check_commands.h"

namespace {

int checkBasket(const std::string& file, std::ostream& out, std::ostream& err) {
  const BasketLoad load = loadBasketFile(file, "");
  if (!load.opened) {
    err << file << ": File Open Error\n";
    return kUsageError;
  }
  for (const BasketRefusal& refusal : load.refusals)
    out << file << ':' << refusal.line << ": " << refusal.message << '\n';
  for (const sOFSPlaceOrder& row : load.rows) out << basketLine(row) << '\n';
  out << load.lines << " lines, " << load.rows.size() << " accepted, " << load.refusals.size()
      << " refused\n";
  return load.refusals.empty() ? kAllAccepted : kSomeRefused;
}

}  // namespace

void addBasketCommand(CLI::App& app, CheckRun& run) {
  auto file = std::make_shared<std::string>();
  CLI::App* command = app.add_subcommand("basket", "A basket file saved by the basket screen");
  command->add_option("FILE", *file, "The basket file")->required();
  command->callback([&run, file] {
    run = [file](std::ostream& out, std::ostream& err) { return checkBasket(*file, out, err); };
  });
}
