#pragma once

#include <cstdint>
#include <string_view>

#include "platform/file_system.h"

namespace nimbrel {

enum class ImageFormat : std::int32_t { Unknown = 0, Gif = 1, Jpeg = 2, Png = 3, Bmp = 4, Pcx = 5, Tiff = 6 };

/// The header data of a picture file. For a truncated file it holds the values found before the end; for an
/// unknown format the size is 0 by 0.
struct CImageInfo {
  std::int32_t Width = 0;   ///< pixels
  std::int32_t Height = 0;  ///< pixels
  std::uint8_t Depth = 0;   ///< bits per pixel
  ImageFormat ImageType = ImageFormat::Unknown;
  std::int32_t FileSize = 0;  ///< bytes

  bool operator==(const CImageInfo&) const = default;
};

/// Probes the bytes of a whole file. Accepts any bytes.
CImageInfo ReadImageInfo(std::string_view bytes);

/// The same for a file, of which it reads only the parts that it needs. Throws `FileError` if it cannot be read.
CImageInfo ReadImageInfo(const FileSystem& files, std::string_view path);

}  // namespace nimbrel
