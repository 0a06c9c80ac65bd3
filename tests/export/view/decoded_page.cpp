#include "tests/export/view/decoded_page.h"

#include <bit>
#include <cstddef>
#include <stdexcept>

#ifdef KELIFC_TEST_ZLIB
#include <zlib.h>
#endif

namespace KelIFC::exporting {
namespace {

void Require(bool condition, const std::string& reason) {
  if (!condition) throw std::runtime_error(reason);
}

std::uint32_t DigitOf(char c) {
  static constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  const std::size_t digit = kDigits.find(c);
  Require(digit != std::string_view::npos, "not a digit of base64");
  return static_cast<std::uint32_t>(digit);
}

std::uint32_t IntegerAt(std::string_view bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i-- > 0;) {
    value = value << 8U | static_cast<unsigned char>(bytes.at(at + i));
  }
  return value;
}

// Takes the text up to a mark off `text`, and the mark.
std::string TakeUntil(std::string_view& text, std::string_view mark) {
  const std::size_t at = text.find(mark);
  Require(at != std::string_view::npos, "the page lacks " + std::string(mark));
  std::string taken(text.substr(0, at));
  text.remove_prefix(at + mark.size());
  return taken;
}

}  // namespace

std::string BytesOfBase64(std::string_view text) {
  Require(text.size() % 4 == 0, "the length of base64 is no multiple of 4");
  std::string bytes;
  while (!text.empty() && text.back() == '=') text.remove_suffix(1);
  std::uint32_t bits = 0;
  unsigned count = 0;
  for (const char c : text) {
    bits = bits << 6U | DigitOf(c);
    count += 6;
    if (count < 8) continue;
    count -= 8;
    bytes += static_cast<char>(bits >> count & 255U);
  }
  return bytes;
}

std::string ExpandedGzip(std::string_view packed) {
#ifdef KELIFC_TEST_ZLIB
  z_stream stream = {};
  Require(inflateInit2(&stream, 15 + 16) == Z_OK, "zlib does not start");
  std::string input(packed);
  std::string bytes;
  std::string part(1 << 16, '\0');
  stream.next_in = reinterpret_cast<Bytef*>(input.data());
  stream.avail_in = static_cast<uInt>(input.size());
  int status = Z_OK;
  while (status == Z_OK) {
    stream.next_out = reinterpret_cast<Bytef*>(part.data());
    stream.avail_out = static_cast<uInt>(part.size());
    status = inflate(&stream, Z_NO_FLUSH);
    bytes.append(part, 0, part.size() - stream.avail_out);
  }
  inflateEnd(&stream);
  Require(status == Z_STREAM_END && stream.avail_in == 0, "not one gzip stream");
  return bytes;
#else
  throw std::runtime_error("a build without zlib cannot expand " + std::string(packed));
#endif
}

DecodedPage::DecodedPage(std::string_view html) {
  head =
      TakeUntil(html, R"(<script type="application/octet-stream" id="building" data-encoding=")");
  const std::string encoding = TakeUntil(html, "\">");
  container = BytesOfBase64(TakeUntil(html, "</script>"));
  tail.assign(html);
  Require(encoding == "gzip" || encoding == "identity", "unknown encoding " + encoding);
  if (encoding == "gzip") container = ExpandedGzip(container);
  Require(container.substr(0, 4) == "KLV1", "no container");
  const std::size_t size = IntegerAt(container, 4);
  Require(size % 8 == 0, "the length of the description is no multiple of 8");
  description = nlohmann::json::parse(container.substr(8, size));
  arraysStart = 8 + size;
}

std::string_view DecodedPage::BytesOf(const std::string& name, const std::string& type) const {
  const nlohmann::json& place = description.at("arrays").at(name);
  Require(place.at("type") == type, name + " is no " + type);
  const auto offset = place.at("offset").get<std::size_t>();
  const std::size_t size = 4 * place.at("count").get<std::size_t>();
  Require(offset % 8 == 0, name + " is not aligned");
  Require(arraysStart + offset + size <= container.size(), name + " is cut off");
  return std::string_view(container).substr(arraysStart + offset, size);
}

std::vector<std::uint32_t> DecodedPage::Integers(const std::string& name) const {
  const std::string_view bytes = BytesOf(name, "uint32");
  std::vector<std::uint32_t> numbers;
  for (std::size_t at = 0; at < bytes.size(); at += 4) numbers.push_back(IntegerAt(bytes, at));
  return numbers;
}

std::vector<float> DecodedPage::Floats(const std::string& name) const {
  const std::string_view bytes = BytesOf(name, "float32");
  std::vector<float> numbers;
  for (std::size_t at = 0; at < bytes.size(); at += 4) {
    numbers.push_back(std::bit_cast<float>(IntegerAt(bytes, at)));
  }
  return numbers;
}

}  // namespace KelIFC::exporting
