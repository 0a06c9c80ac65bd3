#ifndef EXPORT_VIEW_PAGE_TEMPLATE_H_
#define EXPORT_VIEW_PAGE_TEMPLATE_H_

#include <string_view>
#include <vector>

namespace KelIFC::exporting {

/// The page without its data. The texts live as long as the program.
struct PageTemplate {
  std::vector<std::string_view> head;  ///< the parts before the data
  std::vector<std::string_view> tail;  ///< the parts after the data
};

/// True if this build holds the page.
bool HasPageTemplate();

/// The page that the build made of the sources in the folder viewer; empty if it made none.
PageTemplate GetPageTemplate();

}  // namespace KelIFC::exporting

#endif  // EXPORT_VIEW_PAGE_TEMPLATE_H_
