#ifndef KELIFC_SERVER_CONTENT_HASH_H_
#define KELIFC_SERVER_CONTENT_HASH_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <istream>
#include <streambuf>

namespace KelIFC {

/// A number that tells whether a file has changed. It is fast, depends on every byte and on the
/// length, and does not resist someone who makes two files with the same number on purpose.
class ContentHash {
 public:
  /// Adds bytes. The result depends on their sequence only, not on how calls divide it.
  void Add(const char* data, std::size_t count);

  std::uint64_t GetValue() const;

 private:
  static constexpr std::size_t kLanes = 4;
  static constexpr std::size_t kStripe = kLanes * sizeof(std::uint64_t);

  void AddStripe(const char* data);

  std::array<std::uint64_t, kLanes> lanes = {1, 2, 3, 4};
  std::array<char, kStripe> rest = {};  // bytes that do not fill a stripe yet
  std::uint64_t length = 0;
};

/// A stream over the bytes of another stream, which must outlive it. It computes their hash.
class HashedInput : private std::streambuf, public std::istream {
 public:
  explicit HashedInput(std::istream& stream) : std::istream(this), source(stream) {}

  /// The hash of the bytes that have been read.
  const ContentHash& GetHash() const { return hash; }

 private:
  using traits_type = std::streambuf::traits_type;
  using int_type = std::streambuf::int_type;

  int_type underflow() override;
  std::streamsize xsgetn(char* target, std::streamsize count) override;

  std::istream& source;
  ContentHash hash;
  char next = '\0';  // read ahead by underflow
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_CONTENT_HASH_H_
