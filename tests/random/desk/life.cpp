#include "random/desk/life.h"

#include "random/desk/moves.h"

namespace orvane {
namespace {

void PlayAndCheck(Sitting& session, std::string_view line, LastSeen& last, int thorough_every,
                  Life& life) {
  const std::string complaint = PlayRandomLine(session, line);
  ++life.Actions;
  if (!complaint.empty()) {
    life.Wrong = "\"" + std::string(line) + "\" is no action: " + complaint;
    return;
  }
  life.Wrong = WhatIsWrong(session, last, life.Actions % thorough_every == 0);
}

bool IsOver(const Sitting& session, const Life& life) {
  return session.player.platform->Ended || !life.Wrong.empty();
}

}  // namespace

Life PlayLife(Sitting& session, std::uint64_t seed, int actions, const LineListener& before) {
  Life life;
  LastSeen last;
  Dice dice{seed};
  while (life.Actions < actions && !IsOver(session, life)) {
    for (const std::string& line : NextLines(dice, session)) {
      if (IsOver(session, life)) break;
      if (before) before(line);
      PlayAndCheck(session, line, last, kThoroughEvery, life);
    }
  }
  return life;
}

Life PlayLines(Sitting& session, std::span<const std::string> lines) {
  Life life;
  LastSeen last;
  for (const std::string& line : lines) {
    if (IsOver(session, life)) break;
    PlayAndCheck(session, line, last, 1, life);
  }
  return life;
}

}  // namespace orvane
