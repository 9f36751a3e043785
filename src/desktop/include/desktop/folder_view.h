#pragma once

#include <QFileSystemModel>
#include <QTreeView>

namespace nimbrel {

/// The folders of this machine as a tree in which one folder is open.
class FolderView : public QTreeView {
  Q_OBJECT

 public:
  explicit FolderView(QWidget* parent = nullptr);

  QString folder() const { return folder_; }
  /// Opens a folder without a signal. If it does not exist, `folder` returns it but the tree stays unchanged.
  void setFolder(const QString& path);

 signals:
  void folderChosen(const QString& path);

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void scrollToFolder();

  QFileSystemModel* folders_;
  QString folder_;
  bool isSettingFolder_ = false;
  bool isLoading_ = false;  ///< rows around the folder that was set
};

}  // namespace nimbrel
