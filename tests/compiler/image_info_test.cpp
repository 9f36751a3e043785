#include "compiler/image_info.h"

#include <gtest/gtest.h>

#include "compiler/fixtures.h"

namespace nimbrel {
namespace {

using namespace std::string_view_literals;

struct Sample {
  const char* name;
  std::string bytes;
  CImageInfo info;  // without the file size
};

// Quirk: only the low half of a 32-bit size is read.
std::string png(std::string_view depthAndColourType) {
  return picture(33, {{0, "\x89PNG"}, {16, "\x7\x7\x1\x2\x7\x7\0\x40"sv}, {24, depthAndColourType}});
}

std::string pcx(std::string_view bits, std::string_view planes) {
  return picture(128, {{0, "\x0A"}, {3, bits}, {4, "\x05\0\x02\0\x0E\x01\x03\0"sv}, {65, planes}});
}

// An unknown tag, then width, height and bits per sample, with values of each type.
const auto littleTiff = picture(62, {{0, "II*\0\x08"sv},
                                     {8, "\x04"},
                                     {10, "\xFE\0\x04\0\x01\0\0\0\x07"sv},
                                     {22, "\0\x01\x04\0\x01\0\0\0\x40\xE2\x01\0"sv},
                                     {34, "\x01\x01\x03\0\x01\0\0\0\x50"sv},
                                     {46, "\x02\x01\x01\0\x01\0\0\0\x08\x01"sv}});
const auto bigTiff = picture(50, {{0, "MM*\0\0\0\0\x08"sv},
                                  {9, "\x03"},
                                  {10, "\x01\0\0\x03\0\0\0\x01\x01\x02"sv},
                                  {22, "\x01\x01\0\x04\0\0\0\x01\0\x01\xE2\x40"sv},
                                  {34, "\x01\x02\0\x03\0\0\0\x01\0\x08"sv}});
// Data before the start, a segment to skip, fill bytes, the frame header.
const auto jpeg = picture(
    40, {{0, "junk\xFF\xD8\xFF\xE0\0\x06"sv}, {14, "\xFF\xFF\xFF\xC2\0\x11\x08\x02\x01\x01\x40\x03"sv}});

const std::vector<Sample> samples{
    {"gif", picture(13, {{0, "GIF89a"}, {6, "\x58\x00\x1F\x00\xB3"sv}}), {88, 31, 4, ImageFormat::Gif}},
    {"grey png", png("\x01\x00"sv), {258, 64, 1, ImageFormat::Png}},
    {"colour png", png("\x08\x02"), {258, 64, 24, ImageFormat::Png}},
    {"palette png", png("\x04\x03"), {258, 64, 8, ImageFormat::Png}},
    {"grey png with alpha", png("\x10\x04"), {258, 64, 32, ImageFormat::Png}},
    {"colour png with alpha", png("\x10\x06"), {258, 64, 64, ImageFormat::Png}},
    {"gif before a jpeg", "GIF89a" + jpeg, {30058, 27502, 8, ImageFormat::Gif}},
    {"bmp",
     picture(54, {{0, "BM"}, {18, "\xFF\x7F\0\0\0\x80"sv}, {28, "\x18"}}),
     {32767, -32768, 24, ImageFormat::Bmp}},  // Quirk: words are signed
    {"pcx", pcx("\x08", "\x03"), {266, 2, 24, ImageFormat::Pcx}},
    {"tiff, little-endian", littleTiff, {123456, 80, 8, ImageFormat::Tiff}},
    {"tiff, big-endian", bigTiff, {258, 123456, 8, ImageFormat::Tiff}},
    {"jpeg", jpeg, {320, 513, 24, ImageFormat::Jpeg}},
    {"jpeg, ten bytes before the end",
     picture(13, {{0, "\xFF\xD8\xFF\xC0\0\x11\x08\0\x05\0\x06\x01"sv}}),
     {6, 5, 8, ImageFormat::Jpeg}},
};

TEST(ImageInfo, ReadsSixFormatsAndToleratesTruncation) {
  for (auto [name, bytes, info] : samples) {
    for (std::size_t size = 0; size < bytes.size(); ++size) {
      // An exact copy, so that the sanitizers detect a read past the end.
      const std::vector<char> cut(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size));
      const auto found = ReadImageInfo({cut.data(), cut.size()});
      EXPECT_TRUE(found.ImageType == info.ImageType || found.ImageType == ImageFormat::Unknown)
          << name << size;
    }
    info.FileSize = static_cast<std::int32_t>(bytes.size());
    EXPECT_EQ(ReadImageInfo(bytes), info) << name;
  }
}

TEST(ImageInfo, UnknownFormatsAreZeroByZero) {
  for (const auto& bytes :
       {std::string(), std::string("GI"), std::string(500, 'x'), png("\x08\x05"),
        picture(62, {{0, "II*\0\x08"sv}}), std::string("\xFF\xD8\xFF"),
        // Segment lengths that lead back to the marker, or to before the file.
        picture(40, {{0, "\xFF\xD8\xFF\xE0\xFF\xFF"}}), picture(40, {{0, "\xFF\xD8\xFF\xE0\x80\x00"sv}})}) {
    EXPECT_EQ(ReadImageInfo(bytes), CImageInfo{.FileSize = static_cast<std::int32_t>(bytes.size())});
  }
}

TEST(ImageInfo, KeepsValuesReadBeforeTheError) {
  const std::string_view gif = samples.front().bytes;
  const std::string_view tiff = littleTiff;
  EXPECT_EQ(ReadImageInfo(gif.substr(0, 7)), (CImageInfo{88, 0, 0, ImageFormat::Gif, 7})) << "one spare byte";
  EXPECT_EQ(ReadImageInfo(gif.substr(0, 8)), (CImageInfo{88, 0, 0, ImageFormat::Gif, 8}));
  EXPECT_EQ(ReadImageInfo(tiff.substr(0, 40)), (CImageInfo{123456, 0, 0, ImageFormat::Unknown, 40}));
  EXPECT_EQ(ReadImageInfo(pcx("\x11", "\x11")), (CImageInfo{266, 2, 0, ImageFormat::Pcx, 128}))
      << "a depth above 255";
}

}  // namespace
}  // namespace nimbrel
