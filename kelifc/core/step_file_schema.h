#ifndef KELIFC_CORE_STEP_FILE_SCHEMA_H_
#define KELIFC_CORE_STEP_FILE_SCHEMA_H_

#include "kelifc/core/string.h"
#include "kelifc/core/unknown.h"

namespace KelIFC {

/// The FILE_SCHEMA record of a file's header. It is read only: the header is written as text.
class KELIFC_API StepFileSchema : public IfcUnknown {
 public:
  StepFileSchema() = default;
  StepFileSchema(const StepFileSchema&) = default;
  StepFileSchema& operator=(const StepFileSchema&) = default;
  ~StepFileSchema() override;

  static const char* GetItemName();
  const char* GetStepName() const override;

  /// Reads the first name of the list, wherever its quote stands; further names are ignored.
  const char* Parse(const char* text) override;

  /// The name of the schema, such as IFC2X3.
  STRING GetProtocol() const { return protocol; }

 private:
  STRING protocol;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_STEP_FILE_SCHEMA_H_
