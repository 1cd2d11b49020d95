// What the reference terminal knows of its user and session: rights, accounts, peers, clock,
// assigned clients, and which services it pretends not to export. Set by the configuration,
// the command line and the scripts' `host` lines.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <vector>

struct HostState {
  std::string user = "U1";
  uint32_t loginKind = 3;
  std::map<std::string, bool> rights{{"VT: OFS", true}};
  std::set<std::string> hiddenServices;
  std::vector<std::string> accountOrder;
  std::map<std::string, std::string> pcodes;  // account -> participant code ("" for none)
  std::optional<int64_t> clock;               // seconds since 1970; the real clock when empty
  std::string peer1;
  std::string peer2;
  bool clientOverview = false;
  std::vector<std::string> assignedClients;
  std::string userDirectory;  // `host directory`: handed over as it is, for every user
  std::string usersRoot;      // otherwise each user's directory is usersRoot/<user id>
  int uuidCounter = 0;
  std::mutex mutex;  // the subscription worker reads the state too

  bool hasRight(const std::string& name) const;
  // A `host` line without its verb: "user U1 kind 3", "right \"X\" on", ... Empty on success,
  // otherwise what is wrong with it.
  std::string apply(const std::vector<std::string>& words);
  std::string setLoginKind(const std::string& text);
  // The directory of the user in force now; empty when there is none. The caller holds `mutex`.
  std::string currentUserDirectory() const;

  // The host's tabbed log; the main window shows it, the headless runner writes it.
  std::function<void(const std::string&)> onLog;
  // The host's own message box.
  std::function<void(const std::string&)> onMessageBox;
  // A plug-in window registered a shortcut.
  std::function<void(void* view, const std::string& caption, int number, const std::string& name,
                     const std::string& key, const std::string& owner)>
      onHotkey;
};

HostState& hostState();

// "21/11/2026 10:15:00" in local time; nullopt when it is not such a text.
std::optional<int64_t> parseHostTime(const std::string& date, const std::string& time);
