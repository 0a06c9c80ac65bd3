#include "tools/schemac/line_reader.h"

namespace schemac {

namespace {

constexpr std::size_t kContinuationIndent = 6;
constexpr std::string_view kReasonMark = "-- ";

std::string_view TrimRight(std::string_view text) {
  const auto last = text.find_last_not_of(" \r");
  return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

/// Returns where the reason begins: at a mark that starts the text or follows a blank.
std::size_t FindReason(std::string_view text) {
  for (auto at = text.find(kReasonMark); at != std::string_view::npos;
       at = text.find(kReasonMark, at + 1)) {
    if (at == 0 || text[at - 1] == ' ') return at;
  }
  return std::string_view::npos;
}

void Append(std::string& target, std::string_view text) {
  if (text.empty()) return;
  if (!target.empty()) target += ' ';
  target += text;
}

}  // namespace

std::vector<Line> ReadLines(const std::string& file, std::string_view text) {
  std::vector<Line> lines;
  Place place{file, 0, 1};
  while (!text.empty()) {
    const auto end = text.find('\n');
    std::string_view raw = TrimRight(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    ++place.line;
    if (const auto tab = raw.find('\t'); tab != std::string_view::npos) {
      place.column = static_cast<int>(tab) + 1;
      throw DescriptionError(place, "a tab; indent with blanks");
    }
    const auto indent = raw.find_first_not_of(' ');
    if (indent == std::string_view::npos || raw[indent] == '#') continue;
    raw.remove_prefix(indent);
    const auto mark = FindReason(raw);
    std::string_view reason;
    if (mark != std::string_view::npos) {
      reason = raw.substr(mark + kReasonMark.size());
      raw = TrimRight(raw.substr(0, mark));
    }
    place.column = static_cast<int>(indent) + 1;
    if (indent >= kContinuationIndent && !lines.empty()) {
      Line& line = lines.back();
      Append(line.text, raw);
      Append(line.reason, reason);
      line.continuations.push_back({line.text.size() - raw.size(), place});
      continue;
    }
    lines.push_back({place, indent > 0, std::string(raw), std::string(reason)});
  }
  return lines;
}

}  // namespace schemac
