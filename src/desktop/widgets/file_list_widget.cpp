#include "desktop/widgets/file_list_widget.h"

#include <algorithm>

#include <QDir>
#include <QKeyEvent>
#include <QMenu>
#include <QStorageInfo>

#include "commands/chooser_folder.h"
#include "desk/actions.h"
#include "desktop/look/fonts.h"
#include "desktop/widgets/host.h"
#include "look/measures.h"
#include "look/palette.h"

namespace orvane {
namespace {

QString PathOf(const FileList& list) { return QString::fromStdString(list.Path); }

}  // namespace

ControlView* MakeFileList(Host& window, FileList& list, QWidget& parent) {
  if (list.Name == "Drive1") return new DriveWidget(window, list, parent);
  if (list.Name == "Dir1") return new FolderList(window, list, parent);
  return new SoundFileList(window, list, parent);
}

DriveWidget::DriveWidget(Host& owner, FileList& shown, QWidget& parent)
    : Viewed(owner, shown, parent), list_(shown) {}

QString DriveWidget::Path() const { return PathOf(list_); }

// What a user would call a drive: home, the root, and whatever is plugged in.
QStringList DriveWidget::Drives() {
  QStringList drives{QDir::homePath(), QDir::rootPath()};
  for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
    const QString root = volume.rootPath();
    const bool plugged = root.startsWith(QLatin1String("/media/")) ||
                         root.startsWith(QLatin1String("/run/media/")) ||
                         root.startsWith(QLatin1String("/mnt/"));
    if (volume.isReady() && plugged && !drives.contains(root)) drives.append(root);
  }
  drives.removeDuplicates();
  return drives;
}

// The lists are filled when they are first looked at.
void DriveWidget::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (list_.Path.Get().empty()) Choose(Drives().first());
}

void DriveWidget::Choose(const QString& path) {
  OpenFolder(host.desk, list_, path.toStdString());
  update();
}

void DriveWidget::OpenMenu() {
  QMenu menu(this);
  for (const QString& drive : Drives()) {
    menu.addAction(drive, this, [this, drive] { Choose(drive); });
  }
  menu.setMinimumWidth(width());
  menu.exec(mapToGlobal(QPoint(0, height())));
}

void DriveWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  const double unit = Unit();
  PaintPlate(painter, face, palette::kFace, underMouse() ? palette::kAccent : palette::kEdge,
             4 * unit, host.scale.Edge());
  if (HasRing()) PaintRing(painter, face, palette::kAccent, 4, unit, false);
  const QRectF text = QRectF(face).adjusted(8 * unit, 0, -24 * unit, 0);
  DrawLine(painter, text, Qt::AlignLeft, {11, 500}, palette::kInk, unit,
           Elided({11, 500}, PathOf(list_), text.width() / unit));
  const QPointF tip(face.width() - 12 * unit, face.height() / 2.0 + 2 * unit);
  const QPointF arrow[] = {tip + QPointF(-3.5, -3.5) * unit, tip, tip + QPointF(3.5, -3.5) * unit};
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor::fromRgba(palette::kInk2), 1.5 * unit, Qt::SolidLine, Qt::RoundCap,
                      Qt::RoundJoin));
  painter.drawPolyline(arrow, 3);
}

void DriveWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) OpenMenu();
}

void DriveWidget::keyPressEvent(QKeyEvent* event) {
  const QStringList drives = Drives();
  const qsizetype now = drives.indexOf(PathOf(list_));
  switch (event->key()) {
    case Qt::Key_Up:
      return Choose(drives[std::max<qsizetype>(0, now - 1)]);
    case Qt::Key_Down:
      return Choose(drives[std::min(drives.size() - 1, now + 1)]);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return OpenMenu();
    default:
      event->ignore();
  }
}

FolderRowList::FolderRowList(Host& owner, FileList& shown, QWidget& parent)
    : RowList(owner, shown, parent), list_(shown) {
  has_keys_ = joined_ = false;
  edge_ = palette::kEdge;
  measures_ = measures::kWideRows;
}

void FolderRowList::Take(Aspect aspect) {
  RowList::Take(aspect);
  if (aspect == Aspect::Rows) ReadFolder();
}

FolderList::FolderList(Host& owner, FileList& shown, QWidget& parent)
    : FolderRowList(owner, shown, parent) {
  ReadFolder();
}

void FolderList::ReadFolder() {
  const FolderRows folders = FoldersAt(list_.Path.Get());
  paths_.clear();
  QStringList rows;
  for (const FolderRows::Row& row : folders.Rows) {
    rows.append(QString::fromStdString(row.Name));
    paths_.push_back(row.Path);
  }
  SetRows(rows);
  SetChosen(folders.Open);
}

void FolderList::Choose(int row) { SetChosen(row); }

void FolderList::ChooseTwice(int row) {
  OpenFolder(host.desk, list_, paths_[static_cast<std::size_t>(row)]);
}

SoundFileList::SoundFileList(Host& owner, FileList& shown, QWidget& parent)
    : FolderRowList(owner, shown, parent) {
  ReadFolder();
}

void SoundFileList::ReadFolder() {
  FileRows files = FilesAt(list_.Path.Get(), list_.Pattern.Get());
  names_ = std::move(files.Names);
  QStringList rows;
  for (const std::string& name : names_) rows.append(QString::fromStdString(name));
  SetInstead(QString::fromStdString(files.Trouble));
  SetRows(rows);
  SetChosen(ChosenName());
}

int SoundFileList::ChosenName() const {
  const auto found = std::find(names_.begin(), names_.end(), list_.FileName.Get());
  return found == names_.end() ? -1 : static_cast<int>(found - names_.begin());
}

void SoundFileList::Take(Aspect aspect) {
  FolderRowList::Take(aspect);
  if (aspect == Aspect::Value) SetChosen(ChosenName());
}

void SoundFileList::Choose(int row) {
  ChooseFile(host.desk, list_, names_[static_cast<std::size_t>(row)]);
}

void SoundFileList::ChooseTwice(int) { DoubleClick(host.desk, list_); }

}  // namespace orvane
