#include <gmock/gmock.h>

#include "menu_files.h"
#include "platform/memory/memory_file_system.h"
#include "support/generated_document.h"

namespace nimbrel {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

std::vector<std::string> textsOf(const Findings& findings) {
  std::vector<std::string> texts;
  for (const Finding& finding : findings) texts.push_back(finding.text());
  return texts;
}

// Beside each file stands what saving makes of it, and what is noted on the way if anything is.
TEST(MenuFileReader, ReadsEveryFormAndNotesWhatIsOdd) {
  const auto cases = entriesOf("rewritten");
  EXPECT_FALSE(cases.empty());
  for (const auto& folder : cases) {
    SCOPED_TRACE(folder.filename());
    Document document;
    Findings notes;
    readBytes(bytesOf(folder / "read.nbr"), document, notes);
    EXPECT_EQ(menuFileText(document), bytesOf(folder / "written.nbr"));
    EXPECT_THAT(textsOf(notes), ElementsAreArray(linesOf(bytesOf(folder / "notes.txt"))));
  }
}

/// The keys of nodes with elements are those of the elements, and the counter is past all of them.
void expectAgreement(const Document& document) {
  std::size_t elements = 0;
  for (const auto& key : keysOf(document.tvTreeView)) {
    EXPECT_GT(document.NextKeyNumber, std::stoi(key.substr(1))) << key;
    if (kindOf(key) != Kind::None) ++elements;
    EXPECT_EQ(document.ElementColl.find(key) != nullptr, kindOf(key) != Kind::None) << key;
  }
  EXPECT_EQ(document.ElementColl.size(), elements);
}

// Beside each file stands the message, and behind that the keys of the nodes that were read by then.
TEST(MenuFileReader, StopsAtWhatIsBrokenAndKeepsTheNodesSoFar) {
  std::size_t cases = 0;
  for (const auto& path : entriesOf("broken")) {
    if (path.extension() != ".nbr") continue;
    ++cases;
    SCOPED_TRACE(path.filename());
    auto expected = linesOf(bytesOf(std::filesystem::path(path).replace_extension(".txt")));
    ASSERT_FALSE(expected.empty());
    Document document = generatedDocument(1, 5);
    Findings notes;
    std::string message = "none";
    try {
      readBytes(bytesOf(path), document, notes);
    } catch (const FileError& error) {
      message = error.what();
      EXPECT_EQ(error.finding().path, "C:\\menus\\menu.nbr");
    }
    EXPECT_EQ(message, expected[0]);
    expected.erase(expected.begin());
    EXPECT_THAT(keysOf(document.tvTreeView), ElementsAreArray(expected));
    expectAgreement(document);
  }
  EXPECT_GT(cases, 0U);
}

// Wherever a file is cut off, whole records stay and nothing else.
TEST(MenuFileReader, TakesAFileThatIsCutOffAnywhere) {
  const auto bytes = bytesOf(goldenMenuFiles / "worked-example.nbr");
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    Document document;
    Findings notes;
    try {
      readBytes(std::string_view(bytes).substr(0, size), document, notes);
    } catch (const FileError&) {
    }
    expectAgreement(document);
    EXPECT_LT(document.tvTreeView.size(), 5U);
  }
}

class LoadMenuFileFrom : public testing::Test {
 protected:
  LoadMenuFileFrom() {
    files_.files = {{"C:\\menus\\a.nbr", bytesOf(goldenMenuFiles / "worked-example.nbr")},
                    {"C:\\menus\\page.html", "<html>"}};
  }

  void load(std::string_view folder, std::string_view name) {
    SubmenuCarryOver carryOver;
    LoadMenuFile(files_, folder, name, carryOver, document_, notes_);
  }

  MemoryFileSystem files_;
  Document document_ = generatedDocument(1, 5);
  Findings notes_;
};

TEST_F(LoadMenuFileFrom, AFolderReplacesTheDocument) {
  load("C:\\menus", "a.nbr");
  EXPECT_THAT(keysOf(document_.tvTreeView), ElementsAre("M0", "I1", "S2", "I3"));
  EXPECT_EQ(document_.NextKeyNumber, 4);
  EXPECT_EQ(document_.settings, CompileSettings{});
  EXPECT_THAT(notes_, IsEmpty());
  const Document before = document_;
  load("", "C:\\menus\\a.nbr");
  EXPECT_EQ(document_, before);
}

TEST_F(LoadMenuFileFrom, AFileThatIsNoneLeavesAnEmptyDocumentWithItsSettings) {
  const auto settings = document_.settings;
  EXPECT_THROW(load("C:\\menus", "page.html"), NotAMenuFile);
  EXPECT_TRUE(document_.tvTreeView.empty());
  EXPECT_TRUE(document_.ElementColl.empty());
  EXPECT_EQ(document_.settings, settings);
  EXPECT_THROW(load("C:\\menus", "missing.nbr"), FileError);
}

TEST(MenuFileReader, NestsAsDeepAsTheCounterAllows) {
  std::string bytes = "nbr110\r\n0,!!,X0\r\n";
  for (int i = 1; i < 32767; ++i) bytes += "X" + std::to_string(i - 1) + ",!!,X" + std::to_string(i) + "\r\n";
  const Document document = readBytes(bytes);
  EXPECT_EQ(document.tvTreeView.size(), 32767U);
  EXPECT_EQ(document.NextKeyNumber, 32767);
  EXPECT_TRUE(readBytes(menuFileText(document)) == document);
}

}  // namespace
}  // namespace nimbrel
