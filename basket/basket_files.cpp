// "Export List" and "Browse": the basket list to and from a basket file.
#include "basket/basket_file.h"
#include "basket/basket_manager.h"

// One-letter flags are assigned as strings: gcc 12 at -O3 misreads a literal assignment as an
// overlapping copy (-Wrestrict).
using namespace std::string_literals;

namespace {

constexpr char kSaveFilter[] =
    "All Files (*.*)|*.*|CSV Files(*.csv)|*.csv; *.csv|Text Documents(*.txt)|*.txt; "
    "*.txt|EXCEL Files(*.xls)|*.xls; *.xls||";
constexpr char kLoadFilter[] =
    "All Files (*.*)|*.*|CSV Files(*.csv)|*.csv; *.csv|Text Documents(*.txt)|*.txt; *.txt||";

}  // namespace

void CBasketManagerOFS::save() {
  PromptPort& prompt = port_.prompt();
  if (rows_.empty()) return prompt.message("No items in the list");
  const std::string path = prompt.chooseFile(true, "BasketOrderOFS.csv", kSaveFilter);
  if (path.empty()) return;
  std::vector<const sOFSPlaceOrder*> rows;
  for (const sOFSPlaceOrder& row : rows_) rows.push_back(&row);
  prompt.message(saveBasketFile(path, rows));
}

void CBasketManagerOFS::load() {
  PromptPort& prompt = port_.prompt();
  const std::string path = prompt.chooseFile(false, "", kLoadFilter);
  if (path.empty()) return;
  fields_.path = path;
  const std::string oldTitle = title_;
  title_ += " - Loading Basket. Please Wait.... ";
  changed();
  BasketLoad loaded = loadBasketFile(path, port_.userId());
  title_ = oldTitle;
  if (!loaded.opened) {
    changed();
    return prompt.message("File Open Error");
  }
  rows_ = std::move(loaded.rows);
  for (sOFSPlaceOrder& row : rows_) row.ticked = "N"s;
  placeEnabled_ = true;
  showCount();
  changed(true);
}
