#include "kelifc/server/report_format.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace KelIFC {
namespace {

/// The name of each kind of finding in the JSON.
struct KindName {
  LoadFinding kind;
  const char* name;
};
constexpr std::array<KindName, kLoadFindingKinds> kKinds = {{
    {LoadFinding::kRepeatedNumber, "repeatedNumbers"},
    {LoadFinding::kDanglingReference, "danglingReferences"},
    {LoadFinding::kUnreadAttribute, "unreadAttributes"},
    {LoadFinding::kBadEscape, "badEscapes"},
    {LoadFinding::kStatementWithoutEnd, "statementsWithoutEnd"},
}};

/// A count of the report.
struct Count {
  const char* name;   ///< in the JSON
  const char* title;  ///< for people
  std::uint64_t LoadReport::*value;
};
constexpr std::array<Count, 6> kCounts = {{
    {"statements", "Numbered statements", &LoadReport::statements},
    {"numbers", "Different numbers", &LoadReport::numbers},
    {"made", "Instances", &LoadReport::made},
    {"raw", "Kept as raw text", &LoadReport::raw},
    {"dropped", "Left out", &LoadReport::dropped},
    {"added", "Added by classes", &LoadReport::added},
}};

constexpr std::size_t kMostPlacesInText = 10;

std::string Hexadecimal(unsigned char byte) {
  constexpr char kDigits[] = "0123456789abcdef";
  return {kDigits[byte >> 4], kDigits[byte & 15]};
}

constexpr bool IsPlain(unsigned char c) { return c >= ' ' && c < 0x7F; }

std::string Shown(const std::string& name) {
  std::string text;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    text += IsPlain(byte) ? std::string(1, c) : "\\x" + Hexadecimal(byte);
  }
  return text;
}

std::string Quoted(const std::string& name) {
  std::string text = "\"";
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') text += '\\';
    text += IsPlain(byte) ? std::string(1, c) : "\\u00" + Hexadecimal(byte);
  }
  return text + "\"";
}

/// Builds a JSON object or list from members that are JSON.
class JsonBuilder {
 public:
  JsonBuilder& Add(const std::string& name, const std::string& value) {
    return AddItem(Quoted(name) + ":" + value);
  }
  JsonBuilder& Add(const std::string& name, std::uint64_t value) {
    return Add(name, std::to_string(value));
  }
  JsonBuilder& AddItem(const std::string& item) {
    text += (text.empty() ? "" : ",") + item;
    return *this;
  }
  std::string Object() const { return "{" + text + "}"; }
  std::string List() const { return "[" + text + "]"; }

 private:
  std::string text;
};

std::string PlaceAsJson(const SourcePlace& place, const FindingSubject& subject) {
  JsonBuilder object;
  object.Add("line", place.line).Add("column", place.column);
  if (subject.number != 0) object.Add("number", std::uint64_t{subject.number});
  if (!subject.entity.empty()) object.Add("entity", Quoted(subject.entity));
  if (subject.attribute != 0) object.Add("attribute", std::uint64_t{subject.attribute});
  if (!subject.name.empty()) object.Add("name", Quoted(subject.name));
  return object.Object();
}

std::string AttributesAsJson(const LoadReport::AttributeCounts& counts) {
  JsonBuilder list;
  for (const auto& [at, count] : counts) {
    JsonBuilder object;
    object.Add("entity", Quoted(at.entity)).Add("attribute", std::uint64_t{at.attribute});
    if (!at.name.empty()) object.Add("name", Quoted(at.name));
    list.AddItem(object.Add("count", count).Object());
  }
  return list.List();
}

std::string FindingsAsJson(const LoadReport& report, LoadFinding kind) {
  const auto& places = report.findings.GetPlaces(kind);
  const auto& subjects = report.findings.GetSubjects(kind);
  JsonBuilder list;
  for (std::size_t i = 0; i < places.size(); ++i) list.AddItem(PlaceAsJson(places[i], subjects[i]));
  JsonBuilder object;
  object.Add("count", report.findings.GetCount(kind)).Add("places", list.List());
  if (kind == LoadFinding::kDanglingReference) {
    object.Add("attributes", AttributesAsJson(report.danglingByAttribute));
  }
  if (kind == LoadFinding::kUnreadAttribute) {
    object.Add("attributes", AttributesAsJson(report.unreadByAttribute));
  }
  return object.Object();
}

std::string PlaceText(const SourcePlace& place, const FindingSubject& subject) {
  std::string text = std::to_string(place.line) + ":" + std::to_string(place.column);
  if (subject.number == 0) return text;
  text += " (#" + std::to_string(subject.number);
  if (!subject.entity.empty()) text += "=" + Shown(subject.entity);
  if (subject.attribute != 0) text += ", attribute " + std::to_string(subject.attribute);
  if (!subject.name.empty()) text += " " + subject.name;
  return text + ")";
}

std::string FindingsText(const LoadReport& report, LoadFinding kind) {
  const std::uint64_t count = report.findings.GetCount(kind);
  if (count == 0) return "";
  const auto& places = report.findings.GetPlaces(kind);
  const auto& subjects = report.findings.GetSubjects(kind);
  const std::size_t shown = std::min(places.size(), kMostPlacesInText);
  std::string text = "\n" + std::to_string(count) + " x " + GetFindingText(kind) + "\n";
  for (std::size_t i = 0; i < shown; ++i) {
    text += "  line " + PlaceText(places[i], subjects[i]) + "\n";
  }
  if (count > shown) text += "  and " + std::to_string(count - shown) + " more\n";
  return text;
}

std::string Row(const std::string& title, std::uint64_t count) {
  constexpr std::size_t kTitleWidth = 20;
  const std::size_t gap = title.size() < kTitleWidth ? kTitleWidth - title.size() : 1;
  return title + std::string(gap, ' ') + std::to_string(count) + "\n";
}

}  // namespace

std::string FormatReport(const LoadReport& report) {
  std::string text;
  for (const auto& [name, title, value] : kCounts) {
    text += Row(title, report.*value);
    if (value != &LoadReport::dropped) continue;
    for (const auto& [entity, count] : report.droppedByEntity) {
      text += Row("  " + Shown(entity), count);
    }
  }
  std::string findings;
  for (const auto& [kind, name] : kKinds) findings += FindingsText(report, kind);
  return text + (findings.empty() ? "\nNothing is wrong in the file.\n" : findings);
}

std::string FormatReportAsJson(const LoadReport& report) {
  JsonBuilder object;
  for (const auto& [name, title, value] : kCounts) object.Add(name, report.*value);
  JsonBuilder dropped;
  for (const auto& [entity, count] : report.droppedByEntity) dropped.Add(entity, count);
  object.Add("droppedEntities", dropped.Object());
  for (const auto& [kind, name] : kKinds) object.Add(name, FindingsAsJson(report, kind));
  return object.Object();
}

std::optional<std::uint64_t> FindReportCount(const LoadReport& report, std::string_view name) {
  for (const auto& [countName, title, value] : kCounts) {
    if (name == countName) return report.*value;
  }
  for (const auto& [kind, kindName] : kKinds) {
    if (name == kindName) return report.findings.GetCount(kind);
  }
  return std::nullopt;
}

}  // namespace KelIFC
