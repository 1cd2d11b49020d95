#include "tests/support/fake_host.h"

#include <algorithm>
#include <ctime>

#include "connectvorn/connectvorn.h"
#include "plugin/control_block.h"

namespace {

FakeHost* host = nullptr;
FakeHostState& st() {
  return host->state;
}

VornExeApp exeApp{"VornTrader 9.1"};

// Hands `value` out through `out` and answers `result`, as most services do.
template <typename T>
int give(T& out, const T& value, int result = 1) {
  out = value;
  return result;
}
int record(const std::string& event) {
  st().events.push_back(event);
  return 1;
}

// The exported services; each short enough to read on one line.
struct Services {
  static VornExeApp* getExeApp() { return &exeApp; }
  static int isRight(const std::string& name) { return st().rights.count(name) ? 1 : 0; }
  static int peerData(std::string& a, std::string& b, const std::string&) {
    return give(a, st().peer1) & give(b, st().peer2);
  }
  static IIrbeRxControl* getControl(int kind, IIrbeNotifier*) {
    const int number = static_cast<int>(st().controls.size()) + 1;
    st().controls.push_back(std::make_unique<FakeRxControl>(kind, number, &st().events));
    record("control " + std::to_string(kind));
    return st().controls.back().get();
  }
  static void destroyControl(IIrbeRxControl* c) {
    record("destroy control " + std::to_string(c->Kind()));
  }
  static void addToLog(const std::string& line) { record("log " + otpx::quote(line)); }
  static int registerHotkey(void*, const std::string& caption, int number, const std::string& name,
                            const std::string& key, const std::string& owner) {
    return record("hotkey " + otpx::quote(caption) + " " + std::to_string(number) + " " +
                  otpx::quote(name) + " " + otpx::quote(key) + " " + otpx::quote(owner));
  }
  static int pcode(const std::string& account, std::string& out) {
    auto it = st().pcodes.find(account);
    return it == st().pcodes.end() ? 0 : give(out, it->second);
  }
  static int validAccount(const std::string& a) {
    return std::count(st().accounts.begin(), st().accounts.end(), a) ? 1 : 0;
  }
  static int uuid(std::string& out) {
    return give(out, "UUID-" + std::to_string(++st().uuidCounter));
  }
  static bool overview() { return st().clientOverview; }
  static int assigned(StringList& out) {
    return give(out, st().assignedClients, !st().assignedClients.empty());
  }
  static int fontVariation(int64_t* a, int64_t* b) {
    return give(*a, int64_t{7}) & give(*b, int64_t{9});
  }
  static int searchList(const std::string&, StringList& out) { return give(out, st().searchList); }
  static int searchDelay() { return 0; }
  static int userDirectory(std::string& dir) {
    return give(dir, st().userDirectory, !st().userDirectory.empty());
  }
  static int hostBox(const std::string& text) { return record("hostbox " + otpx::quote(text)); }
  static int mappedAccounts(StringList& out) { return give(out, st().accounts); }
};

const std::map<std::string, void*>& exported() {
  static const std::map<std::string, void*> table = {
      {"pu_get_exe_app", reinterpret_cast<void*>(Services::getExeApp)},
      {"pu_is_actionright_enabled", reinterpret_cast<void*>(Services::isRight)},
      {"pu_get_peer_data", reinterpret_cast<void*>(Services::peerData)},
      {"GetIrbeRxControl", reinterpret_cast<void*>(Services::getControl)},
      {"DestoryIrbeRxCOntrol", reinterpret_cast<void*>(Services::destroyControl)},
      {"pu_add_to_tabbed_log", reinterpret_cast<void*>(Services::addToLog)},
      {"register_hotkey", reinterpret_cast<void*>(Services::registerHotkey)},
      {"pu_get_pcode", reinterpret_cast<void*>(Services::pcode)},
      {"pu_is_valid_account", reinterpret_cast<void*>(Services::validAccount)},
      {"pu_get_uuid", reinterpret_cast<void*>(Services::uuid)},
      {"pu_is_ClientOverviewEnabled", reinterpret_cast<void*>(Services::overview)},
      {"pu_get_AssignedClients", reinterpret_cast<void*>(Services::assigned)},
      {"pu_get_FontVariation", reinterpret_cast<void*>(Services::fontVariation)},
      {"pu_get_UserDirectory", reinterpret_cast<void*>(Services::userDirectory)},
      {"pu_get_client_search_time", reinterpret_cast<void*>(Services::searchDelay)},
      {"pu_get_entered_text_results", reinterpret_cast<void*>(Services::searchList)},
      {"pu_show_message_box", reinterpret_cast<void*>(Services::hostBox)},
      {"pu_get_all_mappedAccount_ids", reinterpret_cast<void*>(Services::mappedAccounts)},
  };
  return table;
}

class Template : public IVornDocTemplate {
 public:
  Template(FakeHost& h, COFSControlBlock& b) : host_(h), block_(b) {}
  int ResourceId() const override { return 183; }
  void* OpenDocument(void*) override {
    host_.view = std::make_unique<CWatchView>(block_);
    host_.frameOpen = true;
    return host_.view.get();
  }

 private:
  FakeHost& host_;
  COFSControlBlock& block_;
};

class MainWindow : public IVornMainWindow {
 public:
  bool IsWindow() const override { return true; }
  intptr_t SendMessage(uint32_t message, uintptr_t wparam, intptr_t lparam) override {
    if (message == kWmCommand && lparam == kOpenDocumentParam && wparam)
      reinterpret_cast<IVornDocTemplate*>(wparam)->OpenDocument(nullptr);
    return 0;
  }
};

class App : public IVornHostApp {
 public:
  IVornMainWindow* GetMainWnd() override { return &window_; }
  void AddDocTemplate(IVornDocTemplate*) override {}

 private:
  MainWindow window_;
};

App theApp;

}  // namespace

FakeHost::FakeHost() {
  host = this;
}

FakeHost::~FakeHost() {
  view.reset();
  host = nullptr;
}

void* FakeHost::find(const char* name) const {
  if (state.missingServices.count(name)) return nullptr;
  auto it = exported().find(name);
  return it == exported().end() ? nullptr : it->second;
}

IVornDocTemplate* FakeHost::createDocTemplate(COFSControlBlock& block) {
  return new Template(*this, block);
}

void FakeHost::saveLayoutAndCloseFrame() {
  ++layoutSaves;
  view.reset();
  frameOpen = false;
}

void FakeHost::setRecoveryFiles(const std::string& userSettings, const std::string& dialogPos) {
  recoveryFiles = {userSettings, dialogPos};
}

IVornHostApp* FakeHost::app() {
  return &theApp;
}
