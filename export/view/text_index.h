#ifndef EXPORT_VIEW_TEXT_INDEX_H_
#define EXPORT_VIEW_TEXT_INDEX_H_

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace KelIFC::exporting {

/// Numbers texts from 0, in the order of their first use. It refers to the texts, which the caller
/// keeps.
class TextIndex {
 public:
  /// The number of a text, which gets one if it is new.
  std::size_t Add(std::string_view text) {
    const auto [at, isNew] = numbers.try_emplace(text, texts.size());
    if (isNew) texts.push_back(text);
    return at->second;
  }

  /// The texts by their numbers.
  const std::vector<std::string_view>& GetTexts() const { return texts; }

 private:
  std::unordered_map<std::string_view, std::size_t> numbers;
  std::vector<std::string_view> texts;
};

}  // namespace KelIFC::exporting

#endif  // EXPORT_VIEW_TEXT_INDEX_H_
