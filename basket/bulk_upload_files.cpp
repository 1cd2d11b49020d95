// "Browse", "Export List" and "Export Invalid Orders": the bulk upload screen's files.
#include "basket/bulk_bid_writers.h"
#include "basket/bulk_upload.h"

namespace {

constexpr char kLoadFilter[] =
    "All Files (*.*)|*.*|CSV Files(*.csv)|*.csv; *.csv|Text Documents(*.txt)|*.txt; *.txt||";
constexpr char kSaveFilter[] =
    "All Files (*.*)|*.*|CSV Files(*.csv)|*.csv; *.csv|Text Documents(*.txt)|*.txt; "
    "*.txt|EXCEL Files(*.xls)|*.xls; *.xls||";

void save(PromptPort& prompt, const std::string& text) {
  const std::string path = prompt.chooseFile(true, "BasketOrderOFS.csv", kSaveFilter);
  if (path.empty()) return;
  switch (writeTextFile(path, text)) {
    case TextFileWrite::OpenFailed:
      return prompt.message("File Open Error");
    case TextFileWrite::WriteFailed:
      return prompt.message("Basket File Write Error:");
    case TextFileWrite::Written:
      break;
  }
  prompt.message("Basket File Created Successfully");
}

}  // namespace

void CBulkUpload::browse(const BidLoadProgress& progress) {
  const std::string path = port_.prompt().chooseFile(false, "", kLoadFilter);
  if (!path.empty()) load(path, progress);
}

void CBulkUpload::exportList() {
  if (rows().empty()) return port_.prompt().message("No items in the list");
  std::string text;
  for (const BidLine& row : rows()) text += bidLineText(row);
  save(port_.prompt(), text);
}

void CBulkUpload::exportInvalid() {
  std::string text;
  for (const std::string& line : refused_) (text += line) += '\n';
  save(port_.prompt(), text);
}
