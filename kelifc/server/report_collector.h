#ifndef KELIFC_SERVER_REPORT_COLLECTOR_H_
#define KELIFC_SERVER_REPORT_COLLECTOR_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "kelifc/server/load_report.h"

namespace KelIFC {

class IfcServer;
class IfcUnknown;

/// What a numbered statement became.
enum class StatedAs : std::uint8_t {
  kClass,    ///< an instance of a class of the release
  kRaw,      ///< an IfcOther
  kNothing,  ///< the statement is left out
};

/// Returns what a statement became whose instance is `made`; null if there is none.
StatedAs KindOf(const IfcUnknown* made);

/// Counts for the report of a load what its first pass meets.
class ReportCollector {
 public:
  /// Fills `target`, which must outlive the collector.
  explicit ReportCollector(LoadReport& target) : report(target) {}

  /// Takes a statement, whose right side is `text`. The text matters only if the statement is left
  /// out.
  void NoteStatement(std::size_t number, StatedAs kind, const char* text);

  /// Counts the numbers after the first pass, in which no class has added an instance yet.
  void EndFirstPass(const IfcServer& server);

  /// After EndFirstPass: true if a statement that is left out has the number of an instance.
  bool HasMixedNumber() const { return hasMixedNumber; }

  /// Counts the raw and the added instances of a model that is loaded.
  void EndLoad(IfcServer& server);

 private:
  LoadReport& report;
  bool hasMixedNumber = false;
  std::size_t slots = 0;                // after the first pass
  std::vector<std::size_t> rawNumbers;  // of statements; a number can occur more than once
  // By number, the count for the entity of the last statement that was left out.
  std::unordered_map<std::size_t, LoadReport::EntityCounts::iterator> droppedNumbers;
};

/// The name of the entity at the begin of `text`, in upper case.
std::string EntityNameAt(const char* text);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_REPORT_COLLECTOR_H_
