#ifndef KELIFC_TESTS_SCHEMA_RECORDS_H_
#define KELIFC_TESTS_SCHEMA_RECORDS_H_

#include <string>
#include <vector>

namespace KelIFC {

/// A record of a class, which schemac makes from its description. The texts are the positions
/// between the parentheses.
struct SampleRecord {
  std::string name;     ///< of the entity
  std::string read;     ///< every position set
  std::string written;  ///< what a save writes for `read`
  std::string unset;    ///< every position `$`, except the identifier of a root
  std::string emptied;  ///< what a save writes for `unset`
};

/// The records of the classes that a file can contain, except those that are read or written by
/// hand.
const std::vector<SampleRecord>& SampleRecords151();
const std::vector<SampleRecord>& SampleRecords20();
const std::vector<SampleRecord>& SampleRecords2x();
const std::vector<SampleRecord>& SampleRecords2x2();
const std::vector<SampleRecord>& SampleRecords2x3();

}  // namespace KelIFC

#endif  // KELIFC_TESTS_SCHEMA_RECORDS_H_
