// What every ofs-check subcommand offers the command line, one source file each.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <iosfwd>

// Set by the subcommand the command line chose, once its options are parsed.
using CheckRun = std::function<int(std::ostream& out, std::ostream& err)>;

inline constexpr int kAllAccepted = 0;
inline constexpr int kSomeRefused = 1;
inline constexpr int kUsageError = 2;

// ofs-check basket FILE
void addBasketCommand(CLI::App& app, CheckRun& run);
// ofs-check bids --format neat|now|nowmod|vt [--issues F] [--accounts F] [--orders F]
//                [--tm-code CODE] [--write-accepted F] FILE
void addBidsCommand(CLI::App& app, CheckRun& run);
// ofs-check allotment --exchange nse_ipo|bse_ipo FILE
void addAllotmentCommand(CLI::App& app, CheckRun& run);
// ofs-check issues [--today DD/MM/YYYY] FILE
void addIssuesCommand(CLI::App& app, CheckRun& run);
