// The windows' type: Inter, embedded, so that every caption fits on every machine.
#pragma once

#include <QFont>
#include <QPainter>
#include <QString>

#include "look/dress.h"
#include "look/type.h"

namespace orvane {

// Called before the first text: makes the embedded families known.
void LoadType();

// At 100 per cent, unless `factor` says otherwise. Texts of controls are set at 100 per cent and
// drawn through the painter's scale, so that a line keeps its proportions at every size.
QFont FontOf(Type type, double factor = 1);
double WidthOf(Type type, const QString& text);  // pixels at 100 per cent
QString Elided(Type type, const QString& text, double width);

Qt::Alignment AlignmentOf(Side side);

// One line in `box`, in device pixels; `unit` is device pixels to a pixel at 100 per cent. A line
// wider than its box is drawn narrower, never cut.
void DrawLine(QPainter& painter, const QRectF& box, Qt::Alignment align, Type type, QRgb ink,
              double unit, const QString& text);

// A menu caption: the letter after "&" is underlined.
void DrawMnemonic(QPainter& painter, const QRectF& box, Type type, QRgb ink, double unit,
                  const QString& caption);
QString WithoutMnemonic(const QString& caption);

}  // namespace orvane
