// The terminal's command line, parsed before Qt starts so that Qt never sees our options, and
// without Qt so that it can be tested on its own.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

struct Options {
  bool headless = false;
  std::string script;
  std::string trace;
  std::string backend;  // empty: "none" when headless, "sim" otherwise
  std::string plugin;
  std::string config;
  std::string home;  // the users' directories go here instead of the XDG data folder
  // `host` lines (without the verb) from --user/--kind/--right/--accounts, in command-line order.
  std::vector<std::vector<std::string>> hostSettings;
  // Qt's own single-dash options (-platform offscreen, -reverse, ...), for QApplication.
  std::vector<std::string> qtArguments;
};

// Fills `options` from argv. Returns nullopt when the terminal should go on; otherwise the exit
// status, after writing the help to `out` or one line saying what is wrong to `err`.
std::optional<int> parseCommandLine(int argc, const char* const* argv, Options& options,
                                    std::ostream& out, std::ostream& err);

// Where the users' own directories live: `home` (--home) when given, else
// $XDG_DATA_HOME/vorntrader, else $HOME/.local/share/vorntrader; empty when nothing is known.
std::string usersRoot(const std::string& home, const char* xdgDataHome, const char* homeVariable);
