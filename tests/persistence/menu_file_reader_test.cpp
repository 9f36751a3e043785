#include <gtest/gtest.h>

#include "menu_files.h"
#include "model/structure.h"
#include "support/generated_document.h"

namespace nimbrel {
namespace {

/// The keys of all nodes, one per line. Checks that the elements have the same keys, and that the counter is
/// greater than all of them.
std::string keysOf(const Document& document) {
  std::string keys;
  std::size_t elements = 0;
  for (const Node* node = document.tvTreeView.root(); node != nullptr; node = following(node)) {
    keys += node->Key + "\n";
    EXPECT_GT(document.NextKeyNumber, std::stoi(node->Key.substr(1))) << node->Key;
    if (kindOf(node->Key) != Kind::None) ++elements;
    EXPECT_EQ(document.element(*node) != nullptr, kindOf(node->Key) != Kind::None) << node->Key;
  }
  EXPECT_EQ(document.ElementColl.size(), elements);
  return keys;
}

// Next to each file are the bytes that saving gives, and the expected notes if any.
TEST(MenuFileReader, ReadsEveryFormAndNotesOddities) {
  for (const auto& folder : {casesIn("older"), casesIn("rewritten")}) {
    EXPECT_GE(folder.size(), 3U);
    for (const auto& path : folder) {
      SCOPED_TRACE(path.filename());
      Document document;
      ReadNotes notes;
      std::string texts;
      readBytes(bytesOf(path / "read.nbr"), document, notes);
      for (const Finding& note : notes.findings) texts += note.text() + "\n";
      EXPECT_EQ(menuFileText(document), bytesOf(path / "written.nbr"));
      EXPECT_EQ(texts, bytesOf(path / "notes.txt"));
    }
  }
}

// Values equal to those of the record before are skipped, but not if they cause a note.
TEST(MenuFileReader, NotesAnOddValueEachTime) {
  Document document;
  BuildDefaultDocument(document);
  auto bytes = menuFileText(document);
  for (std::size_t at = 0; (at = bytes.find("!Item", at)) != std::string::npos; ++at) {
    if (bytes.substr(at + 6, 2) == "!,") bytes.replace(at, 7, "?Item!");
  }
  ReadNotes notes;
  readBytes(bytes, document, notes);
  EXPECT_EQ(notes.findings.size(), 9U) << "three names of three items";
}

// Next to each file is the expected message, followed by the keys of the nodes read before the error.
TEST(MenuFileReader, StopsAtErrorsAndKeepsTheNodesReadSoFar) {
  const auto cases = casesIn("broken");
  EXPECT_FALSE(cases.empty());
  for (auto path : cases) {
    SCOPED_TRACE(path.filename());
    Document document = generatedDocument(1, 5);
    ReadNotes notes;
    std::string message = "none";
    try {
      readBytes(bytesOf(path), document, notes);
    } catch (const FileError& error) {
      message = error.what();
      EXPECT_EQ(error.finding().path, "C:\\menus\\menu.nbr");
    }
    EXPECT_EQ(message + "\n" + keysOf(document), bytesOf(path.replace_extension(".txt")));
  }
}

// The complete records of the file stay.
TEST(MenuFileReader, ReadsAFileThatIsTruncatedAnywhere) {
  const auto bytes = bytesOf(goldenMenuFiles / "worked-example.nbr");
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    Document document;
    ReadNotes notes;
    try {
      readBytes(std::string_view(bytes).substr(0, size), document, notes);
    } catch (const FileError&) {
    }
    EXPECT_TRUE(std::string_view("M0\nI1\nS2\nI3\n").starts_with(keysOf(document))) << size;
  }
}

}  // namespace
}  // namespace nimbrel
