#include "basket/bulk_bid_file.h"

#include <memory>

#include "basket/bulk_bid_checks.h"
#include "basket/bulk_bid_readers.h"
#include "domain/bid_line_reader.h"

BidFileLoad loadBidFile(const std::string& path, BidFileKind kind, const BidContext& context,
                        const BidLoadProgress& progress) {
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> in(std::fopen(path.c_str(), "rb"), &std::fclose);
  if (!in) return {};
  return readBidFile(in.get(), kind, context, progress);
}

BidFileLoad readBidFile(std::FILE* file, BidFileKind kind, const BidContext& context,
                        const BidLoadProgress& progress) {
  constexpr int kProgressEvery = 8192;
  long total = -1;
  if (progress && std::fseek(file, 0, SEEK_END) == 0) {
    total = std::ftell(file);
    std::rewind(file);
  }
  BidFileLoad load;
  BidLineReader reader(file);
  std::string_view text;
  int count = 0;
  while (reader.next(text)) {
    if (text.empty()) continue;  // a line cut short by a NUL byte is no line at all
    ++load.lines;
    BidLine line;
    std::string message = readBidLine(kind, text, line);
    // The VT kind counts the lines its reader takes; a check refusal quotes the count that
    // includes its own line.
    if (message.empty()) {
      if (kind == BidFileKind::Vt) ++count;
      message = checkBidLine(line, context);
    }
    if (message.empty()) {
      load.rows.push_back(std::move(line));
    } else {
      load.refusals.push_back({reader.lineNumber(), count, std::move(message)});
    }
    if (progress && load.lines % kProgressEvery == 0 && !progress(std::ftell(file), total)) {
      load.stopped = true;
      break;
    }
  }
  // A folder opens but cannot be read: like a file that cannot be opened, it loads nothing.
  if (reader.failed()) return {};
  load.opened = true;
  return load;
}
