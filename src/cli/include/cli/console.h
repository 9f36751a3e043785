#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "platform/file_error.h"
#include "text/message.h"

namespace nimbrel {

/// The exit statuses of `nbrc`.
enum ExitStatus : int {
  done = 0,
  notAllDone = 1,
  wrongCall = 2,
};

/// The streams of a run of `nbrc`. Prints one-byte text of documents as UTF-8, and paths in document form as host
/// paths.
class Console {
 public:
  Console(std::istream& in, std::ostream& out, std::ostream& err, bool errIsTerminal)
      : in_(in), out_(out), err_(err), errIsTerminal_(errIsTerminal) {}

  std::istream& in() const { return in_; }

  std::ostream& out() const { return out_; }
  std::ostream& err() const { return err_; }
  bool errIsTerminal() const { return errIsTerminal_; }

  void printText(std::string_view oneByteText) const;
  void printPath(std::string_view documentPath) const;

  /// Prints `nbrc: FILE: reason` on standard error, or `nbrc: FILE: warning: reason`.
  void fault(const Finding& finding) const;
  /// The same with the text of a message box, on one line.
  void fault(std::string_view documentPath, const Message& message) const;
  /// Prints each finding; returns `notAllDone` if one is an error.
  ExitStatus faults(const Findings& findings) const;
  /// Prints each finding as a warning.
  void warnings(Findings findings) const;

 private:
  std::istream& in_;
  std::ostream& out_;
  std::ostream& err_;
  bool errIsTerminal_;
};

}  // namespace nimbrel
