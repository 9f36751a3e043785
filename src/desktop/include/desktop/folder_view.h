#pragma once

#include <QFileSystemModel>
#include <QTreeView>

namespace nimbrel {

/// The folders of this machine as a tree, in which one is open.
class FolderView : public QTreeView {
  Q_OBJECT

 public:
  explicit FolderView(QWidget* parent = nullptr);

  QString folder() const { return folder_; }
  /// Opens a folder, no signal. One that is not there is remembered, and the tree stays as it is.
  void setFolder(const QString& path);

 signals:
  void folderChosen(const QString& path);

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  QFileSystemModel* folders_;
  QString folder_;
  bool isOwnMove_ = false;
  bool isComing_ = false;  ///< the folder that was set is not in its place yet
};

}  // namespace nimbrel
