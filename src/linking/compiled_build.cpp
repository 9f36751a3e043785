#include "linking/compiled_build.h"

#include "text/ascii.h"
#include "text/value_reader.h"

namespace nimbrel {
namespace {

constexpr Message compiledWithOlderVersion{"Menu compiled with older version",
                                           "This menu has been compiled with an older version of Nimbrel.\r\n"
                                           "You need to re-compile it before linking it to web pages."};

}  // namespace

int compiledBuild(std::string_view bytes) {
  constexpr int buildWithoutNumber = 200;
  constexpr std::size_t mostDigits = 4;
  std::string_view value;
  ValueReader(bytes).next(value);
  const auto mark = value.find('#');
  if (mark == std::string_view::npos) return buildWithoutNumber;
  int build = 0;
  for (const char c : value.substr(mark + 1, mostDigits)) {
    if (!isDigit(c)) break;
    build = build * 10 + (c - '0');
  }
  return build;
}

const Message* refusalOfCompiledMenu(std::string_view bytes) {
  return compiledBuild(bytes) < oldestLinkableBuild ? &compiledWithOlderVersion : nullptr;
}

}  // namespace nimbrel
