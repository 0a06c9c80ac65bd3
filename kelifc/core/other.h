#ifndef KELIFC_CORE_OTHER_H_
#define KELIFC_CORE_OTHER_H_

#include <string>
#include <string_view>

#include "kelifc/core/statement_view.h"
#include "kelifc/core/text_attribute.h"
#include "kelifc/core/unknown.h"

namespace KelIFC {

/// An entity that the release does not know. It keeps its name and the raw text of its attributes,
/// and writes them unchanged. GetStepName returns "IfcUnknown".
class KELIFC_API IfcOther : public IfcUnknown {
 public:
  IfcOther() = default;
  IfcOther(const IfcOther&) = default;
  IfcOther& operator=(const IfcOther&) = default;
  ~IfcOther() override;

  /// Appends the text between the first `(` and the last `)` to the attribute text. Returns the
  /// position after the `(`, or null if there is none.
  const char* Parse(const char* text) override;
  /// Writes the name in upper case, `(` and the attribute text.
  std::ostream& Write(std::ostream& out) const override;

  /// Returns the entity name as the file has it.
  const std::string& GetStepEntityName() const { return stepEntityName; }
  /// Sets the entity name. Null sets an empty name.
  void SetStepEntityName(const char* name);

  /// The attributes by their positions. Linear in the length of the statement.
  StatementView GetAttributes() const { return StatementView(attributeText.GetText()); }

 private:
  void Append(std::string_view text);

  std::string stepEntityName;
  TextAttribute attributeText;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_OTHER_H_
