// Rnd: a 24-bit linear congruential generator. 24 bits fill a Single's mantissa exactly, so every
// value is a multiple of 2^-24 below 1. The constants give the full period of 2^24 (odd increment,
// multiplier one more than a multiple of four).
#include "platform/Runtime.h"

namespace qp {

namespace {
constexpr std::uint32_t kMask = 0xFFFFFF;
constexpr std::uint32_t kMultiplier = 0x2B5A85;
constexpr std::uint32_t kIncrement = 0x3C6EF3;
}  // namespace

void Random::Randomize(std::uint32_t seed) {
  // Spread the seed so that nearby seeds start far apart in the sequence.
  state_ = static_cast<std::uint32_t>((static_cast<std::uint64_t>(seed) * 2654435761u) >> 8) & kMask;
}

float Random::Rnd() {
  state_ = static_cast<std::uint32_t>((static_cast<std::uint64_t>(state_) * kMultiplier + kIncrement) & kMask);
  return static_cast<float>(state_) / 16777216.0f;
}

}  // namespace qp
