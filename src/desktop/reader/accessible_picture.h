// The picture for a screen reader: the steps of the walk over the atoms are its actions.
#pragma once

#include "desktop/reader/accessible_widget.h"

namespace orvane {

class AccessiblePicture : public AccessibleControl {
 public:
  using AccessibleControl::AccessibleControl;

  QStringList keyBindingsForAction(const QString& name) const override;

 protected:
  QStringList OwnActions() const override;
  void Do(const QString& name) override;
};

}  // namespace orvane
