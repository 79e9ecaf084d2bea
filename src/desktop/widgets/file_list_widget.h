// The lists of the music chooser: drives and the home folder, the folders on the way down to the
// open one and those in it, and the files in it that fit the pattern.
#pragma once

#include "controls/kinds.h"
#include "desktop/widgets/row_list.h"

namespace orvane {

ControlView* MakeFileList(Host& window, FileList& list, QWidget& parent);

// A closed list: the drive, and a menu of the others.
class DriveWidget : public Viewed<QWidget> {
 public:
  DriveWidget(Host& owner, FileList& shown, QWidget& parent);

  static QStringList Drives();
  QString Path() const;  // of the open drive
  void OpenMenu();

 protected:
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Choose(const QString& path);

  FileList& list_;
};

// Rows read from the disk, and read again when the control has another folder.
class FolderRowList : public RowList {
 public:
  FolderRowList(Host& owner, FileList& shown, QWidget& parent);

  void Take(Aspect aspect) override;

 protected:
  virtual void ReadFolder() = 0;  // first called by the derived class

  FileList& list_;
};

// A double click or Enter opens a folder.
class FolderList : public FolderRowList {
 public:
  FolderList(Host& owner, FileList& shown, QWidget& parent);

  void Choose(int row) override;
  void ChooseTwice(int row) override;

 private:
  void ReadFolder() final;

  std::vector<std::string> paths_;  // of the rows
};

// A click chooses a file; a double click or Enter is the control's double click.
class SoundFileList : public FolderRowList {
 public:
  SoundFileList(Host& owner, FileList& shown, QWidget& parent);

  void Take(Aspect aspect) override;

  void Choose(int row) override;
  void ChooseTwice(int row) override;

 private:
  void ReadFolder() final;
  int ChosenName() const;  // its row; -1: not there

  std::vector<std::string> names_;  // of the rows
};

}  // namespace orvane
