#include "kelifc/server/file_header.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <string>

#include "kelifc/core/text/iso_text.h"
#include "kelifc/platform/local_time.h"
#include "kelifc/server/reported_version.h"

namespace KelIFC {
namespace {

// Positions in FILE_NAME.
constexpr std::size_t kName = 0;
constexpr std::size_t kTimeStamp = 1;
constexpr std::size_t kPreprocessor = 4;

// Returns the position after the string or comment that begins at `at`, or `at` if none does.
std::size_t SkipOpaque(std::string_view text, std::size_t at) {
  std::size_t end = at;
  if (text[at] == '\'') {
    end = text.find('\'', at + 1);
    return end == std::string_view::npos ? text.size() : end + 1;
  }
  if (text.substr(at, 2) != "/*") return at;
  end = text.find("*/", at + 2);
  return end == std::string_view::npos ? text.size() : end + 2;
}

std::string Quoted(std::string_view text) {
  std::string quoted;
  AppendIsoString(quoted, text);
  return quoted;
}

}  // namespace

std::string GetTimeStamp() {
  const LocalTime time = GetLocalTimeNow();
  std::array<char, 96> text = {};
  const int length =
      std::snprintf(text.data(), text.size(), "%4d-%02d-%02dT%02d:%02d:%02d", time.year, time.month,
                    time.day, time.hour, time.minute, time.second);
  return {text.data(), static_cast<std::size_t>(length)};
}

std::string GetPreprocessorVersion() { return std::string("KelIFC v. ") + kReportedVersion; }

std::string RenewFileName(std::string_view record, std::string_view fileName) {
  std::string out;
  std::size_t field = 0;
  std::size_t depth = 0;
  for (std::size_t at = 0; at < record.size();) {
    std::size_t next = SkipOpaque(record, at);
    const bool isString = record[at] == '\'' && depth == 1;
    if (isString && field == kName) {
      out += Quoted(fileName);
    } else if (isString && field == kTimeStamp) {
      out += Quoted(GetTimeStamp());
    } else if (isString && field == kPreprocessor) {
      out += Quoted(GetPreprocessorVersion());
    } else {
      if (next == at) ++next;
      out.append(record.substr(at, next - at));
    }
    const char c = record[at];
    if (c == '(') ++depth;
    if (c == ')' && depth > 0) --depth;
    if (c == ',' && depth == 1) ++field;
    // The second part of a string with a doubled quote belongs to the field that was replaced.
    const bool isReplaced = isString && (field <= kTimeStamp || field == kPreprocessor);
    while (isReplaced && next < record.size() && record[next] == '\'') {
      next = SkipOpaque(record, next);
    }
    at = next;
  }
  return out;
}

}  // namespace KelIFC
