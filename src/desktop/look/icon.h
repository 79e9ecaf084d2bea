// The program's icon: two strands that cross six times around one red atom. packaging/icons holds
// the same drawing for the desktop's menus.
#pragma once

#include <QIcon>
#include <QPainter>

namespace orvane {

void PaintIcon(QPainter& painter, const QRectF& box);
QIcon ProgramIcon();  // 16 to 256 pixels

}  // namespace orvane
