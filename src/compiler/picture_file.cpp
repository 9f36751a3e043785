#include "compiler/picture_file.h"

#include <algorithm>
#include <array>

#include "text/ascii.h"
#include "text/paths.h"

namespace nimbrel {
namespace {

constexpr auto pictureEndings = std::to_array<std::string_view>(
    {"gif", "jpg", "jpeg", "jpe", "jfif", "pjpeg", "pjp",  "png",  "apng", "bmp",
     "dib", "tif", "tiff", "pcx", "svg",  "svgz",  "webp", "avif", "ico",  "cur"});

std::string used(const std::string& reason, const std::string& user) {
  return reason + " (used by " + user + ")";
}

}  // namespace

bool isPictureName(std::string_view path) {
  const auto name = fileName(path);
  const auto dot = name.rfind('.');
  return dot != std::string_view::npos &&
         std::ranges::count(pictureEndings, lowered(name.substr(dot + 1))) > 0;
}

bool staysInside(std::string_view relativePath) {
  if (relativePath.find(':') != std::string_view::npos) return false;
  while (true) {
    const auto end = relativePath.find_first_of("\\/");
    // Other systems drop blanks and dots at the end of a name.
    if (relativePath.substr(0, end).find_first_not_of(". ") == std::string_view::npos) return false;
    if (end == std::string_view::npos) return true;
    relativePath.remove_prefix(end + 1);
  }
}

std::optional<Finding> refusalOfPicture(const FileSystem& files, const std::string& picture,
                                        const std::string& user) {
  if (!isPictureName(picture)) {
    return Finding{picture, used("is not a picture, by the ending of its name, and is left out", user)};
  }
  const auto status = files.status(picture);
  if (!status) return Finding{picture, used("there is no such picture", user)};
  if (status->size > largestPicture) {
    return Finding{picture, used("is larger than 64 MiB and is left out", user)};
  }
  return std::nullopt;
}

std::optional<Finding> warningOfPicture(const FileSystem& files, const std::string& picture,
                                        const std::string& user) {
  const auto status = files.status(picture);
  if (!status || !status->isPrivate) return std::nullopt;
  return Finding{picture,
                 used("other users may not read this file, but the copy is for everyone", user),
                 {},
                 Severity::Warning};
}

}  // namespace nimbrel
