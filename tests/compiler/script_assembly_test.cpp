#include "compiler/script_assembly.h"

#include <gmock/gmock.h>
#include <set>

#include "compiler/fixtures.h"
#include "compiler/style_strings.h"
#include "platform/memory/memory_file_system.h"
#include "support/generated_document.h"

namespace nimbrel {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

std::vector<std::string> linesOf(const std::string& script) {
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin <= script.size();) {
    const auto end = std::min(script.find("\r\n", begin), script.size());
    lines.push_back(script.substr(begin, end - begin));
    begin = end + 2;
  }
  return lines;
}

class ScriptAssembly : public testing::Test {
 protected:
  std::string menuScript(ScriptMode mode, Document& document) {
    return ScriptMaker(steps, "C:\\program").CreateMenuScript(mode, document, target, true);
  }
  std::string submenusScript(Document& document) {
    return ScriptMaker(steps, "C:\\program").CreateSubmenusScript(document, target);
  }

  MemoryFileSystem files;
  StepReport report;
  FileSteps steps{files, report};
  ScriptTarget target{"C:\\site", "lib", "img", "menu1"};
};

TEST_F(ScriptAssembly, TheGalleryRenewsOnlyTheDot) {
  files.files = {{"C:\\program\\dot.gif", "dot"},
                 {"C:\\program\\libraries\\nbrlib0.js", "new"},
                 {"C:\\site\\lib\\nbrlib0.js", "old"}};
  auto document = menuWithTwoSubmenus();
  menuScript(ScriptMode::Gallery, document);
  EXPECT_THAT(report.made, testing::ElementsAre("C:\\site\\lib\\dot.gif"));
}

TEST_F(ScriptAssembly, TheProgramsFolderCanReplaceTwoLines) {
  auto document = menuWithTwoSubmenus();
  const auto plain = linesOf(menuScript(ScriptMode::Gallery, document));
  files.files = {{"C:\\program\\auc", "var nbrSupported=1;\n"}, {"C:\\program\\bsc", ""}};
  for (const auto& script : {menuScript(ScriptMode::Gallery, document), submenusScript(document)}) {
    const auto lines = linesOf(script);
    EXPECT_EQ(lines[4], "var nbrSupported=1;\n") << "raw, with a line end of our own behind it";
    EXPECT_EQ(lines[5], plain[5]);
    EXPECT_EQ(lines[11], plain[11]);
    EXPECT_EQ(lines[12], "");
    EXPECT_EQ(lines[13], plain[13]);
  }
}

/// Each number in the elements stands for what they say, and each style line for the look of some element.
void expectNumbersOf(const Document& document, const FileSystem& files,
                     const std::vector<std::string>& lines) {
  std::vector<std::string> styles;
  std::ranges::copy_if(lines, std::back_inserter(styles),
                       [](const auto& line) { return line.starts_with("nbrCreateCSS("); });
  std::set<std::string> used;
  const auto check = [&]<class E>(const E& element, void (*styleString)(const E&, std::string&),
                                  const SharedText& id) {
    std::string call;
    styleString(element, call);
    EXPECT_EQ(call, id.empty() ? "" : styles.at(std::stoul(id.str())));
    if (!call.empty()) used.insert(call);
  };
  const auto checkElement = [&]<class E>(const E& e) {
    if constexpr (std::is_same_v<E, ItemObj>) {
      check(e, ItemStyleString1, e.ItemStyleID1);
      check(e, ItemStyleString2, e.ItemStyleID2);
      check(e, ItemStyleString3, e.ItemStyleID3);
    } else {
      check.template operator()<E>(e, TitleStyleString, e.TitleStyleID);
      check.template operator()<E>(e, ContainerStyleString, e.ContainerStyleID);
    }
    eachProperty<E>([&](const Property<E>& row, auto field) {
      if constexpr (std::is_same_v<decltype(field), SharedText E::*>) {
        EXPECT_EQ(row.isImage() ? e.*row.imageNo : 0, row.isImage() && files.isFile(e.*field) ? 1 : 0);
      }
    });
  };
  for (const auto& entry : document.ElementColl) std::visit(checkElement, entry.second);
  EXPECT_THAT(styles, testing::UnorderedElementsAreArray(used));
}

/// The element calls are those of the tree, walked depth first.
void expectCallsOf(const Document& document, const std::vector<std::string>& lines) {
  auto line =
      std::ranges::find_if(lines, [](const auto& l) { return l.starts_with("var s0=nbrCreateMenu("); });
  for (const Node* node = following(document.tvTreeView.root()); node != nullptr; node = following(node)) {
    auto level = -1;
    for (const Node* above = node; above != nullptr; above = above->Parent()) {
      if (kindOf(above->Key) != Kind::Item) ++level;
    }
    const auto menu = "s" + std::to_string(level);
    const bool isItem = kindOf(node->Key) == Kind::Item;
    ASSERT_THAT(*++line, StartsWith(isItem ? "it=" + menu + ".addItem" : "var " + menu + "=it.addSubmenu("));
  }
  EXPECT_EQ(*++line, "s0.pm.buildMenu();");
}

TEST_F(ScriptAssembly, OfAnyDocumentNumbersAndCallsAgreeWithItsElements) {
  files.files = {{"C:\\site\\pictures\\a, b.gif", gif(1, 1)}};
  for (unsigned seed = 1; seed <= 20; ++seed) {
    auto document = generatedDocument(seed, 60);
    const auto lines = linesOf(menuScript(ScriptMode::Gallery, document));
    expectNumbersOf(document, files, lines);
    expectCallsOf(document, lines);
    EXPECT_EQ(linesOf(menuScript(ScriptMode::Gallery, document)), lines) << "a second time is no different";
  }
}

TEST_F(ScriptAssembly, ToleratesTheDeepestDocument) {
  Document document;
  Node* container = &AddMainMenu(document);
  const auto add = [&document](Node& parent, const std::string& key, const Element& element) {
    document.ElementColl.add(key, element);
    return &document.tvTreeView.add(parent, Relationship::Child, key, "");
  };
  constexpr int levels = 20'000;
  for (int i = 1; i <= levels; ++i) {
    Node* item = add(*container, "I" + std::to_string(i), ItemObj{});
    container = add(*item, "S" + std::to_string(i), SubmenuObj{});
  }
  EXPECT_THAT(menuScript(ScriptMode::Compile, document), HasSubstr("\r\nvar s20000=it.addSubmenu("));
  EXPECT_THAT(submenusScript(document), HasSubstr("\r\nvar s19999=it.addSubmenu("));
}

}  // namespace
}  // namespace nimbrel
