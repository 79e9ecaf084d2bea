// The windows' own colours. A desktop's theme has no say in them.
#pragma once

#include <QColor>

namespace orvane::palette {

inline constexpr QRgb kGround = 0xFFEDF1F4;    // windows
inline constexpr QRgb kFace = 0xFFFFFFFF;      // raised faces, lists, the menu strip
inline constexpr QRgb kBand = 0xFFDCE4EA;      // list headings, the screen round a maximised desk
inline constexpr QRgb kHair = 0xFFC6D0D8;      // hairlines
inline constexpr QRgb kListEdge = 0xFFB1BAC1;  // lists, headings, cards, the result
inline constexpr QRgb kEdge = 0xFF788793;  // text boxes, floating panels, lower edge of a button
inline constexpr QRgb kSoftEdge = 0xFFA3B0BA;  // the other edges of a button
inline constexpr QRgb kOffEdge = 0xFFA8B0B7;   // bevel 0

inline constexpr QRgb kInk = 0xFF15212B;
inline constexpr QRgb kInk2 = 0xFF44535F;
inline constexpr QRgb kDisabled = 0xFF7A8792;
inline constexpr QRgb kDisabledFace = 0xFFE6EBEF;

// One accent: on, chosen, or here is the keyboard.
inline constexpr QRgb kAccent = 0xFF0B6E7F;
inline constexpr QRgb kDeep = 0xFF084E5B;   // text on tint, list keys
inline constexpr QRgb kTint = 0xFFD3EBEE;   // pressed face
inline constexpr QRgb kPress = 0xFFBFE0E5;  // face under the button
inline constexpr QRgb kHover = 0xFFF1F9FA;  // face under the pointer

inline constexpr QRgb kTrack = 0xFFD3DBE2;
inline constexpr QRgb kThumb = 0xFF647684;

inline constexpr QRgb kBezel = 0xFF18232C;      // frame of the picture, dark windows
inline constexpr QRgb kDarkPanel = 0xFF22303B;  // split views
inline constexpr QRgb kDarkEdge = 0xFF3A4B58;
inline constexpr QRgb kOnDark = 0xFFF2F6F8;
inline constexpr QRgb kQuietOnDark = 0xFFA9BAC6;
inline constexpr QRgb kAccentOnDark = 0xFF5CC8D7;

inline constexpr QRgb kResult = 0xFFF8FAFB;
inline constexpr QRgb kRedMark = 0xFFC62828, kGreenMark = 0xFF2E7D32, kBlueMark = 0xFF1E4FBF;
inline constexpr QRgb kBlack = 0xFF000000;
inline constexpr QRgb kNone = 0x00000000;

}  // namespace orvane::palette
