// The windows' own colours. The desktop's theme does not change them.
#pragma once

#include <cstdint>

namespace orvane {

using Argb = std::uint32_t;  // 0xAARRGGBB, as screens and web pages write a colour

namespace palette {

inline constexpr Argb kGround = 0xFFEDF1F4;    // windows
inline constexpr Argb kFace = 0xFFFFFFFF;      // raised faces, lists, the menu strip
inline constexpr Argb kBand = 0xFFDCE4EA;      // list headings, the screen around a maximised desk
inline constexpr Argb kHair = 0xFFC6D0D8;      // hairlines
inline constexpr Argb kListEdge = 0xFFB1BAC1;  // lists, headings, cards, the result
inline constexpr Argb kEdge = 0xFF788793;  // text boxes, floating panels, lower edge of a button
inline constexpr Argb kSoftEdge = 0xFFA3B0BA;  // the other edges of a button
inline constexpr Argb kOffEdge = 0xFFA8B0B7;   // bevel 0

inline constexpr Argb kInk = 0xFF15212B;
inline constexpr Argb kInk2 = 0xFF44535F;
inline constexpr Argb kDisabled = 0xFF7A8792;
inline constexpr Argb kDisabledFace = 0xFFE6EBEF;

// One accent: it means on, chosen, or with the keyboard.
inline constexpr Argb kAccent = 0xFF0B6E7F;
inline constexpr Argb kDeep = 0xFF084E5B;   // text on tint, list keys
inline constexpr Argb kTint = 0xFFD3EBEE;   // pressed face
inline constexpr Argb kPress = 0xFFBFE0E5;  // face under the button
inline constexpr Argb kHover = 0xFFF1F9FA;  // face under the pointer

inline constexpr Argb kTrack = 0xFFD3DBE2;
inline constexpr Argb kThumb = 0xFF647684;

inline constexpr Argb kBezel = 0xFF18232C;      // frame of the picture, dark windows
inline constexpr Argb kDarkPanel = 0xFF22303B;  // split views
inline constexpr Argb kDarkEdge = 0xFF3A4B58;
inline constexpr Argb kOnDark = 0xFFF2F6F8;
inline constexpr Argb kQuietOnDark = 0xFFA9BAC6;
inline constexpr Argb kAccentOnDark = 0xFF5CC8D7;

inline constexpr Argb kResult = 0xFFF8FAFB;
inline constexpr Argb kRedMark = 0xFFC62828, kGreenMark = 0xFF2E7D32, kBlueMark = 0xFF1E4FBF;
inline constexpr Argb kBlack = 0xFF000000;
inline constexpr Argb kNone = 0x00000000;

}  // namespace palette
}  // namespace orvane
