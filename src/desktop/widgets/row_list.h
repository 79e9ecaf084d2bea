// Rows under one another: the chosen one, the one under the pointer, and a slim bar at the right. A
// derived list decides what the rows are and what choosing one does.
#pragma once

#include <QMouseEvent>
#include <QStringList>

#include "desktop/look/fonts.h"
#include "desktop/widgets/control_view.h"
#include "desktop/widgets/wheel_turn.h"
#include "look/measures.h"

namespace orvane {

class RowList : public Viewed<QWidget> {
 public:
  RowList(Host& owner, Control& shown, QWidget& parent);

  const QStringList& Rows() const { return rows_; }
  int ChosenRow() const { return chosen_; }
  int FirstRow() const { return first_; }
  int WholeRows() const;                  // rows that fit without being cut
  int RowAt(QPointF widget_point) const;  // -1 beside the rows
  QRect RowFace(int row) const;           // device pixels of the desk
  QRect RowInWidget(int row) const;       // in the widget's pixels
  QPoint RowMiddle(int row) const;        // in the widget's pixels
  QString RowAsDrawn(int row) const;      // cut where it does not fit

  virtual void Choose(int row) = 0;  // the user clicks a row or reaches it by a key
  virtual void ChooseTwice(int row) { (void)row; }

 protected:
  void SetRows(QStringList rows);
  void SetChosen(int row);                                     // scrolls it into view
  void SetInstead(const QString& words) { instead_ = words; }  // shown while there are no rows

  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

  bool has_keys_ = true;  // each row begins with a key
  bool joined_ = true;    // to a heading above
  QRgb edge_;
  measures::Rows measures_;

 private:
  struct Parts {
    QString Key, Rest;
  };
  Parts PartsOf(int row) const;
  int LastFirst() const;  // the first row when the last one is in view
  bool HasBar() const { return LastFirst() > 0; }
  QRectF BarThumb() const;  // device pixels of the face
  bool IsOnBar(QPointF widget_point) const;
  double RoomForText() const;  // pixels
  bool IsCut(int row) const;
  void ScrollTo(int first);
  void Point(int row);  // the pointer is over that row
  void ShowFlyout(int row);
  void PaintRow(QPainter& painter, int row);

  void PaintInstead(QPainter& painter);

  QStringList rows_;
  QString instead_;
  int chosen_ = -1, under_ = -1, first_ = 0;
  bool by_keys_ = false;  // the chosen row was reached by keys
  bool bar_held_ = false;
  double grip_ = 0;
  WheelTurn turn_;
};

}  // namespace orvane
