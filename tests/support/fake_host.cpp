#include "tests/support/fake_host.h"

#include <ctime>

#include "connectvorn/connectvorn.h"
#include "plugin/control_block.h"

namespace {

FakeHost* host = nullptr;
FakeHostState& st() {
  return host->state;
}

VornExeApp exeApp{"VornTrader 9.1"};

VornExeApp* getExeApp() {
  return &exeApp;
}
int isRight(const std::string& name) {
  return st().rights.count(name) ? 1 : 0;
}
int peerData(std::string& a, std::string& b, const std::string&) {
  a = st().peer1;
  b = st().peer2;
  return 1;
}
IIrbeRxControl* getControl(int kind, IIrbeNotifier*) {
  const int number = static_cast<int>(st().controls.size()) + 1;
  st().controls.push_back(std::make_unique<FakeRxControl>(kind, number, &st().events));
  st().events.push_back("control " + std::to_string(kind));
  return st().controls.back().get();
}
void destroyControl(IIrbeRxControl* c) {
  st().events.push_back("destroy control " + std::to_string(c->Kind()));
}
void addToLog(const std::string& line) {
  st().events.push_back("log " + otpx::quote(line));
}
int registerHotkey(void*, const std::string& caption, int number, const std::string& name,
                   const std::string& key, const std::string& owner) {
  st().events.push_back("hotkey " + otpx::quote(caption) + " " + std::to_string(number) + " " +
                        otpx::quote(name) + " " + otpx::quote(key) + " " + otpx::quote(owner));
  return 1;
}
int pcode(const std::string& account, std::string& out) {
  auto it = st().pcodes.find(account);
  if (it == st().pcodes.end()) return 0;
  out = it->second;
  return 1;
}
int validAccount(const std::string& a) {
  for (const auto& known : st().accounts)
    if (known == a) return 1;
  return 0;
}
int uuid(std::string& out) {
  out = "UUID-" + std::to_string(++st().uuidCounter);
  return 1;
}
bool overview() {
  return st().clientOverview;
}
int assigned(StringList& out) {
  out = st().assignedClients;
  return out.empty() ? 0 : 1;
}
int fontVariation(int64_t* a, int64_t* b) {
  *a = 7;
  *b = 9;
  return 1;
}
int searchList(const std::string&, StringList& out) {
  out = st().searchList;
  return 1;
}
int searchDelay() {
  return 0;
}
int userDirectory(std::string& dir) {
  dir = st().userDirectory;
  return dir.empty() ? 0 : 1;
}
int hostBox(const std::string& text) {
  st().events.push_back("hostbox " + otpx::quote(text));
  return 1;
}
int mappedAccounts(StringList& out) {
  out = st().accounts;
  return 1;
}

const std::map<std::string, void*>& exported() {
  static const std::map<std::string, void*> table = {
      {"pu_get_exe_app", reinterpret_cast<void*>(getExeApp)},
      {"pu_is_actionright_enabled", reinterpret_cast<void*>(isRight)},
      {"pu_get_peer_data", reinterpret_cast<void*>(peerData)},
      {"GetIrbeRxControl", reinterpret_cast<void*>(getControl)},
      {"DestoryIrbeRxCOntrol", reinterpret_cast<void*>(destroyControl)},
      {"pu_add_to_tabbed_log", reinterpret_cast<void*>(addToLog)},
      {"register_hotkey", reinterpret_cast<void*>(registerHotkey)},
      {"pu_get_pcode", reinterpret_cast<void*>(pcode)},
      {"pu_is_valid_account", reinterpret_cast<void*>(validAccount)},
      {"pu_get_uuid", reinterpret_cast<void*>(uuid)},
      {"pu_is_ClientOverviewEnabled", reinterpret_cast<void*>(overview)},
      {"pu_get_AssignedClients", reinterpret_cast<void*>(assigned)},
      {"pu_get_FontVariation", reinterpret_cast<void*>(fontVariation)},
      {"pu_get_UserDirectory", reinterpret_cast<void*>(userDirectory)},
      {"pu_get_client_search_time", reinterpret_cast<void*>(searchDelay)},
      {"pu_get_entered_text_results", reinterpret_cast<void*>(searchList)},
      {"pu_show_message_box", reinterpret_cast<void*>(hostBox)},
      {"pu_get_all_mappedAccount_ids", reinterpret_cast<void*>(mappedAccounts)},
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
