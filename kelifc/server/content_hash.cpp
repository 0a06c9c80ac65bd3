#include "kelifc/server/content_hash.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace KelIFC {
namespace {

// Odd numbers with no pattern in their bits.
constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
constexpr std::uint64_t kMixer = 0xC2B2AE3D27D4EB4F;

std::uint64_t Mix(std::uint64_t value) {
  value = (value ^ (value >> 32)) * kMixer;
  return value ^ (value >> 29);
}

}  // namespace

void ContentHash::Add(const char* data, std::size_t count) {
  if (count == 0) return;  // `data` can be null then
  const char* const end = data + count;
  const std::size_t held = length % kStripe;
  length += count;
  if (held != 0) {
    const std::size_t taken = std::min(kStripe - held, count);
    std::memcpy(&rest[held], data, taken);
    data += taken;
    if (held + taken < kStripe) return;
    AddStripe(rest.data());
  }
  for (; static_cast<std::size_t>(end - data) >= kStripe; data += kStripe) AddStripe(data);
  if (data != end) std::memcpy(rest.data(), data, static_cast<std::size_t>(end - data));
}

void ContentHash::AddStripe(const char* data) {
  for (std::size_t i = 0; i < kLanes; ++i) {
    std::uint64_t word = 0;
    std::memcpy(&word, data + i * sizeof word, sizeof word);
    lanes[i] = std::rotl((lanes[i] ^ word) * kFactor, 31);
  }
}

std::uint64_t ContentHash::GetValue() const {
  std::uint64_t value = Mix(length);
  for (const std::uint64_t lane : lanes) value = Mix(value * kFactor + lane);
  for (std::size_t i = 0; i < length % kStripe; ++i) {
    value = Mix(value * kFactor + static_cast<unsigned char>(rest[i]));
  }
  return value;
}

HashedInput::int_type HashedInput::underflow() {
  if (source.rdbuf()->sgetn(&next, 1) != 1) return traits_type::eof();
  hash.Add(&next, 1);
  setg(&next, &next, &next + 1);
  return traits_type::to_int_type(next);
}

std::streamsize HashedInput::xsgetn(char* target, std::streamsize count) {
  std::streamsize done = 0;
  for (; done < count && gptr() < egptr(); ++done) {
    target[done] = *gptr();
    gbump(1);
  }
  const std::streamsize read = source.rdbuf()->sgetn(target + done, count - done);
  hash.Add(target + done, static_cast<std::size_t>(read));
  return done + read;
}

}  // namespace KelIFC
