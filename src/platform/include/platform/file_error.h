#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>
#include <vector>

namespace nimbrel {

/// A place in a file. Both count from 1; zero means unknown.
struct Place {
  std::size_t record = 0;
  std::size_t line = 0;

  bool operator==(const Place&) const = default;
};

/// A warning is worth knowing, but everything was done as asked.
enum class Severity : std::uint8_t { Error, Warning };

/// A problem with a file: its path in document form, the place in it, and the reason in words.
struct Finding {
  std::string path;
  std::string reason;
  Place place = {};
  Severity severity = Severity::Error;

  bool operator==(const Finding&) const = default;

  /// The place and the reason: "record 3, line 19: ...".
  std::string text() const;
};

/// Problems that do not stop an operation are collected.
using Findings = std::vector<Finding>;

/// Thrown for problems that end the processing of a file.
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
