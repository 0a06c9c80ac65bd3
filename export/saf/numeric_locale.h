#ifndef EXPORT_SAF_NUMERIC_LOCALE_H_
#define EXPORT_SAF_NUMERIC_LOCALE_H_

#include <memory>

namespace KelIFC::exporting::saf {

/// While it exists, the C library formats the numbers of this thread with a decimal point, whatever
/// locale the host has set. libxlsxwriter formats numbers by the C library.
class NumericLocale {
 public:
  NumericLocale();
  ~NumericLocale();
  NumericLocale(const NumericLocale&) = delete;
  NumericLocale& operator=(const NumericLocale&) = delete;

 private:
  struct State;
  std::unique_ptr<State> state;
};

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_NUMERIC_LOCALE_H_
