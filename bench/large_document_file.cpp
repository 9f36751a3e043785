#include <charconv>
#include <filesystem>
#include <iostream>
#include <string_view>

#include "large_document.h"
#include "persistence/menu_file.h"
#include "platform/posix/host_file_system.h"
#include "platform/posix/host_paths.h"
#include "text/paths.h"

// nimbrel_large_document ELEMENTS FOLDER: writes FOLDER/large.nbr with so many elements and the pictures that
// it names beside it.

namespace nimbrel {
namespace {

constexpr std::string_view onePixel(
    "GIF89a\x01\0\x01\0\x80\0\0\0\0\0\xFF\xFF\xFF,\0\0\0\0\x01\0\x01\0\0\x02\x02\x44\x01\0;", 35);

void write(int elements, const std::string& folder) {
  HostFileSystem files;
  auto document = largeDocument(elements);
  for (auto& [key, element] : document.ElementColl) {
    for (int slot = 0; getImage(element, slot) != noMoreImages; ++slot) {
      if (getImage(element, slot) == notSet) continue;
      const auto picture = GalleryImagePath(getImage(element, slot), folder);
      if (!files.isFile(picture)) files.generate(picture, onePixel);
    }
    std::visit(
        [&]<class E>(E& object) {
          for (const auto* row : imageRows<E>) {
            auto& path = object.*std::get<SharedText E::*>(row->field);
            if (path != notSet) path = GalleryImagePath(path, folder);
          }
        },
        element);
  }
  SaveMenuFile(files, joinPath(folder, "large.nbr"), document);
}

}  // namespace
}  // namespace nimbrel

int main(int argc, char** argv) {
  const std::vector<std::string_view> words(argv + 1, argv + argc);
  int elements = 0;
  if (words.size() != 2 ||
      std::from_chars(words[0].data(), words[0].data() + words[0].size(), elements).ec != std::errc{}) {
    std::cerr << "usage: nimbrel_large_document ELEMENTS FOLDER\n";
    return 2;
  }
  try {
    nimbrel::write(elements, nimbrel::fromHostPath(nimbrel::absoluteHostPath(words[1])));
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
