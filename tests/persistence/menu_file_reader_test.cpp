#include <gtest/gtest.h>

#include "menu_files.h"
#include "model/structure.h"
#include "platform/memory/memory_file_system.h"
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
      Findings notes;
      std::string texts;
      readBytes(bytesOf(path / "read.nbr"), document, notes);
      for (const Finding& note : notes) texts += note.text() + "\n";
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
  Findings notes;
  readBytes(bytes, document, notes);
  EXPECT_EQ(notes.size(), 9U) << "three names of three items";
}

// Next to each file is the expected message, followed by the keys of the nodes read before the error.
TEST(MenuFileReader, StopsAtErrorsAndKeepsTheNodesReadSoFar) {
  const auto cases = casesIn("broken");
  EXPECT_FALSE(cases.empty());
  for (auto path : cases) {
    SCOPED_TRACE(path.filename());
    Document document = generatedDocument(1, 5);
    Findings notes;
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
    Findings notes;
    try {
      readBytes(std::string_view(bytes).substr(0, size), document, notes);
    } catch (const FileError&) {
    }
    EXPECT_TRUE(std::string_view("M0\nI1\nS2\nI3\n").starts_with(keysOf(document))) << size;
  }
}

TEST(MenuFileReader, ReplacesTheDocumentByTheFile) {
  MemoryFileSystem files;
  files.files = {{"C:\\menus\\a.nbr", bytesOf(goldenMenuFiles / "worked-example.nbr")},
                 {"C:\\menus\\page.html", "<html>"}};
  Document document = generatedDocument(1, 5);
  const auto settings = document.settings;
  const auto load = [&](std::string_view name) {
    SubmenuCarryOver carryOver;
    Findings notes;
    LoadMenuFile(files, "C:\\menus", name, carryOver, document, notes);
  };
  EXPECT_THROW(load("page.html"), NotAMenuFile);
  EXPECT_TRUE(document.tvTreeView.empty() && document.ElementColl.empty());
  EXPECT_EQ(document.settings, settings);
  EXPECT_THROW(load("missing.nbr"), FileError);
  load("a.nbr");
  EXPECT_EQ(keysOf(document), "M0\nI1\nS2\nI3\n");
  EXPECT_EQ(document.NextKeyNumber, 4);
  EXPECT_EQ(document.settings, CompileSettings{});
}

// Older versions store how submenus open with the main menu. A style read afterwards uses it too.
TEST(MenuFileReader, KeepsHowSubmenusOpenInOlderVersionsForTheNextFile) {
  SubmenuCarryOver carryOver;
  Document document;
  Findings notes;
  const auto load = [&](const std::string& name) {
    readMenuFile(bytesOf(goldenMenuFiles / name), name, "", carryOver, document, notes);
    return std::tuple(carryOver.bcSubmenusWhen, carryOver.bcSubmenusWhere, carryOver.bcSubmenusHow);
  };
  EXPECT_EQ(load("older/nbr110/read.nbr"), std::tuple(1, -2.5, 7));
  EXPECT_EQ(load("worked-example.nbr"), std::tuple(1, -2.5, 7)) << "the current version does not change it";
  EXPECT_EQ(load("older/nbr120/read.nbr"), std::tuple(0, 3, 1));
}

TEST(MenuFileReader, ReadsTheDeepestPossibleTree) {
  std::string bytes = "nbr110\r\n0,!!,X0\r\n";
  for (int i = 1; i < 32767; ++i) bytes += "X" + std::to_string(i - 1) + ",!!,X" + std::to_string(i) + "\r\n";
  const Document document = readBytes(bytes);
  EXPECT_EQ(document.tvTreeView.size(), 32767U);
  EXPECT_EQ(document.NextKeyNumber, 32767);
  EXPECT_TRUE(readBytes(menuFileText(document)) == document);
}

}  // namespace
}  // namespace nimbrel
