// Where events come in: every action of a user and every tick passes here, from any skin. An action
// on a control that is not open to the user does nothing, and so does any action while a box is up.
// A failure of the operation that it starts ends here, in a box, and the program goes on.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "desk/orvane_desk.h"

namespace orvane {

// Forced skips the check that the control is enabled and visible.
enum class Reach { AsUser, Forced };

void Click(Orvane_Desk& desk, Control& control, Reach reach = Reach::AsUser);
void DoubleClick(Orvane_Desk& desk, Control& control, Reach reach = Reach::AsUser);
// Chooses row `row` of a list, -1 for none, and clicks it.
void SelectRow(Orvane_Desk& desk, List& list, int row, Reach reach = Reach::AsUser);

// The pointer over a control, in its own pixels; `button` of a move is the sum of the buttons held.
void Press(Orvane_Desk& desk, Control& control, int button, float x, float y,
           Reach reach = Reach::AsUser);
void Move(Orvane_Desk& desk, Control& control, int button, float x, float y,
          Reach reach = Reach::AsUser);
void Release(Orvane_Desk& desk, Control& control, int button, float x, float y,
             Reach reach = Reach::AsUser);
void PointerEnters(Orvane_Desk& desk, Control& control);
void FocusComes(Orvane_Desk& desk, Control& control);

// Scroll bars: an arrow or the page area; the thumb held; the thumb let go.
void StepBar(Orvane_Desk& desk, ScrollBar& bar, int value, Reach reach = Reach::AsUser);
void DragBar(Orvane_Desk& desk, ScrollBar& bar, int value, Reach reach = Reach::AsUser);
void DropBar(Orvane_Desk& desk, ScrollBar& bar, Reach reach = Reach::AsUser);

void TypeText(Orvane_Desk& desk, TextBox& box, std::string_view text, Reach reach = Reach::AsUser);
void PressKey(Orvane_Desk& desk, Control& control, int key_code, Reach reach = Reach::AsUser);

// Asks the user for a line of text, and goes on in `then` with the answer, empty when the question
// was cancelled. `asking` is the control whose event is running. Where the platform has an answer
// ready, `then` runs inside this call; else this call returns, the desk is held while the box is
// up, and `then` runs inside Answer.
void Ask(Orvane_Desk& desk, Control& asking, std::string_view prompt, std::string_view title,
         std::function<void(const std::string&)> then);
bool IsAsking(const Orvane_Desk& desk);
// The user has answered the question that is open.
void Answer(Orvane_Desk& desk, std::string_view text);

// The user or the screen has given a window another size; `now` is its new place.
void Resize(Orvane_Desk& desk, Window& window, Place now, WindowState state);

// The user closes a window by its frame. The handler decides what becomes of it.
void CloseWindow(Orvane_Desk& desk, Window& window);

// The lists of the music chooser: a folder to list, and the file chosen in one.
void OpenFolder(Orvane_Desk& desk, FileList& list, std::string_view path);
void ChooseFile(Orvane_Desk& desk, FileList& list, std::string_view name);

// One tick of a timer, if it is enabled. It is no action of the user: it comes even while the
// window is hidden.
void Tick(Orvane_Desk& desk, Timer& timer, Reach reach = Reach::AsUser);

}  // namespace orvane
