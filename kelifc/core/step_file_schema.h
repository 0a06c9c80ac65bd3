#ifndef KELIFC_CORE_STEP_FILE_SCHEMA_H_
#define KELIFC_CORE_STEP_FILE_SCHEMA_H_

#include "kelifc/core/string.h"
#include "kelifc/core/unknown.h"

namespace KelIFC {

/// The FILE_SCHEMA record in the header of a file. It is only read; a save writes the header as
/// text.
class KELIFC_API StepFileSchema : public IfcUnknown {
 public:
  StepFileSchema() = default;
  StepFileSchema(const StepFileSchema&) = default;
  StepFileSchema& operator=(const StepFileSchema&) = default;
  ~StepFileSchema() override;

  static const char* GetItemName();
  const char* GetStepName() const override;

  /// Parses the first name of the list, at whatever position its quote is. Further names are
  /// ignored.
  const char* Parse(const char* text) override;

  /// Returns the name of the schema, such as IFC2X3.
  STRING GetProtocol() const { return protocol; }

 private:
  STRING protocol;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_STEP_FILE_SCHEMA_H_
