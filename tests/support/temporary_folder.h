#pragma once

#include <cstdlib>

#include "support/bytes_of.h"

namespace nimbrel {

/// A temporary folder that is removed by the destructor. Paths are in the host's form.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "nimbrel-test-XXXXXX").string();
    path_ = ::mkdtemp(name.data());
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

  void write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path_ / name, std::ios::binary) << bytes;
  }
  std::string read(const std::string& name) const { return bytesOf(path_ / name); }

 private:
  std::filesystem::path path_;
};

}  // namespace nimbrel
