#ifndef KELIFC_SERVER_REPLACED_IDS_H_
#define KELIFC_SERVER_REPLACED_IDS_H_

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace KelIFC {

// An instance whose global identifier does not decode gets a new random one when its statement is
// read. A faithful save reads the statement again, and must then get the same identifier.

/// The new identifiers, in the order in which they were made, by the number of the statement.
using ReplacedIds = std::unordered_map<std::size_t, std::vector<std::string>>;

/// Makes the identifiers for those that do not decode, for the thread that creates it, as long as
/// it lives. The one that was created last counts.
class IdReplacement {
 public:
  IdReplacement();
  virtual ~IdReplacement();
  IdReplacement(const IdReplacement&) = delete;
  IdReplacement& operator=(const IdReplacement&) = delete;

  /// Returns an identifier of 22 characters for one that does not decode: what the current
  /// IdReplacement of the thread makes, otherwise a new one.
  static std::string Make();

 private:
  virtual std::string MakeNext() = 0;

  IdReplacement* outer;
};

/// Notes the identifiers that a load makes.
class IdRecorder : public IdReplacement {
 public:
  /// Adds to `target`. `number` is that of the statement that is being read. Both must outlive the
  /// recorder.
  IdRecorder(ReplacedIds& target, const std::size_t& number) : ids(target), statement(number) {}

 private:
  std::string MakeNext() override;

  ReplacedIds& ids;
  const std::size_t& statement;
};

/// Makes the identifiers that the load made for one statement.
class IdReplay : public IdReplacement {
 public:
  /// `noted` must outlive the replay.
  IdReplay(const ReplacedIds& noted, std::size_t number) : ids(noted), statement(number) {}

 private:
  std::string MakeNext() override;

  const ReplacedIds& ids;
  std::size_t statement;
  std::size_t count = 0;  // so many were made
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_REPLACED_IDS_H_
