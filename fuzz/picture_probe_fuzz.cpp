#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "compiler/image_info.h"

/// What holds of any bytes: a known size, a known format, and a size in pixels that its words can hold.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace nimbrel;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const CImageInfo info = ReadImageInfo(bytes);
  const auto require = [](bool holds) {
    if (!holds) std::abort();
  };
  require(info.FileSize == static_cast<std::int32_t>(size));
  require(info.ImageType >= ImageFormat::Unknown && info.ImageType <= ImageFormat::Tiff);
  require(info == ReadImageInfo(bytes));

  const bool isTiff = bytes.starts_with("II*") || bytes.starts_with("MM*");
  if (info.ImageType == ImageFormat::Tiff)
    require(isTiff && info.Width > 0 && info.Height > 0 && info.Depth > 0);
  constexpr std::int32_t mostOfWords = 65536;  // the difference of two, and one
  if (!isTiff) require(std::abs(info.Width) <= mostOfWords && std::abs(info.Height) <= mostOfWords);
  if (info.ImageType == ImageFormat::Unknown && !isTiff) require(info.Width == 0 && info.Height == 0);
  return 0;
}
