// The services the host terminal exports from its own executable. The plug-in never links to
// them: it looks each one up by name (dlsym on the process's own module) and treats a missing
// one as absent. The host defines them with exactly these names, misspellings included, and
// these signatures. All are called on the host's UI thread, except the subscribe path of the
// receive controls.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sdk/host_app.h"
#include "sdk/rx_control.h"

using StringList = std::vector<std::string>;

extern "C" {

// Mandatory: the host application descriptor.
using pu_get_exe_app_fn = VornExeApp* (*)();
// Mandatory: non-zero when the user holds the action right of that name.
using pu_is_actionright_enabled_fn = int (*)(const std::string& rightName);

// Fills the user's two peer identities for `userId`. Non-zero on success.
using pu_get_peer_data_fn = int (*)(std::string& identity1, std::string& identity2,
                                    const std::string& userId);
// Hands out a receive control of a kind (0 to 3) that delivers answers to `notifier`.
using GetIrbeRxControl_fn = IIrbeRxControl* (*)(int kind, IIrbeNotifier* notifier);
using DestoryIrbeRxCOntrol_fn = void (*)(IIrbeRxControl* control);
// Appends one line to the host's tabbed log window.
using pu_add_to_tabbed_log_fn = void (*)(const std::string& line);
// Registers a shortcut of a plug-in window; the host calls the window's hotkey handler with
// `number` when the key is pressed. `view` is the registering window (a QWidget*).
using register_hotkey_fn = int (*)(void* view, const std::string& caption, int number,
                                   const std::string& name, const std::string& key,
                                   const std::string& owner);
// Fills a Pro/Cli selector's choices ("PRO", "CLI"). Non-zero on success.
using pu_load_Procli_combo_fn = int (*)(StringList& choices);
// Fills a client id selector with the user's clients. Non-zero on success.
using pu_load_client_id_combo_fn = int (*)(StringList& clientIds);
// Tells the host the Pro/Cli choice changed.
using pu_on_selchange_procli_fn = void (*)(const std::string& proCli);
// The participant code of an account. Non-zero when the account has one.
using pu_get_pcode_fn = int (*)(const std::string& accountId, std::string& pcode);
// Non-zero when the account id is known.
using pu_is_valid_account_fn = int (*)(const std::string& accountId);
// A unique id text. Non-zero on success.
using pu_get_uuid_fn = int (*)(std::string& uuid);
// The client currently active in the host. Non-zero when there is one.
using pu_get_ActiveClient_fn = int (*)(std::string& clientId);
// The delay, in milliseconds, before a typed client search runs.
using pu_get_client_search_time_fn = int (*)();
using pu_is_ClientOverviewEnabled_fn = bool (*)();
// Fills the clients assigned to the user. Non-zero on success.
using pu_get_AssignedClients_fn = int (*)(StringList& clientIds);
// The host's current font variation and font stamp. Non-zero on success.
using pu_get_FontVariation_fn = int (*)(int64_t* variation, int64_t* stamp);
using pu_clear_FocusFromDropDown_fn = void (*)(void* window);
using pu_resize_EditCtrlForFontChange_fn = void (*)(void* edit);
// Client search results ("id - name") for typed text. Non-zero on success.
using pu_get_entered_text_results_fn = int (*)(const std::string& typed, StringList& results);
using pu_read_settings_from_json_fn = int (*)(const std::string& section, const std::string& key,
                                              std::string& value, int flag);
using pu_write_settings_to_json_fn = int (*)(const std::string& section, const std::string& key,
                                             const std::string& value, int flag);
// A client's name. Non-zero when known.
using pu_get_client_name_fn = int (*)(const std::string& clientId, std::string& name);
// Non-zero when the user's roles allow the menu item.
using pu_get_find_menu_item_in_roles_fn = int (*)(const std::string& menuItem);
// The user's settings directory. Non-zero on success.
using pu_get_UserDirectory_fn = int (*)(std::string& directory);
using pu_get_entered_text_results_from_clientsdb_fn = int (*)(const std::string& typed,
                                                              StringList& results);
// Shows a message box in the host's style.
using pu_show_message_box_fn = int (*)(const std::string& text);
// Fills every account id mapped to the user. Non-zero on success.
using pu_get_all_mappedAccount_ids_fn = int (*)(StringList& accountIds);

// Reference-terminal extensions: a production host does not export them, and the plug-in
// looks them up by name like any optional service. They let a rehearsal host run the plug-in
// against a chosen clock and pretend to be an older host.

// Seconds since 1970 by the host's clock.
using vt_host_time_fn = int64_t (*)();
// Non-zero when the host wants the named service treated as not exported.
using vt_service_hidden_fn = int (*)(const char* serviceName);

}  // extern "C"
