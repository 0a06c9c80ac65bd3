#ifndef KELIFC_CORE_TEXT_WRITE_TOLERANCE_H_
#define KELIFC_CORE_TEXT_WRITE_TOLERANCE_H_

namespace KelIFC {

/// The write tolerance: a number is written as "0." if its absolute value is not above the
/// tolerance. It is valid for the entire process, and 0.001 until it is set.
double GetWriteTolerance();
void SetWriteTolerance(double tolerance);

}  // namespace KelIFC

#endif  // KELIFC_CORE_TEXT_WRITE_TOLERANCE_H_
