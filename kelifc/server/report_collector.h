#ifndef KELIFC_SERVER_REPORT_COLLECTOR_H_
#define KELIFC_SERVER_REPORT_COLLECTOR_H_

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "kelifc/server/load_report.h"

namespace KelIFC {

class IfcServer;
class IfcUnknown;

/// Counts for the report of a load what its first pass meets.
class ReportCollector {
 public:
  /// Fills `target`, which must outlive the collector.
  explicit ReportCollector(LoadReport& target) : report(target) {}

  /// Takes a statement. `made` is its instance, null if the statement is left out, and `text` the
  /// right side.
  void NoteStatement(std::size_t number, const IfcUnknown* made, const char* text);

  /// Counts the numbers after the first pass, in which no class has added an instance yet.
  void EndFirstPass(const IfcServer& server);

  /// Counts the raw and the added instances of a model that is loaded.
  void EndLoad(IfcServer& server);

 private:
  LoadReport& report;
  std::size_t slots = 0;                // after the first pass
  std::vector<std::size_t> rawNumbers;  // of statements; a number can occur more than once
  // By number, the count for the entity of the last statement that was left out.
  std::unordered_map<std::size_t, LoadReport::EntityCounts::iterator> droppedNumbers;
};

/// The name of the entity at the begin of `text`, in upper case.
std::string EntityNameAt(const char* text);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_REPORT_COLLECTOR_H_
