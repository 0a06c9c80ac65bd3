#ifndef KELIFC_CORE_TEXT_WRITE_TOLERANCE_H_
#define KELIFC_CORE_TEXT_WRITE_TOLERANCE_H_

namespace KelIFC {

/// A number whose absolute value is not above this one is written as "0.". It holds for the whole
/// process and is 0.001 until it is set.
double GetWriteTolerance();
void SetWriteTolerance(double tolerance);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_WRITE_TOLERANCE_H_
