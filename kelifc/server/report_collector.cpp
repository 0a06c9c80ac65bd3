#include "kelifc/server/report_collector.h"

#include <algorithm>
#include <string>
#include <typeinfo>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/other.h"
#include "kelifc/core/text/ascii.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {
namespace {

// Compares addresses, which is faster than comparing names. The library has one type_info of
// IfcOther, and makes all instances that are asked about.
bool IsRaw(const IfcUnknown& instance) { return &typeid(instance) == &typeid(IfcOther); }

}  // namespace

std::string EntityNameAt(const char* text) {
  const char* begin = detail::SkipBlanks(text);
  const char* end = begin;
  while (*end != '\0' && *end != '(' && !detail::IsBlank(*end)) ++end;
  return ascii::ToUpperCase(std::string(begin, end));
}

StatedAs KindOf(const IfcUnknown* made) {
  if (made == nullptr) return StatedAs::kNothing;
  return IsRaw(*made) ? StatedAs::kRaw : StatedAs::kClass;
}

void ReportCollector::NoteStatement(std::size_t number, StatedAs kind, const char* text) {
  ++report.statements;
  if (kind == StatedAs::kNothing) {
    droppedNumbers[number] = report.droppedByEntity.try_emplace(EntityNameAt(text)).first;
  } else if (kind == StatedAs::kRaw) {
    rawNumbers.push_back(number);
  }
}

void ReportCollector::EndFirstPass(const IfcServer& server) {
  slots = server.GetItems().size();
  for (const auto& [number, count] : droppedNumbers) {
    if (server.HasNumber(number)) {  // another statement with it has an instance
      hasMixedNumber = true;
      continue;
    }
    ++count->second;
    ++report.dropped;
  }
  for (auto at = report.droppedByEntity.begin(); at != report.droppedByEntity.end();) {
    at = at->second == 0 ? report.droppedByEntity.erase(at) : std::next(at);
  }
  report.made = server.GetNumberCount();
  report.numbers = report.made + report.dropped;
}

void ReportCollector::EndLoad(IfcServer& server) {
  report.added = server.GetItems().size() - slots;
  std::sort(rawNumbers.begin(), rawNumbers.end());
  rawNumbers.erase(std::unique(rawNumbers.begin(), rawNumbers.end()), rawNumbers.end());
  for (const std::size_t number : rawNumbers) {
    const auto* other = dynamic_cast<const IfcOther*>(server.GetItem(number));
    if (other == nullptr) continue;  // the last statement with the number is of another class
    ++report.rawByEntity[ascii::ToUpperCase(other->GetStepEntityName())];
    ++report.raw;
  }
  report.made -= report.raw;
}

}  // namespace KelIFC
