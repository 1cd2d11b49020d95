// A directory of the test's own under the system temp directory, removed with its contents
// when the object goes, so that a test run leaves the temp directory as it found it.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <string>
#include <system_error>

class ScratchDir {
 public:
  ScratchDir() {
    std::string pattern = testing::TempDir() + "ofs-test-XXXXXX";
    if (mkdtemp(pattern.data())) path_ = pattern;
  }
  ~ScratchDir() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }
  ScratchDir(const ScratchDir&) = delete;
  ScratchDir& operator=(const ScratchDir&) = delete;

  const std::string& path() const { return path_; }
  std::string file(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};
