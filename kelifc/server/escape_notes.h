#ifndef KELIFC_SERVER_ESCAPE_NOTES_H_
#define KELIFC_SERVER_ESCAPE_NOTES_H_

#include <cstddef>

#include "kelifc/core/text/iso_text.h"
#include "kelifc/server/load_findings.h"
#include "kelifc/server/scan_buffer.h"

namespace KelIFC {

/// Notes the bad escapes of the last statement that a scanner returned.
class EscapeNotes : public BadEscapeSink {
 public:
  /// Nothing is noted if `target` is null. All parameters must outlive the object.
  EscapeNotes(const ScanBuffer& source, LoadFindings* target, const std::size_t& statementNumber)
      : scanner(source), findings(target), number(statementNumber) {}

  void NoteBadEscape(const char* escape) override {
    if (findings == nullptr) return;
    const auto offset = static_cast<std::size_t>(escape - scanner.GetText());
    findings->Note(LoadFinding::kBadEscape, scanner.GetPlace(offset), {number, "", 0});
  }

 private:
  const ScanBuffer& scanner;
  LoadFindings* findings;
  const std::size_t& number;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_ESCAPE_NOTES_H_
