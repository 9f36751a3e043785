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

  // Open a topic by number, the contents or the search. Return false if there is no help file.
  virtual bool openTopic(int topic) = 0;
  virtual bool openContents() = 0;
  virtual bool openSearch() = 0;
};

/// The system's registration of file types. Failures are ignored.
class ClassesRoot {
 public:
  virtual ~ClassesRoot() = default;
  virtual void CreateClassKey(std::string_view key) = 0;
  /// Sets a value of a key. An empty `valueName` is the default value.
  virtual void SetClassValue(std::string_view key, std::string_view valueName, std::string_view value) = 0;
};

/// The system's clipboard, by which nodes travel between programs.
class NodeClipboard {
 public:
  /// One of them may be empty.
  struct Content {
    std::string nodes;  ///< in the form that `put` got
    std::string text;
  };

  virtual ~NodeClipboard() = default;
  /// Puts nodes there: in a form of our own, and as text for other programs.
  virtual void put(Content content) = 0;
  /// Whether another program has put nodes or text there since the last `put`.
  virtual bool hasForeign() const = 0;
  virtual Content foreign() const = 0;
};

/// All ports together. Borrowed; they must outlive the users of this struct.
struct Ports {
  FileSystem& files;
  FileSystem& previews;  ///< where previews are made; may be the same as `files`
  Asker& asker;
  SettingsStore& settings;
  Opener& opener;
  HelpSystem& help;
  ClassesRoot& classes;
  NodeClipboard& clipboard;
  std::vector<std::string> fonts;  ///< installed font families
  std::function<double()> random;  ///< returns a number from 0 to below 1
  std::string stateFolder{};       ///< for the recovery of unsaved changes; empty: there is none
  /// Does long work beside the thread of the windows, which stay alive but take no input, and returns when it is done.
  /// Throws what the work throws. Empty: the work is done where it is asked for.
  std::function<void(const std::function<void()>&)> aside{};
};

}  // namespace nimbrel
