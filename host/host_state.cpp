#include "host/host_state.h"

#include <cstdio>
#include <ctime>

bool HostState::hasRight(const std::string& name) const {
  auto it = rights.find(name);
  return it != rights.end() && it->second;
}

std::optional<int64_t> parseHostTime(const std::string& date, const std::string& time) {
  int d = 0, m = 0, y = 0, hh = 0, mm = 0, ss = 0;
  char tail = 0;
  if (std::sscanf(date.c_str(), "%d/%d/%d%c", &d, &m, &y, &tail) != 3) return std::nullopt;
  if (std::sscanf(time.c_str(), "%d:%d:%d%c", &hh, &mm, &ss, &tail) != 3) return std::nullopt;
  if (d < 1 || d > 31 || m < 1 || m > 12 || hh < 0 || hh > 23 || mm < 0 || mm > 59 || ss < 0 ||
      ss > 59)
    return std::nullopt;
  std::tm tm{};
  tm.tm_mday = d;
  tm.tm_mon = m - 1;
  tm.tm_year = y - 1900;
  tm.tm_hour = hh;
  tm.tm_min = mm;
  tm.tm_sec = ss;
  tm.tm_isdst = -1;
  return static_cast<int64_t>(std::mktime(&tm));
}

std::string HostState::setLoginKind(const std::string& text) {
  try {
    loginKind = static_cast<uint32_t>(std::stoul(text));
  } catch (...) {
    return "login kind must be a number";
  }
  return {};
}

std::string HostState::apply(const std::vector<std::string>& w) {
  std::lock_guard lock(mutex);
  if (w.empty()) return "host needs a setting";
  const std::string& what = w[0];
  if (what == "user") {
    if (w.size() != 2 && !(w.size() == 4 && w[2] == "kind")) return "expected: user ID [kind K]";
    user = w[1];
    return w.size() == 4 ? setLoginKind(w[3]) : std::string();
  }
  // The command line's --kind: the login kind alone, whoever the user is by then.
  if (what == "kind") return w.size() == 2 ? setLoginKind(w[1]) : "expected: kind K";
  if (what == "right") {
    if (w.size() != 3 || (w[2] != "on" && w[2] != "off")) return "expected: right NAME on|off";
    rights[w[1]] = w[2] == "on";
    return {};
  }
  if (what == "service") {
    if (w.size() != 3 || (w[2] != "on" && w[2] != "off")) return "expected: service NAME on|off";
    if (w[2] == "off") {
      hiddenServices.insert(w[1]);
    } else {
      hiddenServices.erase(w[1]);
    }
    return {};
  }
  if (what == "accounts") {
    accountOrder.clear();
    pcodes.clear();
    for (size_t i = 1; i < w.size(); ++i) {
      const size_t colon = w[i].find(':');
      const std::string id = w[i].substr(0, colon);
      if (id.empty()) return "an account id is empty";
      accountOrder.push_back(id);
      pcodes[id] = colon == std::string::npos ? "" : w[i].substr(colon + 1);
    }
    return {};
  }
  if (what == "time") {
    if (w.size() != 3) return "expected: time DD/MM/YYYY HH:MM:SS";
    auto t = parseHostTime(w[1], w[2]);
    if (!t) return "expected: time DD/MM/YYYY HH:MM:SS";
    clock = t;
    return {};
  }
  if (what == "peer") {
    if (w.size() > 3) return "expected: peer [P1 [P2]]";
    peer1 = w.size() > 1 ? w[1] : "";
    peer2 = w.size() > 2 ? w[2] : "";
    return {};
  }
  if (what == "assigned") {
    clientOverview = true;
    assignedClients.assign(w.begin() + 1, w.end());
    return {};
  }
  if (what == "directory") {
    if (w.size() != 2) return "expected: directory PATH";
    userDirectory = w[1];
    return {};
  }
  return "unknown host setting \"" + what + "\"";
}

std::string HostState::currentUserDirectory() const {
  if (!userDirectory.empty() || usersRoot.empty()) return userDirectory;
  return usersRoot + "/" + user;
}

HostState& hostState() {
  static HostState state;
  return state;
}
