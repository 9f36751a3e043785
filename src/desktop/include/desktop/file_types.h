#pragma once

#include <QString>
#include <map>
#include <string>

#include "platform/ports.h"

namespace nimbrel {

/// The file types of the program as this user's desktop knows them: MIME types, icons and a desktop entry. What is
/// registered comes in as keys of a classes root and is written by `publish`; a file that cannot be written is let
/// be.
class FileTypes : public ClassesRoot {
 public:
  /// `dataFolder` is the user's own, `program` the path of the running program.
  FileTypes(QString dataFolder, QString program);

  void CreateClassKey(std::string_view key) override;
  void SetClassValue(std::string_view key, std::string_view valueName, std::string_view value) override;

  /// Writes what differs, and has the desktop's caches made anew in the background if anything did.
  void publish() const;

 private:
  std::string value(const std::string& key) const;
  QString mimeTypes() const;
  QString desktopEntry() const;

  QString dataFolder_;
  QString program_;
  std::map<std::string, std::string> values_;  ///< the own value of each key
};

}  // namespace nimbrel
