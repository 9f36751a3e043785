#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <vector>

namespace nimbrel {

/// Where in a file something stands; zero where that is not known. Both count from 1.
struct Place {
  std::size_t record = 0;
  std::size_t line = 0;

  bool operator==(const Place&) const = default;
};

/// What was seen about a file: its path in document form, the place in it, and the reason in words.
struct Finding {
  std::string path;
  std::string reason;
  Place place = {};

  bool operator==(const Finding&) const = default;

  /// The reason with the place ahead of it: "record 3, line 19: ...".
  std::string text() const;
};

/// What is only noted goes into findings, and the work goes on.
using Findings = std::vector<Finding>;

/// What stops the work on a file is thrown.
class FileError : public std::exception {
 public:
  explicit FileError(Finding finding) : finding_(std::move(finding)), text_(finding_.text()) {}
  FileError(std::string path, std::string reason) : FileError(Finding{std::move(path), std::move(reason)}) {}

  const Finding& finding() const { return finding_; }
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  Finding finding_;
  std::string text_;
};

}  // namespace nimbrel
