// The host's services, bound by name when the control block is built. A service the host does
// not export stays null and every caller tests for that.
#pragma once

#include <cstddef>

#include "sdk/host_services.h"

struct HostServiceTable {
  pu_get_peer_data_fn getPeerData = nullptr;  // bound first and kept apart from the rest
  GetIrbeRxControl_fn getRxControl = nullptr;
  DestoryIrbeRxCOntrol_fn destroyRxControl = nullptr;
  pu_add_to_tabbed_log_fn addToTabbedLog = nullptr;
  register_hotkey_fn registerHotkey = nullptr;
  pu_load_Procli_combo_fn loadProCliCombo = nullptr;
  pu_load_client_id_combo_fn loadClientIdCombo = nullptr;
  pu_on_selchange_procli_fn onSelChangeProCli = nullptr;
  pu_get_pcode_fn getPCode = nullptr;
  pu_is_valid_account_fn isValidAccount = nullptr;
  pu_get_uuid_fn getUuid = nullptr;
  pu_get_ActiveClient_fn getActiveClient = nullptr;
  pu_get_client_search_time_fn getClientSearchTime = nullptr;
  pu_is_ClientOverviewEnabled_fn isClientOverviewEnabled = nullptr;
  pu_get_AssignedClients_fn getAssignedClients = nullptr;
  pu_get_FontVariation_fn getFontVariation = nullptr;
  pu_clear_FocusFromDropDown_fn clearFocusFromDropDown = nullptr;
  pu_resize_EditCtrlForFontChange_fn resizeEditForFontChange = nullptr;
  pu_get_entered_text_results_fn getEnteredTextResults = nullptr;
  pu_read_settings_from_json_fn readSettingsFromJson = nullptr;
  pu_write_settings_to_json_fn writeSettingsToJson = nullptr;
  pu_get_client_name_fn getClientName = nullptr;
  pu_get_find_menu_item_in_roles_fn findMenuItemInRoles = nullptr;
  void* unbound24 = nullptr;  // a position of the table that is never bound
  pu_get_UserDirectory_fn getUserDirectory = nullptr;
  pu_is_actionright_enabled_fn isActionRightEnabled = nullptr;
  pu_get_entered_text_results_from_clientsdb_fn getEnteredTextResultsFromClientsDb = nullptr;
  pu_show_message_box_fn showMessageBox = nullptr;
  pu_get_all_mappedAccount_ids_fn getAllMappedAccountIds = nullptr;
};

// Finds an exported symbol of the host's module by name; null when absent.
class SymbolLookup {
 public:
  virtual void* find(const char* name) const = 0;

 protected:
  ~SymbolLookup() = default;
};

// The table's positions (1 to 29) and the exported names bound to them, in lookup order.
// Position 24 has no name.
struct HostServiceName {
  int position;
  const char* name;
};
extern const HostServiceName kHostServiceNames[29];

HostServiceTable bindHostServices(const SymbolLookup& lookup);
// The slot at a position of the table (1 to 29), for tests and diagnostics.
void* hostServiceAt(const HostServiceTable& table, int position);
