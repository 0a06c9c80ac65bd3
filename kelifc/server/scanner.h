#ifndef KELIFC_SERVER_SCANNER_H_
#define KELIFC_SERVER_SCANNER_H_

#include "kelifc/server/classic_rules.h"
#include "kelifc/server/iso_rules.h"

namespace KelIFC {

/// Cuts the text of a STEP file into statements. It knows comments, line ends, quoted strings and
/// the `;` that ends a statement, and nothing else. `Rules` are the rules of a dialect. The file
/// streams through one buffer, and each statement is returned without a copy.
template <class Rules>
class BasicScanner : public Rules {
 public:
  using Rules::Rules;

  /// Returns the next statement without its `;`, or null at the end of the input. The text ends
  /// with a NUL and is valid until the next call. The caller may write to it.
  char* Next() {
    this->Begin();
    if (char* statement = this->TakePlain()) return statement;
    while (this->FindMark()) {
      if (char* statement = this->TakeMark()) return statement;
    }
    this->TakeEnd();
    return nullptr;
  }
};

/// The scanner of the classic dialect.
using Scanner = BasicScanner<ClassicRules>;

/// The scanner of the dialect of ISO 10303-21.
using IsoScanner = BasicScanner<IsoRules>;

}  // namespace KelIFC

#endif  // KELIFC_SERVER_SCANNER_H_
