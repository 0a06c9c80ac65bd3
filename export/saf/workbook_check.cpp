#include "export/saf/workbook_check.h"

#include <zlib.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string_view>
#include <system_error>

namespace KelIFC::exporting::saf {
namespace {

// The layout of an archive of ZIP, little-endian.
constexpr std::size_t kEndSize = 22;  // of the last record, which is at the end of the file
constexpr std::uint32_t kEndSignature = 0x06054b50;
constexpr std::size_t kEntrySize = 46;  // without the name
constexpr std::uint32_t kEntrySignature = 0x02014b50;
constexpr std::size_t kLocalSize = 30;  // without the name
constexpr std::uint32_t kLocalSignature = 0x04034b50;
constexpr std::uint16_t kDeflated = 8;

constexpr std::size_t kBlockSize = 1 << 16;
constexpr std::size_t kEdgeSize = 1024;  // what is kept of the beginning and of the end of a file

constexpr std::string_view kSheetPrefix = "xl/worksheets/sheet";

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

struct Entry {
  std::string name;
  std::uint16_t method = 0;
  std::uint32_t size = 0;  // compressed
  std::uint32_t offset = 0;
};

std::uint32_t Number(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i > 0; --i) {
    number = (number << 8) | static_cast<unsigned char>(bytes[at + i - 1]);
  }
  return number;
}

// Empty if the file does not have so many bytes at the place.
std::string ReadAt(std::FILE* file, long offset, int origin, std::size_t size) {
  std::string bytes(size, '\0');
  if (std::fseek(file, offset, origin) != 0) return {};
  return std::fread(bytes.data(), 1, size, file) == size ? bytes : std::string();
}

std::optional<std::vector<Entry>> ReadDirectory(std::FILE* file) {
  const std::string end = ReadAt(file, -static_cast<long>(kEndSize), SEEK_END, kEndSize);
  if (end.empty() || Number(end, 0, 4) != kEndSignature) return std::nullopt;
  std::vector<Entry> entries;
  long at = static_cast<long>(Number(end, 16, 4));
  for (std::uint32_t i = 0; i < Number(end, 10, 2); ++i) {
    const std::string record = ReadAt(file, at, SEEK_SET, kEntrySize);
    if (record.empty() || Number(record, 0, 4) != kEntrySignature) return std::nullopt;
    const std::uint32_t nameSize = Number(record, 28, 2);
    Entry entry;
    entry.name = ReadAt(file, at + static_cast<long>(kEntrySize), SEEK_SET, nameSize);
    entry.method = static_cast<std::uint16_t>(Number(record, 10, 2));
    entry.size = Number(record, 20, 4);
    entry.offset = Number(record, 42, 4);
    entries.push_back(std::move(entry));
    at += static_cast<long>(kEntrySize + nameSize + Number(record, 30, 2) + Number(record, 32, 2));
  }
  return entries;
}

// What an XML file holds, read block by block.
class XmlSummary {
 public:
  void Add(std::string_view block) {
    for (const char c : block) {
      if (c == ' ' && last[0] == '<' && last[1] == 'c') ++cells;
      if (c == '>' && last[0] == 's' && last[1] == 'i') ++texts;
      last[0] = last[1];
      last[1] = c;
    }
    head.append(block.substr(0, kEdgeSize - std::min(head.size(), kEdgeSize)));
    tail.append(block.substr(block.size() - std::min(block.size(), kEdgeSize)));
    if (tail.size() > kEdgeSize) tail.erase(0, tail.size() - kEdgeSize);
  }

  std::size_t GetCells() const { return cells; }

  // True if the file ends with the end of its root element.
  bool IsClosed() const {
    const std::size_t root = head.find('<', head.find("?>"));
    if (root == std::string::npos) return false;
    const std::size_t length = head.find_first_of(" >", root) - root - 1;
    const std::string end = "</" + head.substr(root + 1, length) + ">";
    const std::size_t last = tail.find_last_not_of("\r\n");
    return last != std::string::npos && tail.substr(0, last + 1).ends_with(end);
  }

  // True if a list of shared texts has all of them. A text is within the tags "<si>" and "</si>".
  bool HasAllTexts() const {
    constexpr std::string_view kName = "uniqueCount=\"";
    const std::size_t at = head.find(kName);
    if (at == std::string::npos) return false;
    std::size_t count = 0;
    std::from_chars(head.data() + at + kName.size(), head.data() + head.size(), count);
    return texts == 2 * count;
  }

 private:
  char last[2] = {};
  std::size_t cells = 0;
  std::size_t texts = 0;
  std::string head;
  std::string tail;
};

// Ends a decompression.
struct EndInflate {
  void operator()(z_stream* stream) const { inflateEnd(stream); }
};

// Expands what `stream` has as its input. Returns the state of the decompression.
int Expand(z_stream& stream, XmlSummary& summary) {
  std::string block(kBlockSize, '\0');
  int state = Z_OK;
  do {
    stream.next_out = reinterpret_cast<Bytef*>(block.data());
    stream.avail_out = static_cast<uInt>(block.size());
    state = inflate(&stream, Z_NO_FLUSH);
    summary.Add(std::string_view(block).substr(0, block.size() - stream.avail_out));
  } while (state == Z_OK && stream.avail_out == 0);
  return state;
}

bool Summarise(std::FILE* file, const Entry& entry, XmlSummary& summary) {
  const std::string local = ReadAt(file, static_cast<long>(entry.offset), SEEK_SET, kLocalSize);
  if (local.empty() || Number(local, 0, 4) != kLocalSignature) return false;
  if (entry.method != kDeflated) return false;
  std::size_t left = entry.size;
  const std::uint32_t skipped = Number(local, 26, 2) + Number(local, 28, 2);
  if (std::fseek(file, static_cast<long>(skipped), SEEK_CUR) != 0) return false;

  z_stream stream = {};
  if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) return false;
  const std::unique_ptr<z_stream, EndInflate> end(&stream);
  std::string block(kBlockSize, '\0');
  int state = Z_OK;
  while (left > 0 && state == Z_OK) {
    const std::size_t size = std::min(left, block.size());
    if (std::fread(block.data(), 1, size, file) != size) return false;
    left -= size;
    stream.next_in = reinterpret_cast<Bytef*>(block.data());
    stream.avail_in = static_cast<uInt>(size);
    state = Expand(stream, summary);
    if (state == Z_BUF_ERROR) state = Z_OK;  // it needs more input
  }
  return state == Z_STREAM_END;
}

// True if the cells of the sheet are as many as they should be.
bool HasAllCells(const Entry& entry, const XmlSummary& summary,
                 const std::vector<std::size_t>& cells) {
  std::size_t number = 0;
  const char* const begin = entry.name.data() + kSheetPrefix.size();
  const char* const end = entry.name.data() + entry.name.size();
  if (std::from_chars(begin, end, number).ec != std::errc()) return false;
  return number >= 1 && number <= cells.size() && summary.GetCells() == cells[number - 1];
}

bool IsEntryComplete(std::FILE* file, const Entry& entry, const std::vector<std::size_t>& cells) {
  XmlSummary summary;
  if (!Summarise(file, entry, summary) || !summary.IsClosed()) return false;
  if (entry.name == "xl/sharedStrings.xml") return summary.HasAllTexts();
  return !entry.name.starts_with(kSheetPrefix) || HasAllCells(entry, summary, cells);
}

}  // namespace

bool IsWorkbookComplete(const std::string& path, const std::vector<std::size_t>& cells) {
  const File file(std::fopen(path.c_str(), "rb"));
  if (!file) return false;
  const std::optional<std::vector<Entry>> entries = ReadDirectory(file.get());
  if (!entries) return false;
  const auto sheets = std::count_if(entries->begin(), entries->end(), [](const Entry& entry) {
    return entry.name.starts_with(kSheetPrefix);
  });
  return static_cast<std::size_t>(sheets) == cells.size() &&
         std::all_of(entries->begin(), entries->end(),
                     [&](const Entry& entry) { return IsEntryComplete(file.get(), entry, cells); });
}

}  // namespace KelIFC::exporting::saf
