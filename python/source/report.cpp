#include "python/source/report.h"

#include "tools/kelifc/text.h"

namespace KelIFC::python {

Report CopyReport(const LoadReport& report, bool isIso) {
  const auto toText = [isIso](const std::string& text) {
    return isIso ? text : command::Utf8FromLatin1(text);
  };
  const auto toCounts = [&](const LoadReport::EntityCounts& counts) {
    EntityCounts copied;
    for (const auto& [name, count] : counts) copied.counts[toText(name)] += count;
    return copied;
  };
  Report copy{report.statements,
              report.numbers,
              report.made,
              report.raw,
              report.dropped,
              report.added,
              toCounts(report.rawByEntity),
              toCounts(report.droppedByEntity),
              {},
              {},
              report.isChecked,
              FormatReport(report),
              FormatReportAsJson(report)};
  for (std::size_t i = 0; i < kLoadFindingKinds; ++i) {
    const auto kind = static_cast<LoadFinding>(i);
    const std::string what = GetFindingText(kind);
    copy.counts.counts[what] = report.findings.GetCount(kind);
    const auto& places = report.findings.GetPlaces(kind);
    const auto& subjects = report.findings.GetSubjects(kind);
    for (std::size_t k = 0; k < places.size(); ++k) {
      copy.findings.push_back({what, places[k].line, places[k].column, subjects[k].number,
                               toText(subjects[k].entity), toText(subjects[k].name)});
    }
  }
  return copy;
}

}  // namespace KelIFC::python
