#include "cli/nbrc_test.h"

namespace nimbrel {
namespace {

using testing::HasSubstr;
using DocumentCommands = NbrcTest;

Document nestedDocument() {
  Document document;
  BuildDefaultDocument(document);
  AddItem(document, AddSubmenu(document, AddItem(document, AddSubmenu(document, "I1")->Key)->Key)->Key);
  document.tvTreeView.find("I2")->Text = "caf\xE9 &#1078;";
  return document;
}

TEST_F(DocumentCommands, NewWritesTheDefaultDocumentAndReplacesNoFile) {
  EXPECT_EQ(run({"new", "m.nbr"}), (Outcome{0, "", ""}));
  Document document;
  BuildDefaultDocument(document);
  EXPECT_EQ(read("m.nbr"), menuFileText(document));

  write("work.nbr", "months of work");
  EXPECT_EQ(run({"new", "work.nbr"}).status, 1);
  EXPECT_EQ(read("work.nbr"), "months of work");
}

TEST_F(DocumentCommands, ShowPrintsTheDocumentAsJson) {
  auto document = nestedDocument();
  document.settings = {"C:\\site", "m1.js", "lib", "", true, "frame \xE4", -7, false};
  auto& item = *document.get<ItemObj>(*document.tvTreeView.find("I2"));
  item.ItemTooltip = "say \"caf\xE9\" \x81 &#1078;";
  item.ItemPadding2 = 0.1F;
  save("m.nbr", document);
  const auto out = run({"show", "--json", "m.nbr"}).out;
  EXPECT_TRUE(out.starts_with(R"({
  "CompiledPath": "C:\\site",
  "CompiledName": "m1.js",
  "nbrLibraryPath": "lib",
  "nbrImagePath": "",
  "nbrOptimize": true,
  "nbrSubmenusFrame": "frame ä",
  "nbrSubmenusFrameOffset": -7,
  "nbrFrontPageSupport": false,
  "elements": [
    {"key":"M0","parent":null,"text":"Main Menu","properties":{"menuname":"Main Menu",)"))
      << out;
  EXPECT_THAT(out,
              HasSubstr("},\n    {\"key\":\"S4\",\"parent\":\"I1\",\"text\":\"Submenu4\",\"properties\":{"));
  EXPECT_THAT(out, HasSubstr("\"ItemTooltip\":\"say \\\"café\\\" \xC2\x81 ж\","));
  EXPECT_THAT(out, HasSubstr("\"ItemPadding2\":0.1,"));
}

TEST_F(DocumentCommands, ShowPrintsTheTreeEvenOfABrokenFileButConvertStops) {
  const auto whole = menuFileText(nestedDocument());
  write("cut.nbr", whole.substr(0, whole.size() - 30));
  EXPECT_EQ(run({"show", "cut.nbr"}),
            (Outcome{1,
                     "M0 Main Menu\n"
                     "  I1 Item1\n"
                     "    S4 Submenu4\n"
                     "      I5 Item5\n"
                     "        S6 Submenu6\n"
                     "          I7 Item7\n"
                     "  I2 café ж\n",
                     fault("cut.nbr", "record 8, line 42: the file ends inside a record")}));
  EXPECT_EQ(run({"convert", "cut.nbr", "cut.nbr"}).status, 1);
  EXPECT_EQ(read("cut.nbr").size(), whole.size() - 30);
}

TEST_F(DocumentCommands, ConvertWritesTheCurrentVersionInPlace) {
  save("m.nbr", nestedDocument());
  const auto bytes = read("m.nbr");
  EXPECT_EQ(run({"convert", "m.nbr", "m.nbr"}), (Outcome{0, "", ""}));
  EXPECT_EQ(read("m.nbr"), bytes);

  const auto menu = bytes.find("!Main Menu!,");
  write("two.nbr",
        bytes + " 0 \r\n!Second!\r\nM9\r\n" + bytes.substr(menu, bytes.find("]\r", menu) + 1 - menu));
  EXPECT_EQ(run({"convert", "two.nbr", "one.nbr"}),
            (Outcome{1, "", fault("two.nbr", "has more than one root; only the first is written")}));
  EXPECT_EQ(read("one.nbr"), bytes);
  const auto two = read("two.nbr");
  EXPECT_THAT(run({"convert", "two.nbr", "./two.nbr"}).err, HasSubstr("two.nbr: was not written, because"));
  EXPECT_EQ(read("two.nbr"), two);
}

TEST_F(DocumentCommands, ValuesOfALaterVersionAreToldAndNotLostInPlace) {
  save("m.nbr", nestedDocument());
  const auto bytes = read("m.nbr");
  auto later = bytes;
  later.insert(later.find("[Menu Tree]"), "narrow=640\r\n");
  later.insert(later.find("[nbrEI]"), "later,");
  write("later.nbr", later);
  std::filesystem::create_symlink("later.nbr", here / "link.nbr");

  const auto header = fault("later.nbr", "line 11: 1 unknown value: the header is from a later version");
  for (const auto* same : {"later.nbr", "link.nbr"}) {
    const auto refused = run({"convert", "later.nbr", same});
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.err.starts_with(header)) << refused.err;
    EXPECT_EQ(read("later.nbr"), later);
  }
  EXPECT_EQ(run({"convert", "later.nbr", "now.nbr"}).status, 1);
  EXPECT_EQ(read("now.nbr"), bytes);
  EXPECT_EQ(run({"check", "later.nbr"}).status, 1);

  const auto shown = run({"show", "later.nbr"});
  EXPECT_EQ(shown.status, 0);
  EXPECT_THAT(shown.err, HasSubstr("later.nbr: warning: line 11: 1 unknown value"));
}

TEST_F(DocumentCommands, CheckReportsEveryProblem) {
  auto document = nestedDocument();
  save("m.nbr", document);
  EXPECT_EQ(run({"check", "m.nbr"}), (Outcome{0, "", ""}));

  auto& item = *document.get<ItemObj>(*document.tvTreeView.find("I2"));
  item.ItemImage1 = "*\\gone.gif";
  item.URL = "a\"b";
  save("bad.nbr", document);
  EXPECT_EQ(run({"check", "bad.nbr"}),
            (Outcome{1, "",
                     fault("gone.gif", "there is no such picture (used by I2)") +
                         fault("bad.nbr", "URL of I2 holds a double quote, which breaks the script")}));
}

}  // namespace
}  // namespace nimbrel
