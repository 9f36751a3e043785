#include "cli/nbrc_test.h"

namespace nimbrel {
namespace {

using testing::HasSubstr;

class StyleCommands : public NbrcTest {
 protected:
  StyleCommands() {
    BuildDefaultDocument(document);
    save("plain.nbr", document);
    std::get<MenuObj>(*document.ElementColl.find("M0")).BGColor = "#123456";
    auto& item = std::get<ItemObj>(*document.ElementColl.find("I1"));
    item.FontColor1 = "#654321";
    item.BGImage1 = "*\\a.gif";
    write("a.gif", "GIF89a");
    save("blue.nbr", document);
  }

  Outcome style(std::vector<std::string> words) {
    words.insert(words.begin(), {"--home", "home", "style"});
    return run(std::move(words));
  }

  Document document;
};

TEST_F(StyleCommands, CopyTheLookOfAMenuToAnother) {
  EXPECT_EQ(style({"create", "blue.nbr", "Blå"}).status, 0);
  EXPECT_EQ(style({"list"}).out, "Blå\n");
  EXPECT_EQ(style({"apply", "Blå", "plain.nbr", "--to", "out.nbr"}), (Outcome{0, "", ""}));
  EXPECT_THAT(read("out.nbr"), HasSubstr("#123456"));
  EXPECT_THAT(read("out.nbr"), HasSubstr("gallery\\Bl\xE5-images\\a.gif"));

  style({"apply", "Blå", "plain.nbr", "--to", "item.nbr", "--at", "I1", "--scope", "item"});
  EXPECT_THAT(read("item.nbr"), HasSubstr("#654321"));
  EXPECT_THAT(read("item.nbr"), testing::Not(HasSubstr("#123456")));

  EXPECT_EQ(style({"create", "plain.nbr", "Blå"}).status, 0);
  // Quirk: a style that is replaced leaves its pictures in the gallery.
  EXPECT_TRUE(std::filesystem::exists("home/gallery/Blå-images/a.gif"));
}

TEST_F(StyleCommands, RefuseWhatDoesNotFit) {
  EXPECT_THAT(style({"create", "blue.nbr", "a:b"}).err, HasSubstr("cannot contain any of the following"));
  EXPECT_EQ(style({"create", "blue.nbr", " "}).status, 1);
  EXPECT_FALSE(std::filesystem::exists("home/gallery"));
  style({"create", "blue.nbr", "Blue"});
  const auto apply = [&](std::vector<std::string> words) {
    words.insert(words.begin(), "apply");
    words.insert(words.end(), {"plain.nbr", "--to", "out.nbr"});
    return style(words).status;
  };
  EXPECT_EQ(apply({"Unknown"}), 1);
  EXPECT_EQ(apply({"Blue", "--at", "I99"}), 1);
  EXPECT_EQ(apply({"Blue", "--at", "I1", "--scope", "submenu"}), 1);
  EXPECT_EQ(apply({"Blue", "--scope", "item"}), 1);
  write("home/gallery/Blue.nbs", "foo");
  EXPECT_EQ(apply({"Blue"}), 1);
  EXPECT_FALSE(std::filesystem::exists("out.nbr"));
}

}  // namespace
}  // namespace nimbrel
