#include "controls/control.h"

#include <charconv>
#include <stdexcept>

#include "controls/window.h"

namespace orvane {
namespace {

std::string NameOf(std::string_view full) { return std::string(full.substr(0, full.find('('))); }

int IndexOf(std::string_view full) {
  const auto open = full.find('(');
  if (open == std::string_view::npos) return 0;
  int index = 0;
  std::from_chars(full.data() + open + 1, full.data() + full.size() - 1, index);
  return index;
}

const ControlRow& RowOf(const Window& window, std::string_view name) {
  for (const ControlRow& row : window.Table) {
    if (row.Name == name) return row;
  }
  throw std::logic_error("no row for the control " + std::string(name));
}

}  // namespace

Control::Control(Window& window, std::string_view name) : Control(window, RowOf(window, name)) {
  window.Controls.push_back(this);
}

Control::Control(Window& window, const ControlRow& row)
    : Row(row),
      Name(NameOf(row.Name)),
      Index(IndexOf(row.Name)),
      Owner(window),
      Parent(Row.Parent.empty() ? nullptr : window.Find(Row.Parent)),
      Caption(*this, std::string(Row.Caption)),
      Visible(*this, Row.Visible),
      Enabled(*this, Row.Enabled),
      Style(*this, Row.Style),
      At(*this, Row.At),
      BackColor(*this, 0) {
  if (!Row.Parent.empty() && Parent == nullptr) {
    throw std::logic_error("no container for the control " + Name);
  }
}

void Control::SetTop(int twips) {
  Place place = At;
  place.Top = twips;
  At = place;
}

void Control::Bind(EventKind kind, std::function<void(const Event&)> handler) {
  handlers_.emplace_back(kind, std::move(handler));
}

bool Control::Handles(EventKind kind) const {
  for (const auto& [bound, handler] : handlers_) {
    if (bound == kind) return true;
  }
  return false;
}

void Control::Raise(Event event) {
  event.Index = Index;
  for (const auto& [bound, handler] : handlers_) {
    if (bound == event.Kind) handler(event);
  }
}

std::string Control::FullName() const { return Owner.Prefix + std::string(Row.Name); }

bool Control::IsOpenToUser() const {
  for (const Control* control = this; control != nullptr; control = control->Parent) {
    if (!control->Enabled || !control->Visible) return false;
  }
  return Owner.Visible;
}

bool CaptionSaysOn(std::string_view caption) {
  return caption.ends_with("On") || caption.ends_with("ON") || caption == "D/L Str";
}

void TellWatcher(Control& control, Aspect aspect) {
  if (control.Owner.Watcher != nullptr) control.Owner.Watcher->Changed(control, aspect);
}

}  // namespace orvane
