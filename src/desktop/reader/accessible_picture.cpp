#include "desktop/reader/accessible_picture.h"

#include "commands/desk_keys.h"
#include "desktop/widgets/control_view.h"
#include "desktop/widgets/host.h"

namespace orvane {
namespace {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

constexpr std::string_view kSteps = "Walk over the atoms";  // a group of keys

bool IsStep(const DeskKey& key) { return key.Where == KeyPlace::Picture && key.Group == kSteps; }

const DeskKey* StepOf(const QString& name) {
  for (const DeskKey& key : DeskKeys()) {
    if (IsStep(key) && Text(key.Does) == name) return &key;
  }
  return nullptr;
}

}  // namespace

QStringList AccessiblePicture::OwnActions() const {
  QStringList names;
  for (const DeskKey& key : DeskKeys()) {
    if (IsStep(key)) names.append(Text(key.Does));
  }
  return names;
}

QStringList AccessiblePicture::keyBindingsForAction(const QString& name) const {
  const DeskKey* key = StepOf(name);
  if (key == nullptr) return {};
  QStringList keys{Text(key->Key)};
  if (!key->Other.empty()) keys.append(Text(key->Other));
  return keys;
}

void AccessiblePicture::Do(const QString& name) {
  const DeskKey* key = StepOf(name);
  if (key != nullptr && View() != nullptr) key->Do(View()->host.desk);
}

}  // namespace orvane
