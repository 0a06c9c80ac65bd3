#include "export/view/container.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string>

#include "export/export.h"

namespace KelIFC::exporting {
namespace {

constexpr std::string_view kSignature = "KLV1";
constexpr std::size_t kAlignment = 8;
constexpr std::size_t kNumberSize = 4;        // in bytes, of a float and of an integer
constexpr std::size_t kBlockSize = 1 << 18U;  // numbers that are written at once

constexpr std::size_t Aligned(std::size_t size) {
  return (size + kAlignment - 1) / kAlignment * kAlignment;
}

std::size_t CountOf(const ContainerArray& array) {
  return std::visit([](const auto& numbers) { return numbers.size(); }, array.numbers);
}

constexpr std::uint32_t BitsOf(std::uint32_t number) { return number; }

std::uint32_t BitsOf(float number) {
  return std::bit_cast<std::uint32_t>(std::isfinite(number) ? number : 0.0F);
}

void AppendBits(std::string& bytes, std::uint32_t bits) {
  for (unsigned shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(bits >> shift & 255U);
}

// Writes arrays one after the other and reports which share of all numbers is written.
class ArrayWriter {
 public:
  ArrayWriter(const ByteSink& sink, const std::function<void(double)>& progress, std::size_t all)
      : sink(sink), progress(progress), all(all) {}

  template <class Number>
  void Write(std::span<const Number> numbers) {
    const std::size_t size = numbers.size() * kNumberSize;
    while (!numbers.empty()) {
      const std::size_t count = std::min(kBlockSize, numbers.size());
      bytes.clear();
      for (const Number number : numbers.first(count)) AppendBits(bytes, BitsOf(number));
      sink(bytes);
      numbers = numbers.subspan(count);
      done += count;
      progress(static_cast<double>(done) / static_cast<double>(all));
    }
    sink(std::string(Aligned(size) - size, '\0'));
  }

 private:
  const ByteSink& sink;
  const std::function<void(double)>& progress;
  const std::size_t all;
  std::size_t done = 0;
  std::string bytes;
};

}  // namespace

std::vector<ArrayPlace> PlacesOf(const std::vector<ContainerArray>& arrays) {
  std::vector<ArrayPlace> places;
  std::size_t offset = 0;
  for (const ContainerArray& array : arrays) {
    const bool isFloat = std::holds_alternative<std::span<const float>>(array.numbers);
    places.push_back({array.name, isFloat ? "float32" : "uint32", offset, CountOf(array)});
    offset += Aligned(CountOf(array) * kNumberSize);
  }
  return places;
}

void WriteContainer(std::string_view description, const std::vector<ContainerArray>& arrays,
                    const ByteSink& sink, const std::function<void(double)>& progress) {
  const std::size_t size = Aligned(description.size());
  if (size > std::numeric_limits<std::uint32_t>::max()) {
    throw ExportError(ExportFailure::kFile, "the model is too large for a page");
  }
  std::string head(kSignature);
  AppendBits(head, static_cast<std::uint32_t>(size));
  sink(head);
  sink(description);
  sink(std::string(size - description.size(), ' '));
  std::size_t all = 0;
  for (const ContainerArray& array : arrays) all += CountOf(array);
  ArrayWriter writer(sink, progress, all);
  for (const ContainerArray& array : arrays) {
    std::visit([&](const auto& numbers) { writer.Write(numbers); }, array.numbers);
  }
}

}  // namespace KelIFC::exporting
