// Sequences of answers and live updates, each a blank-line separated block of `id=value`
// lines, through both entry points of the dispatcher against one set of records.
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "connectvorn/connectvorn.h"
#include "messaging/response_dispatcher.h"
#include "tests/support/standalone_context.h"

namespace {

// Alternates the add-issue right so that both sides of the right checks are reached.
class Context : public StandaloneContext {
 public:
  Context() { depth = MarketDepthState{"nse_ipo", "ABC-RS", "NA", {}, 0}; }
  bool hasAddIssueRight() override { return addIssueRight = !addIssueRight; }
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
