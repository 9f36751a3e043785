// Probes any bytes as a picture: file size, format and pixel sizes must be plausible.
#include <string_view>

#include "compiler/image_info.h"
#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace nimbrel;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const CImageInfo info = ReadImageInfo(bytes);
  require(info.FileSize == static_cast<std::int32_t>(size));
  require(info.ImageType >= ImageFormat::Unknown && info.ImageType <= ImageFormat::Tiff);

  const bool isTiff = bytes.starts_with("II*") || bytes.starts_with("MM*");
  if (info.ImageType == ImageFormat::Tiff)
    require(isTiff && info.Width > 0 && info.Height > 0 && info.Depth > 0);
  constexpr std::int32_t mostOfWords = 65536;  // the difference of two words, plus one
  if (!isTiff) require(std::abs(info.Width) <= mostOfWords && std::abs(info.Height) <= mostOfWords);
  if (info.ImageType == ImageFormat::Unknown && !isTiff) require(info.Width == 0 && info.Height == 0);
  return 0;
}
