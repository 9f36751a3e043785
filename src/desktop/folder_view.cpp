#include "desktop/folder_view.h"

#include <QDir>

namespace nimbrel {

FolderView::FolderView(QWidget* parent) : QTreeView(parent), folders_(new QFileSystemModel(this)) {
  folders_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
  folders_->setRootPath(QDir::rootPath());
  setModel(folders_);
  setHeaderHidden(true);
  for (int column = 1; column < folders_->columnCount(); ++column) hideColumn(column);
  setAccessibleName("Folder");
  // Rows come in behind the scenes, and move what was scrolled to.
  connect(folders_, &QFileSystemModel::directoryLoaded, this, [this](const QString& path) {
    if (isComing_) scrollTo(currentIndex());
    if (QDir::cleanPath(path) == QDir::cleanPath(folder_)) isComing_ = false;
  });
  connect(this, &QTreeView::expanded, this, [this] { isComing_ = isComing_ && isOwnMove_; });
}

void FolderView::setFolder(const QString& path) {
  folder_ = path;
  const auto index = folders_->index(path);
  if (!index.isValid()) return;
  isOwnMove_ = isComing_ = true;
  setCurrentIndex(index);
  expand(index);
  scrollTo(index);
  isOwnMove_ = false;
}

void FolderView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  if (isOwnMove_ || !current.isValid()) return;
  folder_ = QDir::toNativeSeparators(folders_->filePath(current));
  emit folderChosen(folder_);
}

}  // namespace nimbrel
