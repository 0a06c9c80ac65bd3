#ifndef PYTHON_SOURCE_REPORT_H_
#define PYTHON_SOURCE_REPORT_H_

#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "kelifc/kelifc.h"

#include "python/source/described.h"
#include "python/source/packed.h"
#include "python/source/to_python.h"

namespace KelIFC::python {

/// Something that is wrong in a file, and its place.
struct Finding {
  std::string what;
  std::uint64_t line = 0;
  std::uint64_t column = 0;
  std::size_t number = 0;
  std::string entity;
  std::string attribute;
};

/// Counts by the name of the entity.
struct EntityCounts {
  std::map<std::string, std::uint64_t> counts;
};

/// The report of a load as plain values.
struct Report {
  std::uint64_t statements = 0;
  std::uint64_t numbers = 0;
  std::uint64_t made = 0;
  std::uint64_t raw = 0;
  std::uint64_t dropped = 0;
  std::uint64_t added = 0;
  EntityCounts rawByEntity;
  EntityCounts droppedByEntity;
  std::vector<Finding> findings;
  EntityCounts counts;
  bool isChecked = false;
  std::string text;
  std::string json;
};

/// Copies a report. `isIso` says how its texts are encoded.
Report CopyReport(const LoadReport& report, bool isIso);

template <>
struct ToPython<EntityCounts> {
  static std::string Type() { return "dict[str, int]"; }
  static py::object Of(const EntityCounts& counts, const Owner& /*owner*/) {
    py::dict all;
    for (const auto& [name, count] : counts.counts) all[ToText(name)] = count;
    return all;
  }
};

template <>
inline constexpr auto kDescribed<EntityCounts> =
    Describe("", "", Field{"counts", &EntityCounts::counts, ""});

template <>
inline constexpr auto kDescribed<Finding> = Describe(
    "Finding", "Something that is wrong in a file that was loaded.",
    Field{"what", &Finding::what, "What is wrong, such as 'bad escape in a string'."},
    Field{"line", &Finding::line, "The line in the file, from 1."},
    Field{"column", &Finding::column, "The byte in the line, from 1."},
    IdField{"number", &Finding::number, "The instance number, or None."},
    Field{"entity", &Finding::entity, "The entity in upper case; empty if it is not known."},
    Field{"attribute", &Finding::attribute,
          "The attribute in the schema; empty if it is not known."});

template <>
inline constexpr auto kDescribed<Report> = Describe(
    "Report",
    "What a load met in the file: made + raw + dropped == numbers. `str` is the report for "
    "people.",
    Field{"statements", &Report::statements, "Numbered statements."},
    Field{"numbers", &Report::numbers, "Different numbers of them."},
    Field{"made", &Report::made, "Instances of the classes of the release."},
    Field{"raw", &Report::raw, "Instances that are kept as raw text."},
    Field{"dropped", &Report::dropped, "Numbers whose statements were left out."},
    Field{"added", &Report::added, "Instances that the load added."},
    Field{"raw_by_entity", &Report::rawByEntity, "The raw instances by their entity."},
    Field{"dropped_by_entity", &Report::droppedByEntity, "The dropped numbers by their entity."},
    Field{"findings", &Report::findings, "The first 100 findings of each kind."},
    Field{"counts", &Report::counts, "How often each kind of finding occurs."},
    Field{"is_checked", &Report::isChecked,
          "True if Model.check has completed the report with references and values."});

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_REPORT_H_
