// Sequences of answers and live updates, each a blank-line separated block of `id=value`
// lines, through both entry points of the dispatcher against one set of records.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "connectvorn/connectvorn.h"
#include "messaging/response_dispatcher.h"

namespace {

class Silent : public PromptPort {
 public:
  void message(const std::string&) override {}
  bool question(const std::string&) override { return true; }
  std::string chooseFile(bool, const std::string&, const std::string&) override { return {}; }
  void focus(const std::string&) override {}
};

class Context : public DispatchContext {
 public:
  Context() : layer_(connectvornOps(), prompt_) {}
  const OtpOps& otp() override { return connectvornOps(); }
  OFSRecords& records() override { return records_; }
  OrderBookLists& orderBook() override { return book_; }
  MessageLayer& messageLayer() override { return layer_; }
  void tabbedLog(const std::string&) override {}
  void messageBox(const std::string&) override {}
  bool hasAddIssueRight() override { return adminRight_ = !adminRight_; }
  std::string defaultPCode() override { return "PC"; }
  void storePeerData(const std::string&) override {}
  void issueAdded(sOFSCol&) override {}
  void assetFirstShown(const std::string&, const std::string&) override {}
  void refreshWatchView() override {}
  bool endIssueDialog() override { return true; }
  void historyRowAdded(std::unique_ptr<sOFSOrderInfo>) override {}
  void historyReplyEnded() override {}
  MarketDepthState* marketDepth() override { return &depth_; }
  void marketDepthChanged() override {}
  void handInstrumentToHost(const std::string&, const std::string&) override {}

 private:
  Silent prompt_;
  MessageLayer layer_;
  OFSRecords records_;
  OrderBookLists book_;
  MarketDepthState depth_{"nse_ipo", "ABC-RS", "NA", {}, 0};
  bool adminRight_ = false;
};

// "32767=om_get_ofs_issues\n63032=I1\n..." into fields; a line without '=' is skipped.
std::unique_ptr<otp_message> parseBlock(const std::string& block) {
  std::vector<std::pair<uint32_t, std::string>> fields;
  size_t start = 0;
  while (start <= block.size()) {
    size_t end = block.find('\n', start);
    if (end == std::string::npos) end = block.size();
    const std::string line = block.substr(start, end - start);
    const size_t eq = line.find('=');
    if (eq != std::string::npos && eq > 0 && eq <= 10) {
      uint64_t id = 0;
      bool digits = true;
      for (size_t i = 0; i < eq; ++i) {
        digits = digits && line[i] >= '0' && line[i] <= '9';
        id = id * 10 + static_cast<uint64_t>(line[i] - '0');
      }
      if (digits && id <= UINT32_MAX)
        fields.emplace_back(static_cast<uint32_t>(id), line.substr(eq + 1));
    }
    start = end + 1;
  }
  std::vector<otpx::Field> views;
  for (const auto& [id, value] : fields) views.push_back({id, value});
  return otp_message::build(views);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  Context context;
  size_t start = 0;
  bool live = false;
  while (start < input.size()) {
    size_t end = input.find("\n\n", start);
    if (end == std::string::npos) end = input.size();
    auto msg = parseBlock(input.substr(start, end - start));
    // A block starting with "!" is a live update; every other an answer.
    live = start < input.size() && input[start] == '!';
    if (msg) {
      if (live) {
        dispatchLiveUpdate(context, msg.get());
      } else {
        dispatchResponse(context, msg.get());
      }
    }
    start = end + 2;
  }
  return 0;
}
