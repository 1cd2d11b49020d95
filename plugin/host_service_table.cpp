#include "plugin/host_service_table.h"

namespace {

template <typename Fn>
void bind(const SymbolLookup& lookup, const char* name, Fn& slot) {
  slot = reinterpret_cast<Fn>(lookup.find(name));
}

// One place that pairs each position with its slot, in table order, so binding and reading
// by position cannot disagree.
template <typename Visit>
void forEachSlot(HostServiceTable& t, Visit visit) {
  visit(1, t.getPeerData);
  visit(2, t.getRxControl);
  visit(3, t.destroyRxControl);
  visit(4, t.addToTabbedLog);
  visit(5, t.registerHotkey);
  visit(6, t.loadProCliCombo);
  visit(7, t.loadClientIdCombo);
  visit(8, t.onSelChangeProCli);
  visit(9, t.getPCode);
  visit(10, t.isValidAccount);
  visit(11, t.getUuid);
  visit(12, t.getActiveClient);
  visit(13, t.getClientSearchTime);
  visit(14, t.isClientOverviewEnabled);
  visit(15, t.getAssignedClients);
  visit(16, t.getFontVariation);
  visit(17, t.clearFocusFromDropDown);
  visit(18, t.resizeEditForFontChange);
  visit(19, t.getEnteredTextResults);
  visit(20, t.readSettingsFromJson);
  visit(21, t.writeSettingsToJson);
  visit(22, t.getClientName);
  visit(23, t.findMenuItemInRoles);
  visit(24, t.unbound24);
  visit(25, t.getUserDirectory);
  visit(26, t.isActionRightEnabled);
  visit(27, t.getEnteredTextResultsFromClientsDb);
  visit(28, t.showMessageBox);
  visit(29, t.getAllMappedAccountIds);
}

}  // namespace

// The host's own spellings, "DestoryIrbeRxCOntrol" included, are the lookup keys.
const HostServiceName kHostServiceNames[29] = {
    {1, "pu_get_peer_data"},
    {2, "GetIrbeRxControl"},
    {3, "DestoryIrbeRxCOntrol"},
    {4, "pu_add_to_tabbed_log"},
    {5, "register_hotkey"},
    {6, "pu_load_Procli_combo"},
    {7, "pu_load_client_id_combo"},
    {8, "pu_on_selchange_procli"},
    {9, "pu_get_pcode"},
    {10, "pu_is_valid_account"},
    {11, "pu_get_uuid"},
    {12, "pu_get_ActiveClient"},
    {13, "pu_get_client_search_time"},
    {14, "pu_is_ClientOverviewEnabled"},
    {15, "pu_get_AssignedClients"},
    {16, "pu_get_FontVariation"},
    {17, "pu_clear_FocusFromDropDown"},
    {18, "pu_resize_EditCtrlForFontChange"},
    {19, "pu_get_entered_text_results"},
    {20, "pu_read_settings_from_json"},
    {21, "pu_write_settings_to_json"},
    {22, "pu_get_client_name"},
    {23, "pu_get_find_menu_item_in_roles"},
    {24, nullptr},
    {25, "pu_get_UserDirectory"},
    {26, "pu_is_actionright_enabled"},
    {27, "pu_get_entered_text_results_from_clientsdb"},
    {28, "pu_show_message_box"},
    {29, "pu_get_all_mappedAccount_ids"},
};

HostServiceTable bindHostServices(const SymbolLookup& lookup) {
  HostServiceTable table;
  forEachSlot(table, [&](int position, auto& slot) {
    const char* name = kHostServiceNames[position - 1].name;
    if (name) bind(lookup, name, slot);
  });
  return table;
}

void* hostServiceAt(const HostServiceTable& table, int position) {
  void* found = nullptr;
  forEachSlot(const_cast<HostServiceTable&>(table), [&](int p, auto& slot) {
    if (p == position) found = reinterpret_cast<void*>(slot);
  });
  return found;
}
