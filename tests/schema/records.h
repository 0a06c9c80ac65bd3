#ifndef KELIFC_TESTS_SCHEMA_RECORDS_H_
#define KELIFC_TESTS_SCHEMA_RECORDS_H_

#include <string>
#include <vector>

namespace KelIFC {

/// A record of a class, derived from its description: the positions between the parentheses.
struct SampleRecord {
  std::string name;     ///< of the entity
  std::string read;     ///< every position set
  std::string written;  ///< what that is written as
  std::string unset;    ///< every position `$`, but for the identifier of a root
  std::string emptied;  ///< what that is written as
};

/// The classes that a file can name, but for those that are read or written by hand.
const std::vector<SampleRecord>& SampleRecords151();
const std::vector<SampleRecord>& SampleRecords20();
const std::vector<SampleRecord>& SampleRecords2x();
const std::vector<SampleRecord>& SampleRecords2x2();
const std::vector<SampleRecord>& SampleRecords2x3();

}  // namespace KelIFC

#endif  // KELIFC_TESTS_SCHEMA_RECORDS_H_
