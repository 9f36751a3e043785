#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "persistence/menu_file.h"
#include "persistence/menu_file_layout.h"
#include "persistence/property_line.h"
#include "persistence/record_reader.h"
#include "text/numbers.h"
#include "text/paths.h"
#include "text/product.h"

namespace nimbrel {
namespace {

void convert(FileHandle&, std::string_view, std::string_view value, std::string& field) { field = value; }

void convert(FileHandle& file, std::string_view name, std::string_view value, bool& field) {
  const auto flag = parseBoolean(value);
  if (!flag) file.fail(std::string(name) + ": " + quoted(value) + " is neither True nor False");
  field = *flag;
}

void convert(FileHandle& file, std::string_view name, std::string_view value, std::int32_t& field) {
  const auto number = parseInteger(value);
  if (!number) file.fail(std::string(name) + ": " + quoted(value) + " is not a whole number");
  field = *number;
}

void readHeader(FileHandle& file, const FileFormat& format, CompileSettings& settings) {
  settings = {};
  if (file.atEnd()) return;  // only the magic: a document without nodes
  for (const CompileSetting& setting : compileSettings) {
    if (setting.since > format.version) continue;
    std::visit([&](auto field) { convert(file, setting.name, file.next(), settings.*field); }, setting.field);
  }
  if (!format.hasEndMarks) return;
  std::size_t unknown = 0;
  while (file.next() != treeMark) ++unknown;
  if (unknown > 0) file.noteUnknown(unknown, "the header is from a later version");
}

/// Reads the node records of one file.
class NodeReader {
 public:
  NodeReader(FileHandle& file, const FileFormat& format, std::string_view folder, SubmenuCarryOver& carryOver,
             Document& document)
      : file_(file), document_(document), records_(file, format, folder, carryOver) {}

  /// Reads one node and its element. If this fails, neither is in the document.
  void read() {
    file_.beginRecord();
    const auto parentKey = file_.next();
    auto text = unmarked(file_, "text of the node", file_.next());
    const std::string key(file_.next());
    const auto number = numberOf(key);
    Node* parent = parentOf(parentKey);
    auto element = newElement(kindOf(key));
    if (element) {
      records_.ReadPropertiesFromFile(*element);
    } else {
      file_.note("key " + quoted(key) + " is of an unknown kind: the node has no element");
    }
    try {
      if (element) document_.ElementColl.add(key, std::move(*element));
      addNode(parent, key, std::move(text));
    } catch (const std::invalid_argument&) {
      file_.fail("key " + quoted(key) + " is in the file twice");
    }
    document_.NextKeyNumber = std::max(document_.NextKeyNumber, number);
  }

 private:
  std::int16_t numberOf(std::string_view key) const {
    std::int16_t number = -1;
    const auto digits = key.substr(std::min<std::size_t>(key.size(), 1));
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{} || end != digits.data() + digits.size() || digits.front() == '-') {
      file_.fail("key " + quoted(key) + " is not a letter and a number up to " +
                 std::to_string(Document::largestKeyNumber));
    }
    return number;
  }

  Node* parentOf(std::string_view key) {
    if (key == rootParent) return nullptr;
    // Most nodes have the same parent as the node before.
    if (lastParent_ == nullptr || lastParent_->Key != key) lastParent_ = document_.tvTreeView.find(key);
    if (lastParent_ == nullptr) file_.fail("parent " + quoted(key) + " is not in the tree");
    return lastParent_;
  }

  void addNode(Node* parent, const std::string& key, SharedText text) {
    if (parent == nullptr) {
      document_.tvTreeView.addRoot(key, std::move(text));
    } else {
      document_.tvTreeView.add(*parent, Relationship::Child, key, std::move(text));
    }
  }

  FileHandle& file_;
  Document& document_;
  RecordReader records_;
  Node* lastParent_ = nullptr;
};

/// Makes the counter greater than every number in use, up to its limit.
void stepCounter(Document& document) {
  if (document.NextKeyNumber < Document::largestKeyNumber) ++document.NextKeyNumber;
}

}  // namespace

NotAMenuFile::NotAMenuFile(std::string path)
    : FileError(std::move(path), "This file is not a valid " + std::string(productTitle) + " file") {}

void readMenuFile(std::string_view bytes, const std::string& path, std::string_view folder,
                  SubmenuCarryOver& carryOver, Document& document, ReadNotes& notes) {
  document.clear();
  FileHandle file(path, bytes, notes);
  const auto magic = file.atEnd() ? std::string_view{} : file.next();
  const auto* format = formatOfMenuFile(magic);
  if (format == nullptr) throw NotAMenuFile(path);

  readHeader(file, *format, document.settings);
  constexpr std::size_t usualRecord = 300;  // bytes, an estimate
  document.tvTreeView.reserve(bytes.size() / usualRecord);
  document.ElementColl.reserve(bytes.size() / usualRecord);
  NodeReader nodes(file, *format, folder, carryOver, document);
  try {
    while (!file.atEnd()) nodes.read();
  } catch (const FileError&) {
    stepCounter(document);  // the author can go on with the nodes read so far
    throw;
  }
  stepCounter(document);
}

void LoadMenuFile(const FileSystem& files, std::string_view folder, std::string_view fileName,
                  SubmenuCarryOver& carryOver, Document& document, ReadNotes& notes) {
  document.clear();
  const auto path = joinPath(folder, fileName);
  const auto bytes = files.read(path);
  readMenuFile(bytes, path, folder, carryOver, document, notes);
}

}  // namespace nimbrel
