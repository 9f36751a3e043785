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

/// Where a run of `nbrc` prints. What comes from documents is one-byte text in document form, and is printed
/// as UTF-8 with paths in the system's own form.
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

  /// `nbrc: FILE: what is wrong`, on standard error.
  void fault(const Finding& finding) const;
  /// The same in the words of a message box, on one line.
  void fault(std::string_view documentPath, const Message& message) const;
  /// Each as a fault; the status says whether there was one.
  ExitStatus faults(const Findings& findings) const;

 private:
  std::istream& in_;
  std::ostream& out_;
  std::ostream& err_;
  bool errIsTerminal_;
};

}  // namespace nimbrel
