#pragma once

#include <QString>
#include <map>
#include <string>

#include "platform/ports.h"

namespace nimbrel {

/// Registers the program's file types with the user's desktop: MIME types, icons and a desktop entry. The types
/// arrive as keys and values; `publish` writes them to files. Files that cannot be written are ignored.
class FileTypes : public ClassesRoot {
 public:
  /// `dataFolder` is the user's XDG data folder, `program` the path of the running program.
  FileTypes(QString dataFolder, QString program);

  void CreateClassKey(std::string_view key) override;
  void SetClassValue(std::string_view key, std::string_view valueName, std::string_view value) override;

  /// Writes the files that differ, unless an installed package brings its own. If there are any, updates the desktop's
  /// caches in the background.
  void publish() const;

 private:
  std::string value(const std::string& key) const;
  bool isInstalled() const;
  QString mimeTypes() const;
  QString desktopEntry() const;

  QString dataFolder_;
  QString program_;
  std::map<std::string, std::string> values_;  ///< the unnamed value of each key
};

}  // namespace nimbrel
