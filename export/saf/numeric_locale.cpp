#include "export/saf/numeric_locale.h"

#include <locale.h>  // NOLINT(modernize-deprecated-headers): it declares uselocale

#include <clocale>

namespace KelIFC::exporting::saf {

struct NumericLocale::State {
  locale_t previous = uselocale(nullptr);
  locale_t current = newlocale(LC_ALL_MASK, "C", nullptr);
};

NumericLocale::NumericLocale() : state(std::make_unique<State>()) {
  if (state->current) uselocale(state->current);
}

NumericLocale::~NumericLocale() {
  uselocale(state->previous);
  if (state->current) freelocale(state->current);
}

}  // namespace KelIFC::exporting::saf
