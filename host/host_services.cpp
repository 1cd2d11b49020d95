// The services the terminal exports to its plug-ins, by the names and signatures of
// sdk/host_services.h. They are found by the plug-in through dlsym on this executable.
#include <QCoreApplication>
#include <QMetaObject>
#include <QThread>
#include <ctime>
#include <filesystem>

#include "host/host_state.h"
#include "host/rx_controls.h"
#include "sdk/host_services.h"

#define HOST_EXPORT extern "C" __attribute__((visibility("default"), used))

namespace {

VornExeApp exeApp{"VornTrader reference terminal 1.0"};

// Runs `work` on the UI thread: at once when already there, else queued.
template <typename Work>
void onUiThread(Work work) {
  QCoreApplication* app = QCoreApplication::instance();
  if (!app || QThread::currentThread() == app->thread()) {
    work();
  } else {
    QMetaObject::invokeMethod(app, work, Qt::QueuedConnection);
  }
}

}  // namespace

HOST_EXPORT VornExeApp* pu_get_exe_app() {
  return &exeApp;
}

HOST_EXPORT int pu_is_actionright_enabled(const std::string& rightName) {
  std::lock_guard lock(hostState().mutex);
  return hostState().hasRight(rightName) ? 1 : 0;
}

HOST_EXPORT int pu_get_peer_data(std::string& identity1, std::string& identity2,
                                 const std::string&) {
  std::lock_guard lock(hostState().mutex);
  identity1 = hostState().peer1;
  identity2 = hostState().peer2;
  return 1;
}

HOST_EXPORT IIrbeRxControl* GetIrbeRxControl(int kind, IIrbeNotifier* notifier) {
  return rxControls().create(kind, notifier);
}

HOST_EXPORT void DestoryIrbeRxCOntrol(IIrbeRxControl* control) {
  rxControls().destroy(control);
}

HOST_EXPORT void pu_add_to_tabbed_log(const std::string& line) {
  onUiThread([line] {
    if (hostState().onLog) hostState().onLog(line);
  });
}

HOST_EXPORT int register_hotkey(void* view, const std::string& caption, int number,
                                const std::string& name, const std::string& key,
                                const std::string& owner) {
  if (hostState().onHotkey) hostState().onHotkey(view, caption, number, name, key, owner);
  return 1;
}

HOST_EXPORT int pu_load_Procli_combo(StringList& choices) {
  choices = {"CLI", "PRO"};
  return 1;
}

HOST_EXPORT int pu_load_client_id_combo(StringList& clientIds) {
  std::lock_guard lock(hostState().mutex);
  clientIds = hostState().accountOrder;
  return 1;
}

HOST_EXPORT void pu_on_selchange_procli(const std::string&) {}

HOST_EXPORT int pu_get_pcode(const std::string& accountId, std::string& pcode) {
  std::lock_guard lock(hostState().mutex);
  auto it = hostState().pcodes.find(accountId);
  if (it == hostState().pcodes.end() || it->second.empty()) return 0;
  pcode = it->second;
  return 1;
}

HOST_EXPORT int pu_is_valid_account(const std::string& accountId) {
  std::lock_guard lock(hostState().mutex);
  return hostState().pcodes.count(accountId) ? 1 : 0;
}

HOST_EXPORT int pu_get_uuid(std::string& uuid) {
  std::lock_guard lock(hostState().mutex);
  char text[40];
  std::snprintf(text, sizeof text, "VT-%08d", ++hostState().uuidCounter);
  uuid = text;
  return 1;
}

HOST_EXPORT int pu_get_ActiveClient(std::string& clientId) {
  clientId.clear();
  return 0;
}

HOST_EXPORT int pu_get_client_search_time() {
  return 300;
}

HOST_EXPORT bool pu_is_ClientOverviewEnabled() {
  std::lock_guard lock(hostState().mutex);
  return hostState().clientOverview;
}

HOST_EXPORT int pu_get_AssignedClients(StringList& clientIds) {
  std::lock_guard lock(hostState().mutex);
  clientIds = hostState().assignedClients;
  return clientIds.empty() ? 0 : 1;
}

HOST_EXPORT int pu_get_FontVariation(int64_t* variation, int64_t* stamp) {
  static int64_t counter = 0;
  if (variation) *variation = 0;
  if (stamp) *stamp = ++counter;
  return 1;
}

HOST_EXPORT void pu_clear_FocusFromDropDown(void*) {}

HOST_EXPORT void pu_resize_EditCtrlForFontChange(void*) {}

// Client search: every mapped account whose id starts with the typed text.
HOST_EXPORT int pu_get_entered_text_results(const std::string& typed, StringList& results) {
  std::lock_guard lock(hostState().mutex);
  results.clear();
  for (const std::string& id : hostState().accountOrder)
    if (id.compare(0, typed.size(), typed) == 0) results.push_back(id);
  return 1;
}

HOST_EXPORT int pu_read_settings_from_json(const std::string&, const std::string&,
                                           std::string& value, int) {
  value.clear();
  return 0;
}

HOST_EXPORT int pu_write_settings_to_json(const std::string&, const std::string&,
                                          const std::string&, int) {
  return 0;
}

HOST_EXPORT int pu_get_client_name(const std::string& clientId, std::string& name) {
  name = clientId;
  return 1;
}

HOST_EXPORT int pu_get_find_menu_item_in_roles(const std::string&) {
  return 1;
}

HOST_EXPORT int pu_get_UserDirectory(std::string& directory) {
  std::lock_guard lock(hostState().mutex);
  directory = hostState().currentUserDirectory();
  if (directory.empty()) return 0;
  // A directory that cannot be made is still handed over: the plug-in's writes then fail
  // quietly, as they would on a full disk.
  std::error_code ignored;
  std::filesystem::create_directories(directory, ignored);
  return 1;
}

HOST_EXPORT int pu_get_entered_text_results_from_clientsdb(const std::string& typed,
                                                           StringList& results) {
  return pu_get_entered_text_results(typed, results);
}

HOST_EXPORT int pu_show_message_box(const std::string& text) {
  if (hostState().onMessageBox) hostState().onMessageBox(text);
  return 1;
}

HOST_EXPORT int pu_get_all_mappedAccount_ids(StringList& accountIds) {
  std::lock_guard lock(hostState().mutex);
  accountIds = hostState().accountOrder;
  return 1;
}

HOST_EXPORT int64_t vt_host_time() {
  std::lock_guard lock(hostState().mutex);
  return hostState().clock ? *hostState().clock : static_cast<int64_t>(std::time(nullptr));
}

HOST_EXPORT int vt_service_hidden(const char* serviceName) {
  std::lock_guard lock(hostState().mutex);
  return serviceName && hostState().hiddenServices.count(serviceName) ? 1 : 0;
}
