#include "export/view/page_template.h"

namespace KelIFC::exporting {

bool HasPageTemplate() { return false; }

PageTemplate GetPageTemplate() { return {}; }

}  // namespace KelIFC::exporting
