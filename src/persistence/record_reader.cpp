#include "persistence/record_reader.h"

#include "persistence/property_line.h"

namespace nimbrel {
namespace {

void skipToMarker(FileHandle& file, std::string_view marker) {
  std::size_t dropped = 0;
  while (file.next() != marker) ++dropped;
  if (dropped == 0) return;
  file.noteUnknown(
      dropped,
      "the file is from a later version, or a comma in a font, font size, colour or border style has "
      "shifted the later values");
}

}  // namespace

template <class E>
RecordReader::LastRecord<E>::LastRecord(FileVersion version) {
  for (const auto& property : E::properties()) {
    if (property.since <= version) {
      values.push_back({&property, {}});
    } else {
      setDefault(element, property);
    }
  }
}

RecordReader::RecordReader(FileHandle& file, const FileFormat& format, std::string_view FPath,
                           SubmenuCarryOver& carryOver)
    : file_(file),
      format_(format),
      FPath_(FPath),
      carryOver_(carryOver),
      last_(format.version, format.version, format.version) {}

void RecordReader::ReadPropertiesFromFile(Element& element) {
  if (!format_.hasEndMarks) return readOlderRecord(file_, format_.version, FPath_, carryOver_, element);
  std::visit([this](auto& object) { readWithMarker(object); }, element);
  skipToMarker(file_, closingMarker(kindOf(element)));
}

template <class E>
void RecordReader::readWithMarker(E& object) {
  auto& last = std::get<LastRecord<E>>(last_);
  for (auto& value : last.values) {
    if (file_.skip(value.source)) continue;
    const auto notes = file_.notes();
    readProperty(file_, FPath_, *value.property, last.element);
    // A value that caused a note is parsed each time, to note it again.
    value.source = file_.notes() == notes ? file_.lastSource() : std::string_view{};
  }
  object = last.element;
}

}  // namespace nimbrel
