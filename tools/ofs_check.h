// The ofs-check command line: one subcommand per kind of file.
#pragma once

#include <iosfwd>

// Runs the command and returns its exit status: 0 every line accepted, 1 some refused, 2 a
// usage error or a file that cannot be read. Results go to `out`, problems with the command
// itself to `err`.
int runOfsCheck(int argc, const char* const* argv, std::ostream& out, std::ostream& err);
