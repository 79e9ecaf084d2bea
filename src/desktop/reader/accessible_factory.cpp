#include "desktop/reader/accessible_list.h"
#include "desktop/reader/accessible_picture.h"
#include "desktop/reader/accessible_value.h"
#include "desktop/reader/accessible_widget.h"
#include "desktop/reader/accessible_words.h"
#include "desktop/widgets/control_view.h"
#include "desktop/widgets/ground.h"
#include "desktop/widgets/host.h"

namespace orvane {
namespace {

QAccessibleInterface* OfView(ControlView& view) {
  const SpokenRole role = RoleOf(view.control);
  switch (role) {
    case SpokenRole::Entry:
      return nullptr;  // the toolkit's own interface reads and types letters
    case SpokenRole::List:
      return new AccessibleList(view.widget, role);
    case SpokenRole::Dropdown:
      return new AccessibleDrives(view.widget, role);
    case SpokenRole::Slider:
      return new AccessibleBar(view.widget, role);
    case SpokenRole::Picture:
      if (view.control.Row.TabStop > 0) return new AccessiblePicture(view.widget, role);
      [[fallthrough]];
    default:
      return new AccessibleControl(view.widget, role);
  }
}

QAccessibleInterface* Make(const QString&, QObject* object) {
  if (auto* view = dynamic_cast<ControlView*>(object)) return OfView(*view);
  if (dynamic_cast<Host*>(object) != nullptr) {
    return new AccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Window);
  }
  if (auto* ground = dynamic_cast<Ground*>(object)) {
    return new AccessibleWidget(ground, QAccessible::Pane);
  }
  if (auto* announcer = dynamic_cast<Announcer*>(object)) {
    return new AccessibleWidget(announcer, QAccessible::Notification);
  }
  return nullptr;
}

}  // namespace

void InstallAccessibleWidgets() { QAccessible::installFactory(Make); }

}  // namespace orvane
