// Replacing a file's whole content so that a reader never sees half of it and a failure leaves
// the old file as it was.
#pragma once

#include <string>
#include <string_view>

enum class TextFileWrite { Written, OpenFailed, WriteFailed };

// Writes `text` to a temporary file beside `path`, then renames it over `path`; on any failure
// the temporary is removed.
TextFileWrite writeTextFile(const std::string& path, std::string_view text);
