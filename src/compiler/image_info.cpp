#include "compiler/image_info.h"

#include <functional>
#include <limits>
#include <stdexcept>
#include <string>
#include <unordered_set>
#include <utility>

namespace nimbrel {
namespace {

/// Thrown on a read past the buffer or a value that does not fit its field; ends the probe.
struct ProbeEnds : std::exception {};

/// Returns up to `count` bytes of a picture from `offset` on.
using ReadBlock = std::function<std::string(std::uint64_t offset, std::size_t count)>;

/// The bytes of a picture, followed by one zero byte. Positions start at 0. Reads a block at a time, because the header
/// may be a small part of a large file.
class Buffer {
 public:
  explicit Buffer(std::string_view bytes) : size_(static_cast<std::int64_t>(bytes.size())), block_(bytes) {}
  Buffer(std::uint64_t size, ReadBlock read)
      : size_(static_cast<std::int64_t>(size)), read_(std::move(read)) {}

  std::int64_t size() const { return size_; }

  int at(std::int64_t position) const {
    if (position < 0 || position > size_) throw ProbeEnds();
    if (position == size_) return 0;
    if (position < start_ || position >= start_ + static_cast<std::int64_t>(block_.size())) load(position);
    return static_cast<std::uint8_t>(block_[static_cast<std::size_t>(position - start_)]);
  }

  bool beginsWith(std::string_view signature) const {
    for (std::size_t i = 0; i < signature.size(); ++i) {
      const auto position = static_cast<std::int64_t>(i);
      if (position >= size_ || at(position) != static_cast<std::uint8_t>(signature[i])) return false;
    }
    return true;
  }

  // Quirk: words are signed, so sizes of 32768 and more become negative.
  std::int16_t LittleWord(std::int64_t p) const { return word(at(p), at(p + 1)); }
  std::int16_t BigWord(std::int64_t p) const { return word(at(p + 1), at(p)); }
  std::int32_t LittleLong(std::int64_t p) const { return longOf(at(p), at(p + 1), at(p + 2), at(p + 3)); }
  std::int32_t BigLong(std::int64_t p) const { return longOf(at(p + 3), at(p + 2), at(p + 1), at(p)); }

 private:
  static std::int16_t word(int low, int high) { return static_cast<std::int16_t>(low | (high << 8)); }
  static std::int32_t longOf(int a, int b, int c, int d) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) | static_cast<std::uint32_t>(b) << 8 |
                                     static_cast<std::uint32_t>(c) << 16 |
                                     static_cast<std::uint32_t>(d) << 24);
  }

  void load(std::int64_t position) const {
    constexpr std::int64_t blockSize = 65'536;
    start_ = position / blockSize * blockSize;
    loaded_ = read_(static_cast<std::uint64_t>(start_), blockSize);
    block_ = loaded_;
    // The file has become shorter in the meantime.
    if (position >= start_ + static_cast<std::int64_t>(block_.size())) throw ProbeEnds();
  }

  std::int64_t size_;
  ReadBlock read_;
  mutable std::int64_t start_ = 0;  ///< the position of `block_`
  mutable std::string loaded_;
  mutable std::string_view block_;
};

std::uint8_t depthOf(int bits) {
  if (bits < 0 || bits > std::numeric_limits<std::uint8_t>::max()) throw ProbeEnds();
  return static_cast<std::uint8_t>(bits);
}

void readPng(const Buffer& buffer, CImageInfo& info) {
  info.ImageType = ImageFormat::Png;
  constexpr int bitDepthAt = 24;
  constexpr int colourTypeAt = 25;
  switch (buffer.at(colourTypeAt)) {
    case 0: info.Depth = depthOf(buffer.at(bitDepthAt)); break;
    case 2: info.Depth = depthOf(buffer.at(bitDepthAt) * 3); break;
    case 3: info.Depth = 8; break;
    case 4: info.Depth = depthOf(buffer.at(bitDepthAt) * 2); break;
    case 6: info.Depth = depthOf(buffer.at(bitDepthAt) * 4); break;
    default: info.ImageType = ImageFormat::Unknown; return;
  }
  // Quirk: only the low 16 bits of the 32-bit sizes are read.
  info.Width = buffer.BigWord(18);
  info.Height = buffer.BigWord(22);
}

void readGif(const Buffer& buffer, CImageInfo& info) {
  info.ImageType = ImageFormat::Gif;
  info.Width = buffer.LittleWord(6);
  info.Height = buffer.LittleWord(8);
  info.Depth = depthOf((buffer.at(10) & 7) + 1);
}

void readBmp(const Buffer& buffer, CImageInfo& info) {
  info.ImageType = ImageFormat::Bmp;
  info.Width = buffer.LittleWord(18);
  info.Height = buffer.LittleWord(22);
  info.Depth = depthOf(buffer.at(28));
}

void readPcx(const Buffer& buffer, CImageInfo& info) {
  info.ImageType = ImageFormat::Pcx;
  info.Width = buffer.LittleWord(8) - buffer.LittleWord(4) + 1;
  info.Height = buffer.LittleWord(10) - buffer.LittleWord(6) + 1;
  info.Depth = depthOf(buffer.at(65) * buffer.at(3));
}

/// Reads TIFF in either byte order.
class TiffReader {
 public:
  TiffReader(const Buffer& buffer, bool bigEndian) : buffer_(buffer), bigEndian_(bigEndian) {}

  void read(CImageInfo& info) const {
    const std::int64_t directory = longAt(4);
    const int count = wordAt(directory);
    for (int i = 0; i < count; ++i) {
      constexpr int entrySize = 12;
      const std::int64_t entry = directory + 2 + std::int64_t{i} * entrySize;
      switch (wordAt(entry)) {
        case 256: info.Width = valueOf(entry); break;
        case 257: info.Height = valueOf(entry); break;
        case 258: info.Depth = depthOf(valueOf(entry)); break;
        default: break;
      }
    }
    if (info.Depth > 0 && info.Width > 0 && info.Height > 0) {
      info.ImageType = ImageFormat::Tiff;
    } else {
      info = CImageInfo{.FileSize = info.FileSize};
    }
  }

 private:
  int wordAt(std::int64_t p) const { return bigEndian_ ? buffer_.BigWord(p) : buffer_.LittleWord(p); }
  std::int32_t longAt(std::int64_t p) const {
    return bigEndian_ ? buffer_.BigLong(p) : buffer_.LittleLong(p);
  }

  std::int32_t valueOf(std::int64_t entry) const {
    switch (wordAt(entry + 2)) {
      case 1: return buffer_.at(entry + 8);
      case 3: return wordAt(entry + 8);
      case 4: return longAt(entry + 8);
      default: return 0;
    }
  }

  const Buffer& buffer_;
  bool bigEndian_;
};

/// Follows the markers to the frame header. Bytes before the first marker are skipped.
void readJpeg(const Buffer& buffer, CImageInfo& info) {
  const std::int64_t end = buffer.size() - 10;
  const auto isStart = [&](std::int64_t p) {
    return buffer.at(p) == 0xFF && buffer.at(p + 1) == 0xD8 && buffer.at(p + 2) == 0xFF;
  };
  std::int64_t position = 0;
  while (position < end && !isStart(position)) ++position;
  position += 2;
  // A segment's length may be negative, so remember the markers to stop a scan that loops.
  std::unordered_set<std::int64_t> seen;
  while (position < end) {
    while (buffer.at(position) != 0xFF || buffer.at(position + 1) == 0xFF) {
      if (++position >= end) return;
    }
    const std::int64_t marker = position + 1;
    if (!seen.insert(marker).second) return;
    if (buffer.at(marker) >= 192 && buffer.at(marker) <= 195) {
      info.ImageType = ImageFormat::Jpeg;
      info.Height = buffer.BigWord(marker + 4);
      info.Width = buffer.BigWord(marker + 6);
      info.Depth = depthOf(buffer.at(marker + 8) * 8);
      return;
    }
    position = marker + buffer.BigWord(marker + 1);
  }
}

void probe(const Buffer& buffer, CImageInfo& info) {
  if (buffer.beginsWith("\x89PN")) readPng(buffer, info);
  if (buffer.beginsWith("GIF")) readGif(buffer, info);
  if (buffer.beginsWith("BM")) readBmp(buffer, info);
  if (buffer.beginsWith("\x0A")) readPcx(buffer, info);
  if (buffer.beginsWith("II*")) TiffReader(buffer, false).read(info);
  if (buffer.beginsWith("MM*")) TiffReader(buffer, true).read(info);
  if (info.ImageType == ImageFormat::Unknown) readJpeg(buffer, info);
}

CImageInfo infoOf(const Buffer& buffer) {
  CImageInfo info;
  info.FileSize = static_cast<std::int32_t>(buffer.size());
  try {
    probe(buffer, info);
  } catch (const ProbeEnds&) {
    return info;  // Quirk: values that were read before the error stay
  }
  return info;
}

}  // namespace

CImageInfo ReadImageInfo(std::string_view bytes) { return infoOf(Buffer(bytes)); }

CImageInfo ReadImageInfo(const FileSystem& files, std::string_view path) {
  const auto status = files.status(path);
  if (!status) throw FileError(std::string(path), "there is no such file");
  return infoOf(Buffer(status->size, [&](std::uint64_t offset, std::size_t count) {
    return files.readPart(path, offset, count);
  }));
}

}  // namespace nimbrel
