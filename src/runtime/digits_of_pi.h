// The binary digits of 2/pi and pi/2, in words of 32.
#pragma once

#include <array>
#include <cstdint>

namespace orvane {

// The digits of 2/pi after the point, the first ones first. 96 zeros come before them, since an
// angle may begin that far below the point. There are as many digits as the largest double needs.
// clang-format off
inline constexpr std::array<std::uint32_t, 45> kTwoOverPi = {
    0,          0,          0,
    0xa2f9836e, 0x4e441529, 0xfc2757d1, 0xf534ddc0, 0xdb629599, 0x3c439041,
    0xfe5163ab, 0xdebbc561, 0xb7246e3a, 0x424dd2e0, 0x06492eea, 0x09d1921c,
    0xfe1deb1c, 0xb129a73e, 0xe88235f5, 0x2ebb4484, 0xe99c7026, 0xb45f7e41,
    0x3991d639, 0x835339f4, 0x9c845f8b, 0xbdf9283b, 0x1ff897ff, 0xde05980f,
    0xef2f118b, 0x5a0a6d1f, 0x6d367ecf, 0x27cb09b7, 0x4f463f66, 0x9e5fea2d,
    0x7527bac7, 0xebe5f17b, 0x3d0739f7, 0x8a5292ea, 0x6bfb5fb1, 0x1f8d5d08,
    0x56033046, 0xfc7b6bab, 0xf0cfbc20, 0x9af4361d, 0xa9e39161, 0x5ee61b08};

// pi/2, the last digits first; the point comes before the last word.
inline constexpr std::array<std::uint32_t, 10> kHalfPi = {
    0xa29410f3, 0x76273644, 0x04177d4c, 0x14cf98e8, 0x52049c11,
    0x01b839a2, 0x898cc517, 0x42d18469, 0x921fb544, 0x00000001};
// clang-format on

}  // namespace orvane
