// An issues port for the administrator's file screens: what they say and the file chooser they
// open join the requests in the channel's transcript, in order. The chooser answers with the
// queued paths, then cancels. The clock reads 24/11/2026 10:00.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "issues/issues_port.h"
#include "tests/support/local_time.h"
#include "tests/support/recording_prompt.h"
#include "tests/support/test_channel.h"

class FakeIssuesPort : public IssuesPort, public RecordingPrompt {
 public:
  MessageLayer& messageLayer() override { return channel.layer; }
  IIrbeRxControl* obtainRxControl(int) override { return nullptr; }
  void releaseRxControl(IIrbeRxControl*) override {}
  void attachWatchView(CWatchView*) override {}
  CWatchView* attachedWatchView() const override { return nullptr; }
  int64_t now() const override { return localTime(24, 11, 2026, 10 * 3600); }
  bool hasAddIssueRight() override { return right; }
  PromptPort& prompt() override { return *this; }
  void hostMessageBox(const std::string&) const override {}
  void log(const std::string&) const override {}
  bool registerHotkey(void*, const HotkeyRow&) override { return true; }
  std::unique_ptr<MarketDepthState>& marketDepthState() override { return depth; }
  std::vector<const sOFSCol*> knownIssues() const override { return issues; }
  void ensurePriceFeed(const std::string&, const std::string&) override {}

  void message(const std::string& text) override { channel.transcript.push_back("msgbox " + text); }
  std::string chooseFile(bool saving, const std::string& name, const std::string& filter) override {
    channel.transcript.push_back((saving ? "save " : "open ") + name + " " + filter);
    return RecordingPrompt::chooseFile(saving, name, filter);
  }

  // The transcript with each request cut to its tags (32760) after the message name.
  Lines shortTranscript() const {
    Lines out;
    for (const std::string& line : channel.transcript) {
      if (line.rfind("send ", 0) != 0) {
        out.push_back(line);
        continue;
      }
      std::string cut = line.substr(0, line.find(' ', 7));
      for (size_t at = line.find(" 32760="); at != std::string::npos;
           at = line.find(" 32760=", at + 1))
        cut += line.substr(at, line.find('"', at + 8) + 1 - at);
      out.push_back(cut);
    }
    return out;
  }

  TestChannel channel;
  bool right = true;
  std::unique_ptr<MarketDepthState> depth;
  std::vector<const sOFSCol*> issues;
};
