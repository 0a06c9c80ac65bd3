#include "tools/kelifc/report_format.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "tools/kelifc/text.h"
#include "tools/kelifc/text_table.h"

namespace command {
namespace {

using KelIFC::FindingSubject;
using KelIFC::LoadFinding;
using KelIFC::LoadReport;
using KelIFC::SourcePlace;

/// The name of each kind of finding in the JSON.
struct KindName {
  LoadFinding kind;
  const char* name;
};
constexpr std::array<KindName, KelIFC::kLoadFindingKinds> kKinds = {{
    {LoadFinding::kRepeatedNumber, "repeatedNumbers"},
    {LoadFinding::kDanglingReference, "danglingReferences"},
    {LoadFinding::kBadEscape, "badEscapes"},
    {LoadFinding::kStatementWithoutEnd, "statementsWithoutEnd"},
}};

/// A count of the report.
struct Count {
  const char* name;   ///< in the JSON
  const char* title;  ///< in the table
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

Json PlaceJson(const SourcePlace& place, const FindingSubject& subject) {
  Json object = {{"line", place.line}, {"column", place.column}};
  if (subject.number != 0) object["number"] = subject.number;
  if (!subject.entity.empty()) object["entity"] = Utf8FromLatin1(subject.entity);
  if (subject.attribute != 0) object["attribute"] = subject.attribute;
  return object;
}

Json FindingsJson(const LoadReport& report, LoadFinding kind) {
  const auto& places = report.findings.GetPlaces(kind);
  const auto& subjects = report.findings.GetSubjects(kind);
  Json list = Json::array();
  for (std::size_t i = 0; i < places.size(); ++i) list.push_back(PlaceJson(places[i], subjects[i]));
  return {{"count", report.findings.GetCount(kind)}, {"places", list}};
}

Json DanglingJson(const LoadReport& report) {
  Json list = Json::array();
  for (const auto& [at, count] : report.danglingByAttribute) {
    list.push_back(
        {{"entity", Utf8FromLatin1(at.entity)}, {"attribute", at.attribute}, {"count", count}});
  }
  return list;
}

std::string PlaceText(const SourcePlace& place, const FindingSubject& subject) {
  std::string text = std::to_string(place.line) + ":" + std::to_string(place.column);
  if (subject.number != 0) text += " (#" + std::to_string(subject.number);
  if (!subject.entity.empty()) text += "=" + Utf8FromLatin1(subject.entity);
  if (subject.attribute != 0) text += ", attribute " + std::to_string(subject.attribute);
  return subject.number != 0 ? text + ")" : text;
}

std::string FindingsText(const LoadReport& report, LoadFinding kind) {
  const std::uint64_t count = report.findings.GetCount(kind);
  if (count == 0) return "";
  const auto& places = report.findings.GetPlaces(kind);
  const auto& subjects = report.findings.GetSubjects(kind);
  const std::size_t shown = std::min(places.size(), kMostPlacesInText);
  std::string text = "\n" + std::to_string(count) + " x " + KelIFC::GetFindingText(kind) + "\n";
  for (std::size_t i = 0; i < shown; ++i) {
    text += "  line " + PlaceText(places[i], subjects[i]) + "\n";
  }
  if (count > shown) text += "  and " + std::to_string(count - shown) + " more\n";
  return text;
}

}  // namespace

Json ReportJson(const LoadReport& report) {
  Json object = Json::object();
  for (const auto& [name, title, value] : kCounts) object[name] = report.*value;
  Json& dropped = object["droppedEntities"] = Json::object();
  for (const auto& [entity, count] : report.droppedByEntity) {
    dropped[Utf8FromLatin1(entity)] = count;
  }
  for (const auto& [kind, name] : kKinds) object[name] = FindingsJson(report, kind);
  object["danglingReferences"]["attributes"] = DanglingJson(report);
  return object;
}

std::string ReportText(const LoadReport& report) {
  TextTable table({"Report", "count"}, {false, true});
  for (const auto& [name, title, value] : kCounts)
    table.Add({title, std::to_string(report.*value)});
  std::string text = "\n" + table.ToText();
  if (!report.droppedByEntity.empty()) {
    TextTable dropped({"Left out", "count"}, {false, true});
    for (const auto& [entity, count] : report.droppedByEntity) {
      dropped.Add({Utf8FromLatin1(entity), std::to_string(count)});
    }
    text += "\n" + dropped.ToText();
  }
  std::string findings;
  for (const auto& [kind, name] : kKinds) findings += FindingsText(report, kind);
  return text + (findings.empty() ? "\nNothing is wrong in the file.\n" : findings);
}

}  // namespace command
