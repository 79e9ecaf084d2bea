#include "random/desk/session.h"

#include <utility>

#include "random/desk/remarks.h"

namespace orvane {
namespace {

std::string PlayOne(Sitting& session, std::string_view line);

void ListenToPending(Sitting& session) {
  session.player.platform->PendingEvents = [&session] {
    // What is played here may itself let events run, and then finds the rest.
    while (!session.Pending.empty()) {
      const std::string line = session.Pending.front();
      session.Pending.pop_front();
      const std::string complaint = PlayOne(session, line);
      if (complaint.empty() || !session.NestedComplaint.empty()) continue;
      session.NestedComplaint.append("\"")
          .append(line)
          .append("\" that nests in it: ")
          .append(complaint);
    }
  };
}

bool Holds(std::string_view line, std::string_view words) {
  return line.find(words) != std::string_view::npos;
}

std::string PlayOne(Sitting& session, std::string_view line) {
  if (line.starts_with('#')) return PlayRemark(session, line);
  const bool starts_anew = line == "restart";
  session.MayHaveLoaded |= starts_anew || Holds(line, "select ") || Holds(line, "click Bt_M_Ld");
  session.MayHaveSetAxis |= Holds(line, "release Picture1") || Holds(line, "move Picture1");
  std::string complaint = PlayLine(session.player, line);
  if (starts_anew) {
    session.Pending.clear();
    ListenToPending(session);
  }
  return complaint;
}

}  // namespace

std::streamsize FailureTally::xsputn(const char* text, std::streamsize length) {
  const std::string_view line(text, static_cast<std::size_t>(length));
  if (line.starts_with("failure ")) ++Counts[std::string(line)];
  return length;
}

Sitting::Sitting() { ListenToPending(*this); }

std::string PlayRandomLine(Sitting& session, std::string_view line) {
  const std::string complaint = PlayOne(session, line);
  const std::string nested = std::exchange(session.NestedComplaint, "");
  return complaint.empty() ? nested : complaint;
}

}  // namespace orvane
