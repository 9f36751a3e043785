#include "desktop/file_types.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <algorithm>
#include <array>

#include "desktop/display_text.h"

namespace nimbrel {
namespace {

struct FileType {
  const char* extension;
  const char* mimeType;
  const char* icon;
};
constexpr std::array types{FileType{".nbr", "application/x-nimbrel-menu", "nimbrel-document"},
                           FileType{".nbs", "application/x-nimbrel-style", "nimbrel-style"}};

/// Writes a file that is missing or has other contents. Returns whether it was written.
bool writeIfNew(const QString& path, const QByteArray& bytes) {
  QFile old(path);
  if (old.open(QIODevice::ReadOnly) && old.readAll() == bytes) return false;
  QDir().mkpath(QFileInfo(path).path());
  QSaveFile file(path);
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

QByteArray resource(const QString& name) {
  QFile file(name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void runInBackground(const QString& tool, const QString& folder) {
  const auto path = QStandardPaths::findExecutable(tool);
  if (path.isEmpty()) return;
  QProcess process;
  process.setProgram(path);
  process.setArguments({folder});
  process.setStandardOutputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  process.startDetached();
}

}  // namespace

FileTypes::FileTypes(QString dataFolder, QString program)
    : dataFolder_(std::move(dataFolder)), program_(std::move(program)) {}

void FileTypes::CreateClassKey(std::string_view key) { values_.try_emplace(std::string(key)); }

void FileTypes::SetClassValue(std::string_view key, std::string_view valueName, std::string_view value) {
  if (valueName.empty()) values_[std::string(key)] = value;
}

std::string FileTypes::value(const std::string& key) const {
  const auto found = values_.find(key);
  return found == values_.end() ? std::string() : found->second;
}

QString FileTypes::mimeTypes() const {
  QString text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n";
  for (const auto& type : types) {
    text += QString(
                "  <mime-type type=\"%1\">\n    <comment>%2</comment>\n    <icon name=\"%3\"/>\n"
                "    <glob pattern=\"*%4\"/>\n  </mime-type>\n")
                .arg(type.mimeType, toDisplay(value(value(type.extension))).toHtmlEscaped(), type.icon,
                     type.extension);
  }
  return text + "</mime-info>\n";
}

/// Quotes a program for the Exec key of a desktop entry: as an argument of a command, then as a string value.
QString quoted(QString program) {
  for (const auto* special : {"\\", "\"", "`", "$"}) program.replace(special, QString("\\") + special);
  return '"' + program.replace('%', "%%").replace('\\', "\\\\") + '"';
}

/// Lists only the types whose command has a file as argument; that of the style type has none.
QString FileTypes::desktopEntry() const {
  QStringList opened;
  for (const auto& type : types) {
    if (value(value(type.extension) + "\\shell\\open\\command").ends_with("%1")) opened += type.mimeType;
  }
  return QString(
             "[Desktop Entry]\nType=Application\nName=Nimbrel\nGenericName=Menu Builder\n"
             "Comment=Build the navigation menu of a web site\nExec=%1 %f\nIcon=nimbrel\nTerminal=false\n"
             "StartupWMClass=Nimbrel\nCategories=Development;WebDevelopment;\nMimeType=%2;\n")
      .arg(quoted(program_), opened.join(';'));
}

/// Whether an installed package registers the program for all users.
bool FileTypes::isInstalled() const {
  constexpr const char* entry = "applications/example.nimbrel.Nimbrel.desktop";
  const auto own = QDir(dataFolder_).filePath(entry);
  const auto all = QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, entry);
  return std::ranges::any_of(all, [&](const QString& found) { return QFileInfo(found) != QFileInfo(own); });
}

void FileTypes::publish() const {
  if (isInstalled()) return;
  bool isNew = writeIfNew(dataFolder_ + "/mime/packages/nimbrel-user.xml", mimeTypes().toUtf8());
  isNew |= writeIfNew(dataFolder_ + "/applications/example.nimbrel.Nimbrel.desktop", desktopEntry().toUtf8());
  const auto icons = dataFolder_ + "/icons/hicolor/scalable/";
  isNew |= writeIfNew(icons + "apps/nimbrel.svg", resource(":/icons/nimbrel.svg"));
  for (const auto& type : types) {
    isNew |= writeIfNew(icons + "mimetypes/" + type.icon + ".svg",
                        resource(QString(":/icons/%1.svg").arg(type.icon)));
  }
  if (!isNew) return;
  runInBackground("update-mime-database", dataFolder_ + "/mime");
  runInBackground("update-desktop-database", dataFolder_ + "/applications");
}

}  // namespace nimbrel
