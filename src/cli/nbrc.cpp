#include "cli/nbrc.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <ostream>

#include "cli/commands.h"
#include "text/product.h"

namespace nimbrel {
namespace {

/// The arguments, as the parser sets them, and the command to run.
struct Call {
  explicit Call(MenuInputs& m) : menus(m) {}

  MenuInputs& menus;
  std::optional<std::string> home;
  std::string menu;
  std::string out;
  LinkCall link;
  PlayCall play;
  StyleCall style;
  bool asJson = false;
  std::function<ExitStatus()> run;

  MenuInput& input() const { return menus.emplace_back(menu); }
};

/// Declares a subcommand that makes `command` the one to run.
CLI::App* declare(CLI::App& app, Call& call, const std::string& name, const std::string& help,
                  std::function<ExitStatus()> command) {
  CLI::App* subcommand = app.add_subcommand(name, help)->fallthrough();
  subcommand->callback([&call, command = std::move(command)] { call.run = command; });
  return subcommand;
}

void declareDocumentCommands(CLI::App& app, Call& call, const Console& console, FileSystem& files) {
  auto* create = declare(app, call, "new", "Write the default document.",
                         [&] { return newCommand(console, files, call.out); });
  create->add_option("OUT.nbr", call.out, "the menu file to make")->required()->type_name("");

  auto* show = declare(app, call, "show", "Print the tree, one node per line, or the whole document as JSON.",
                       [&] { return showCommand(console, files, call.input(), call.asJson); });
  show->add_option("MENU.nbr", call.menu, "the menu file, of any version")->required()->type_name("");
  show->add_flag("--json", call.asJson, "print all properties, as one JSON object");

  auto* convert = declare(app, call, "convert", "Read a menu file of any version and write the current one.",
                          [&] { return convertCommand(console, files, call.input(), call.out); });
  convert->add_option("IN.nbr", call.menu, "the menu file to read")->required()->type_name("");
  convert->add_option("OUT.nbr", call.out, "the menu file to write; may be the same")
      ->required()
      ->type_name("");

  auto* check =
      declare(app, call, "check", "Report everything in a menu file that would go wrong in the page.",
              [&] { return checkCommand(console, files, call.input()); });
  check->add_option("MENU.nbr", call.menu, "the menu file, of any version")->required()->type_name("");
}

void declareOutputCommands(CLI::App& app, Call& call, const Console& console, FileSystem& files) {
  auto* compile =
      declare(app, call, "compile", "Compile a menu, replacing what is there; print each file made.",
              [&] { return compileCommand(console, files, call.home, call.input(), call.out); });
  compile->add_option("MENU.nbr", call.menu, "the menu file, which is only read")->required()->type_name("");
  compile->add_option("--to", call.out, "the compiled menu; its folder must exist")
      ->required()
      ->type_name("DIR/NAME.js");

  auto* link = declare(app, call, "link", "Link a compiled menu to pages, in place.",
                       [&] { return linkCommand(console, files, call.link); });
  link->add_option("DIR/NAME.js", call.link.compiled, "the compiled menu")->required()->type_name("");
  link->add_option("PAGE", call.link.pages, "the pages")->required()->type_name("");
  link->add_option("--alt-url", call.link.altUrl, "the page for browsers that cannot show the menu")
      ->type_name("URL");

  auto* preview =
      declare(app, call, "preview", "Write the preview page below the program's folder; print its path.",
              [&] { return previewCommand(console, files, call.home, call.input()); });
  preview->add_option("MENU.nbr", call.menu, "the menu file")->required()->type_name("");
}

void declareStyleCommands(CLI::App& app, Call& call, const Console& console, FileSystem& files) {
  auto* style =
      app.add_subcommand("style", "List, create and apply the styles of the gallery.")->fallthrough();
  style->require_subcommand(1);
  declare(*style, call, "list", "Print the names of the styles, one per line.",
          [&] { return styleListCommand(console, files, call.home); });

  auto* create =
      declare(*style, call, "create", "Create a style from a menu; replaces a style of the same name.",
              [&] { return styleCreateCommand(console, files, call.home, call.input(), call.style.name); });
  create->add_option("MENU.nbr", call.menu, "the menu file")->required()->type_name("");
  create->add_option("NAME", call.style.name, "the style")->required()->type_name("");

  auto* apply = declare(*style, call, "apply", "Apply a style to a menu and write the result.", [&] {
    return styleApplyCommand(console, files, call.home, call.input(), call.style);
  });
  apply->add_option("NAME", call.style.name, "the style")->required()->type_name("");
  apply->add_option("MENU.nbr", call.menu, "the menu file")->required()->type_name("");
  apply->add_option("--to", call.style.out, "the menu file to write")->required()->type_name("OUT.nbr");
  apply->add_option("--at", call.style.key, "the node; without it the main menu")->type_name("KEY");
  apply->add_option("--scope", call.style.scope, "menu, submenu or item")
      ->check(CLI::IsMember({"menu", "submenu", "item"}))
      ->type_name("SCOPE");
}

void declarePlay(CLI::App& app, Call& call, const Console& console, FileSystem& files) {
  auto* play =
      declare(app, call, "play", "Drive the whole application with a macro; print what happens as JSON.",
              [&] { return playCommand(console, files, call.home, call.play); });
  play->add_option("MACRO", call.play.macro, "the macro, - for standard input")->required()->type_name("");
  play->add_option("--settings", call.play.settings, "settings to start with, written back at the end")
      ->type_name("FILE");
  play->add_option("--state", call.play.state, "keep unsaved changes there, and offer those of a crash")
      ->type_name("DIR");
}

std::string wrongCallText(const std::string& reason) {
  return "nbrc: " + reason + "\nRun with --help for more information.\n";
}

ExitStatus runReporting(const Console& console, const Call& call) {
  try {
    return call.run();
  } catch (const FileError& error) {
    console.fault(error.finding());
  } catch (const std::exception& error) {
    console.err() << "nbrc: " << error.what() << '\n';
  }
  return notAllDone;
}

}  // namespace

int nbrc(const Console& console, FileSystem& files, std::vector<std::string> words, MenuInputs& menus) {
  Call call(menus);
  CLI::App app(std::string(productTitle) + " without a screen: compiles menu files and links them to pages.",
               "nbrc");
  app.footer("Exit status: 0 done; 1 not done, or only in part; 2 wrong arguments.");
  app.set_version_flag("--version",
                       "nbrc " + std::string(productVersion) + " build " + std::string(productBuild));
  app.add_option("--home", call.home, "the program's folder (libraries, dot.gif, ...)")->type_name("DIR");
  app.failure_message([](const CLI::App*, const CLI::Error& error) { return wrongCallText(error.what()); });
  declareDocumentCommands(app, call, console, files);
  declareOutputCommands(app, call, console, files);
  declareStyleCommands(app, call, console, files);
  declarePlay(app, call, console, files);

  std::ranges::reverse(words);  // the parser expects the reverse order
  try {
    app.parse(std::move(words));
  } catch (const CLI::ParseError& error) {
    return app.exit(error, console.out(), console.err()) == 0 ? done : wrongCall;
  }
  if (!call.run) {
    console.err() << wrongCallText("A command is required");
    return wrongCall;
  }
  return runReporting(console, call);
}

}  // namespace nimbrel
