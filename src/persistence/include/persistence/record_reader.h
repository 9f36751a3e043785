#pragma once

#include <string_view>
#include <tuple>
#include <vector>

#include "model/element.h"
#include "persistence/file_handle.h"
#include "persistence/file_versions.h"
#include "persistence/older_records.h"

namespace nimbrel {

/// Reads the property lines of one file. It keeps the last record of each class: most values are the same as
/// in that record, and are then copied instead of parsed.
class RecordReader {
 public:
  /// `FPath` is the folder of the file. The reader borrows all of its arguments.
  RecordReader(FileHandle& file, const FileFormat& format, std::string_view FPath,
               SubmenuCarryOver& carryOver);

  /// Reads the values that the file's version has for the class of a new element. In a version with end marks
  /// it also skips everything up to the closing marker, and sets properties newer than the version to their
  /// defaults; for other versions see `readOlderRecord`. Throws `FileError` if a value cannot be converted.
  void ReadPropertiesFromFile(Element& element);

 private:
  template <class E>
  struct Value {
    const Property<E>* property;
    std::string_view source;  ///< text of the last record's value with its comma; empty: parse the next one
  };

  template <class E>
  struct LastRecord {
    explicit LastRecord(FileVersion version);

    E element;
    std::vector<Value<E>> values;
  };

  template <class E>
  void readWithMarker(E& object);

  FileHandle& file_;
  const FileFormat& format_;
  std::string_view FPath_;
  SubmenuCarryOver& carryOver_;
  std::tuple<LastRecord<MenuObj>, LastRecord<SubmenuObj>, LastRecord<ItemObj>> last_;
};

}  // namespace nimbrel
