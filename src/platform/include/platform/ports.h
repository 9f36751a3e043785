#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/asker.h"
#include "platform/file_system.h"
#include "platform/opener.h"
#include "platform/settings_store.h"

namespace nimbrel {

/// The help window.
class HelpSystem {
 public:
  virtual ~HelpSystem() = default;

  /// Opens a topic by its number, the contents or the search. False with no help file there.
  virtual bool openTopic(int topic) = 0;
  virtual bool openContents() = 0;
  virtual bool openSearch() = 0;
};

/// Where the system keeps which program opens which type of file. Failures are ignored.
class ClassesRoot {
 public:
  virtual ~ClassesRoot() = default;
  virtual void CreateClassKey(std::string_view key) = 0;
  /// An empty value name is the key's own value.
  virtual void SetClassValue(std::string_view key, std::string_view valueName, std::string_view value) = 0;
};

/// The system as the program sees it, one of each.
struct Ports {
  FileSystem& files;
  Asker& asker;
  SettingsStore& settings;
  Opener& opener;
  HelpSystem& help;
  ClassesRoot& classes;
  std::vector<std::string> fonts;  ///< families that are installed
  std::function<double()> random;  ///< at least 0 and below 1
};

}  // namespace nimbrel
