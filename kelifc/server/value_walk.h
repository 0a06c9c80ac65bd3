#ifndef KELIFC_SERVER_VALUE_WALK_H_
#define KELIFC_SERVER_VALUE_WALK_H_

#include <cstddef>
#include <cstdint>
#include <string>

#include "kelifc/server/load_options.h"

namespace KelIFC {

/// How a value is written in a file.
enum class ValueForm : std::uint8_t {
  kOmitted,      ///< `$` or `*`
  kText,         ///< `'text'`
  kInteger,      ///< digits, with or without a sign
  kReal,         ///< a number with a point or an exponent
  kEnumeration,  ///< `.TEXT.`, truth values included
  kBinary,       ///< `"0A"`
  kReference,    ///< `#15`
  kTyped,        ///< a name, before the parentheses of its value
  kList,         ///< the opening parenthesis of a list
  kNone,         ///< nothing, or a text that begins no value
};

/// A value in a statement.
struct FoundValue {
  const char* at = nullptr;  ///< its first character
  ValueForm form = ValueForm::kNone;
  std::size_t number = 0;     ///< of a reference: the instance that it refers to
  std::size_t attribute = 0;  ///< the position of the attribute that holds it, from 1
  std::size_t depth = 0;      ///< 1 for the attributes themselves; more in lists and typed values
};

/// Finds the values in the text of a statement, in their order. A list is found before its
/// elements, and a typed value before what is in its parentheses. An empty list has one element of
/// the form kNone.
class ValueWalk {
 public:
  /// [text, end) is the right side of a statement as the file has it, in the notation of a dialect,
  /// with a NUL at `end`. It must outlive the walk.
  ValueWalk(const char* text, const char* end, STEP_DIALECT dialect)
      : at(text), limit(end), notation(dialect) {}

  /// Moves to the next value. Returns false if there is none.
  bool Next(FoundValue& found);

 private:
  void SkipValue(ValueForm form);
  const char* EndOfString() const;

  const char* at;
  const char* limit;
  STEP_DIALECT notation;
  std::size_t depth = 0;
  std::size_t attribute = 1;
  bool isAtValue = false;  // a value begins at the cursor, after any blanks
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_VALUE_WALK_H_
