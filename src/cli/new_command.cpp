#include "cli/commands.h"
#include "model/structure.h"
#include "persistence/menu_file.h"
#include "platform/posix/host_paths.h"

namespace nimbrel {

ExitStatus newCommand(const Console&, FileSystem& files, const std::string& out) {
  const auto path = fromHostPath(out);
  if (files.isFile(path) && !files.read(path).empty()) {
    throw FileError(path, "the file exists already and was not changed");
  }
  Document document;
  BuildDefaultDocument(document);
  SaveMenuFile(files, path, document);
  return done;
}

}  // namespace nimbrel
