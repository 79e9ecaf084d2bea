// Translates the toolkit's keys to those of the desk's table.
#pragma once

#include <string>

#include <QKeyEvent>

namespace orvane {

class WindowWidget;

// "Left", "Shift+M", "+", "F6"; empty for a key with Ctrl, Alt or the like.
std::string KeyNameOf(const QKeyEvent& event);

// Does what belongs to a key that no control of the window has taken. False: nothing does.
bool AnswerKey(WindowWidget& window, const QKeyEvent& event);

}  // namespace orvane
