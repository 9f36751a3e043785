#include <nlohmann/json.hpp>

#include "cli/nbrc_test.h"

namespace nimbrel {
namespace {

using nlohmann::json;
using DocumentCommands = NbrcTest;

Document nestedDocument() {
  Document document;
  BuildDefaultDocument(document);
  AddItem(document, AddSubmenu(document, AddItem(document, AddSubmenu(document, "I1")->Key)->Key)->Key);
  document.tvTreeView.find("I2")->Text = "caf\xE9 &#1078;";
  return document;
}

TEST_F(DocumentCommands, NewWritesTheDefaultDocumentAndSparesOldFiles) {
  const auto [status, out, err] = run({"new", "m.nbr"});
  EXPECT_EQ(status, 0);
  EXPECT_EQ(out + err, "");
  EXPECT_EQ(run({"show", "m.nbr"}).out, "M0 Main Menu\n  I1 Item1\n  I2 Item2\n  I3 Item3\n");
  Document document;
  BuildDefaultDocument(document);
  EXPECT_EQ(read("m.nbr"), menuFileText(document));

  write("work.nbr", "months of work");
  EXPECT_EQ(run({"new", "work.nbr"}).status, 1);
  EXPECT_EQ(read("work.nbr"), "months of work");
  EXPECT_EQ(run({"new", "no/such/folder/m.nbr"}).status, 1);
}

TEST_F(DocumentCommands, ShowPrintsTheTree) {
  save("m.nbr", nestedDocument());
  EXPECT_EQ(run({"show", "m.nbr"}).out,
            "M0 Main Menu\n"
            "  I1 Item1\n"
            "    S4 Submenu4\n"
            "      I5 Item5\n"
            "        S6 Submenu6\n"
            "          I7 Item7\n"
            "  I2 café ж\n"
            "  I3 Item3\n");
}

TEST_F(DocumentCommands, ShowPrintsAllAsJson) {
  auto document = nestedDocument();
  document.settings = {"C:\\site", "m1.js", "lib", "", true, "frame \xE4", -7, false};
  auto& item = *document.get<ItemObj>(*document.tvTreeView.find("I2"));
  item.ItemTooltip = "say \"caf\xE9\" \x81 &#1078;";
  item.ItemPadding2 = 0.1F;
  save("m.nbr", document);
  const auto [status, out, err] = run({"show", "--json", "m.nbr"});
  EXPECT_EQ(status, 0);
  auto shown = json::parse(out);
  const auto elements = shown["elements"];
  shown.erase("elements");
  EXPECT_EQ(shown,
            json::parse(R"({"CompiledPath": "C:\\site", "CompiledName": "m1.js", "nbrLibraryPath": "lib",
      "nbrImagePath": "", "nbrOptimize": true, "nbrSubmenusFrame": "frame ä", "nbrSubmenusFrameOffset": -7,
      "nbrFrontPageSupport": false})"));
  std::string places;
  for (const auto& e : elements) {
    places += e["key"].get<std::string>() + ' ' + e["parent"].dump() + ' ' +
              std::to_string(e["properties"].size()) + '\n';
  }
  EXPECT_EQ(places,
            "M0 null 39\nI1 \"M0\" 63\nS4 \"I1\" 35\nI5 \"S4\" 63\nS6 \"I5\" 35\nI7 \"S6\" 63\nI2 \"M0\" 63\n"
            "I3 \"M0\" 63\n");
  EXPECT_EQ(elements[6]["text"], "café ж");
  const auto& properties = elements[6]["properties"];
  EXPECT_EQ(properties["ItemTooltip"], "say \"café\" \xC2\x81 ж");
  EXPECT_EQ(properties["ItemPadding2"].dump() + properties["DisplayNameAsTitle1"].dump(), "0.11");
}

TEST_F(DocumentCommands, ABrokenFileIsShownAsFarAsItGoesButNotConverted) {
  const auto whole = menuFileText(nestedDocument());
  write("cut.nbr", whole.substr(0, whole.size() - 30));
  const auto [status, out, err] = run({"show", "cut.nbr"});
  EXPECT_EQ(status, 1);
  EXPECT_TRUE(out.ends_with("I2 café ж\n")) << out;
  EXPECT_EQ(err, fault("cut.nbr", "record 8, line 42: the file ends inside a record"));

  write("out.nbr", "old");
  EXPECT_EQ(run({"convert", "cut.nbr", "out.nbr"}).status, 1);
  EXPECT_EQ(read("out.nbr"), "old");
  EXPECT_EQ(run({"convert", "cut.nbr", "cut.nbr"}).status, 1);
  EXPECT_EQ(read("cut.nbr").size(), whole.size() - 30);
}

TEST_F(DocumentCommands, ConvertWritesTheCurrentVersionAlsoInPlace) {
  save("m.nbr", nestedDocument());
  const auto bytes = read("m.nbr");
  auto spread = bytes;  // the same values on lines of their own
  for (auto comma = spread.find(','); comma != std::string::npos; comma = spread.find(',', comma))
    spread[comma] = '\r';
  write("spread.nbr", spread);
  EXPECT_EQ(run({"convert", "spread.nbr", "spread.nbr"}).status, 0);
  EXPECT_EQ(read("spread.nbr"), bytes);

  const auto menu = bytes.find("!Main Menu!,");
  write("two.nbr",
        bytes + " 0 \r\n!Second!\r\nM9\r\n" + bytes.substr(menu, bytes.find("]\r", menu) + 1 - menu));
  const auto [status, out, err] = run({"convert", "two.nbr", "one.nbr"});
  EXPECT_EQ(status, 1);
  EXPECT_EQ(err, fault("two.nbr", "has more than one root; only the first was written"));
  EXPECT_EQ(run({"show", "one.nbr"}).out, run({"show", "m.nbr"}).out);
}

TEST_F(DocumentCommands, CheckSaysWhatWouldDisappoint) {
  auto document = nestedDocument();
  save("m.nbr", document);
  const auto sound = run({"check", "m.nbr"});
  EXPECT_EQ(sound.status, 0);
  EXPECT_EQ(sound.out + sound.err, "");

  write("notes.txt", "no picture");
  auto& item = *document.get<ItemObj>(*document.tvTreeView.find("I2"));
  item.ItemImage1 = "*\\gone.gif";
  item.ItemImage2 = "*\\notes.txt";
  item.URL = "a\"b";
  save("bad.nbr", document);
  const auto [status, out, err] = run({"check", "bad.nbr"});
  EXPECT_EQ(status, 1);
  EXPECT_EQ(out, "");
  EXPECT_EQ(err, fault("gone.gif", "there is no such picture (used by I2)") +
                     fault("notes.txt", "is of no known picture format (used by I2)") +
                     fault("bad.nbr", "URL of I2 holds a double quote, which breaks the script"));
}

}  // namespace
}  // namespace nimbrel
