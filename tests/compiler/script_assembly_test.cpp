#include "compiler/script_assembly.h"

#include <gmock/gmock.h>

#include "compiler/fixtures.h"
#include "platform/memory/memory_file_system.h"

namespace nimbrel {
namespace {

using testing::HasSubstr;

class ScriptAssembly : public testing::Test {
 protected:
  std::string menuScript(ScriptMode mode, Document& document) {
    return ScriptMaker(steps, "C:\\program")
        .CreateMenuScript(mode, document, compiledMenu(document, false, files).main, target);
  }
  std::string submenusScript(Document& document) {
    return ScriptMaker(steps, "C:\\program")
        .CreateSubmenusScript(document, compiledMenu(document, true, files).submenus, target);
  }

  MemoryFileSystem files;
  StepReport report;
  FileSteps steps{files, report};
  ScriptTarget target{"C:\\site", "lib", "img", "menu1"};
};

TEST_F(ScriptAssembly, GalleryCopiesOnlyTheDot) {
  files.files = {{"C:\\program\\dot.gif", "dot"}, {"C:\\program\\libraries\\nbrlib0.js", "new"}};
  files.folders = {"C:\\site\\lib"};
  auto document = menuWithTwoSubmenus();
  menuScript(ScriptMode::Gallery, document);
  EXPECT_THAT(report.made, testing::ElementsAre("C:\\site\\lib\\dot.gif"));
}

TEST_F(ScriptAssembly, FilesInTheProgramFolderReplaceTwoLines) {
  auto document = menuWithTwoSubmenus();
  files.files = {{"C:\\program\\auc", "var nbrSupported=1;\n"}, {"C:\\program\\bsc", ""}};
  for (const auto& script : {menuScript(ScriptMode::Gallery, document), submenusScript(document)}) {
    // Unchanged, followed by a line end.
    EXPECT_THAT(script, HasSubstr("';\r\nvar nbrSupported=1;\n\r\nif (nbrAltUrl!=''"));
    EXPECT_THAT(script, HasSubstr("mpi.length-16);\r\n\r\ndocument.write("));
  }
}

TEST_F(ScriptAssembly, CompilesVeryDeepDocuments) {
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
