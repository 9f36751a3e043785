#include "desktop/folder_view.h"

#include <QDir>
#include <QScopedValueRollback>

namespace nimbrel {

FolderView::FolderView(QWidget* parent) : QTreeView(parent), folders_(new QFileSystemModel(this)) {
  folders_->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
  folders_->setRootPath(QDir::rootPath());
  setModel(folders_);
  setHeaderHidden(true);
  for (int column = 1; column < folders_->columnCount(); ++column) hideColumn(column);
  setAccessibleName("Folder");
  // Rows are loaded in the background and sorted later, both of which move the row that was scrolled to.
  connect(folders_, &QFileSystemModel::directoryLoaded, this, [this](const QString& path) {
    if (isLoading_) {
      folders_->sort(0);
      scrollToFolder();
    }
    if (QDir::cleanPath(path) == QDir::cleanPath(folder_)) isLoading_ = false;
  });
  connect(this, &QTreeView::expanded, this, [this] { isLoading_ = isLoading_ && isSettingFolder_; });
}

void FolderView::setFolder(const QString& path) {
  folder_ = path;
  const auto index = folders_->index(path);
  if (!index.isValid()) return;
  isLoading_ = true;
  const QScopedValueRollback rollback(isSettingFolder_, true);
  setCurrentIndex(index);
  expand(index);
  scrollToFolder();
}

/// Scrolling expands the parents of the folder, which must not look like the user's doing.
void FolderView::scrollToFolder() {
  const QScopedValueRollback rollback(isSettingFolder_, true);
  scrollTo(currentIndex());
}

void FolderView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  if (isSettingFolder_ || !current.isValid()) return;
  folder_ = QDir::toNativeSeparators(folders_->filePath(current));
  emit folderChosen(folder_);
}

}  // namespace nimbrel
