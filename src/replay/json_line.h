// Numbers and texts as a replay prints them, and one JSON object on a line.
#pragma once

#include <string>
#include <string_view>

namespace orvane {

inline constexpr int kDoubleDigits = 17;  // enough to read a 64-bit value back as it was
inline constexpr int kSingleDigits = 9;   // enough to read a 32-bit value back as it was

// As "%.<digits>g" in the C locale, whatever locale the user has. A value that is not finite, for
// which JSON has no word, is null.
void AppendNumber(std::string& line, double value, int digits = kDoubleDigits);
// In quotes, escaped. Bytes that are not UTF-8 become the replacement character.
void AppendText(std::string& line, std::string_view text);

std::string TextInQuotes(std::string_view text);

// Builds {"name":value,...} in the order in which the names are given.
struct ObjectLine {
  std::string Text = "{";

  // Writes the name; the caller appends its value to what this returns.
  std::string& Name(std::string_view name);
  void Number(std::string_view name, double value) { AppendNumber(Name(name), value); }
  void String(std::string_view name, std::string_view text) { AppendText(Name(name), text); }
  // An array of `count` values; `append(text, i)` writes the one at i, from 0.
  template <class Append>
  void Array(std::string_view name, int count, Append append) {
    std::string& text = Name(name);
    text += '[';
    for (int i = 0; i < count; ++i) {
      if (i > 0) text += ',';
      append(text, i);
    }
    text += ']';
  }
  std::string Closed() { return Text + "}"; }
};

}  // namespace orvane
