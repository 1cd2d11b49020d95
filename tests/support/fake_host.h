// A host terminal in miniature for lifecycle and screen tests: exported services backed by one
// process-wide state, a platform that runs workers at once, and a host application that opens
// the plug-in's document when asked. One FakeHost at a time.
#pragma once

#include <array>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "issues/watch_view.h"
#include "plugin/plugin_platform.h"
#include "tests/support/fake_rx_control.h"
#include "tests/support/local_time.h"
#include "tests/support/recording_prompt.h"

struct FakeHostState {
  std::set<std::string> rights{"VT: OFS"};
  std::set<std::string> missingServices;  // exported names the host does not offer
  bool hasModule = true;
  std::string peer1;
  std::string peer2;
  std::vector<std::string> accounts;
  std::map<std::string, std::string> pcodes;
  bool clientOverview = false;
  std::vector<std::string> assignedClients;
  std::string userDirectory;
  // What the client search finds, whatever was typed, after no delay.
  std::vector<std::string> searchList;
  int uuidCounter = 0;

  // What the plug-in did to the host, in order: send/subscribe lines of the receive controls,
  // `log "..."`, `hostbox "..."`, `hotkey ...`, `control kind`, `destroy control`.
  std::vector<std::string> events;
  std::vector<std::unique_ptr<FakeRxControl>> controls;
};

class FakeHost : public PluginPlatform, public SymbolLookup {
 public:
  FakeHost();
  ~FakeHost();

  FakeHostState state;
  RecordingPrompt promptLog;
  int64_t clock = 0;  // seconds since 1970
  bool frameOpen = false;
  std::unique_ptr<CWatchView> view;  // what the document's frame would hold
  int layoutSaves = 0;
  std::vector<std::array<int64_t, 2>> fontsReapplied;  // variation and stamp

  // SymbolLookup
  void* find(const char* name) const override;
  // PluginPlatform
  const SymbolLookup* hostModule() override { return state.hasModule ? this : nullptr; }
  PromptPort& prompt() override { return promptLog; }
  IVornDocTemplate* createDocTemplate(COFSControlBlock& block) override;
  bool frameExists() const override { return frameOpen; }
  void showFrame() override { state.events.push_back("show frame"); }
  void saveLayoutAndCloseFrame() override;
  void destroyDialogWindows() override {}
  void setRecoveryFiles(const std::string& userSettings, const std::string& dialogPos) override;
  void createImageList() override {}
  void reapplyFonts(int64_t variation, int64_t stamp) override {
    fontsReapplied.push_back({variation, stamp});
  }
  void startDetached(std::function<void()> work) override { work(); }
  int64_t now() const override { return clock; }

  // A host application whose main window opens the document it is asked for.
  IVornHostApp* app();

  std::vector<std::string> recoveryFiles;
};
