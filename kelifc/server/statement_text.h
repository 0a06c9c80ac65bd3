#ifndef KELIFC_SERVER_STATEMENT_TEXT_H_
#define KELIFC_SERVER_STATEMENT_TEXT_H_

#include <string>

#include "kelifc/platform/export.h"

namespace KelIFC {

class IfcUnknown;

/// Returns the statement of an instance as a save writes it in the dialect of the model, without a
/// line end: `#12=IFCDIRECTION((0.,0.,1.));`. Of an instance without a number it returns the right
/// side and the `;`.
KELIFC_API std::string FormatStatement(IfcUnknown& instance);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_STATEMENT_TEXT_H_
