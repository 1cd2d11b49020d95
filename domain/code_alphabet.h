// The characters allowed in client ids, participant codes and walk-in codes.
#pragma once

#include <string_view>

// Intended as it stands and must stay: no Q, and R twice (after P it runs U, R, S). A code
// holding Q is refused as holding a special character.
inline constexpr std::string_view kCodeAlphabet = "ABCDEFGHIJKLMNOPURSTUVWXYZ0123456789";

// Every character of `text` is in the code alphabet (true for an empty text).
bool inCodeAlphabet(std::string_view text);
