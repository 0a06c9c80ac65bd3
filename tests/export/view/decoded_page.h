#ifndef TESTS_EXPORT_VIEW_DECODED_PAGE_H_
#define TESTS_EXPORT_VIEW_DECODED_PAGE_H_

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace KelIFC::exporting {

/// The bytes of a base64 text. Throws std::runtime_error for a text that is none.
std::string BytesOfBase64(std::string_view text);

/// The bytes of a gzip stream. Throws std::runtime_error for bytes that are none.
std::string ExpandedGzip(std::string_view packed);

/// What a page holds, read as viewer/data.md defines it.
class DecodedPage {
 public:
  /// Reads a page. Throws std::runtime_error if it has no data, or data of another form.
  explicit DecodedPage(std::string_view html);

  std::string head;  ///< the text before the element with the data
  std::string tail;  ///< the text after it
  nlohmann::json description;

  std::vector<float> Floats(const std::string& name) const;
  std::vector<std::uint32_t> Integers(const std::string& name) const;

 private:
  std::string_view BytesOf(const std::string& name, const std::string& type) const;

  std::string container;
  std::size_t arraysStart = 0;
};

}  // namespace KelIFC::exporting

#endif  // TESTS_EXPORT_VIEW_DECODED_PAGE_H_
