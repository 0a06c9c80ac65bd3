#ifndef EXPORT_VIEW_CONTAINER_H_
#define EXPORT_VIEW_CONTAINER_H_

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "export/view/byte_sink.h"
#include "export/view/description.h"

namespace KelIFC::exporting {

/// An array of a container. It refers to the numbers, which the caller keeps.
struct ContainerArray {
  std::string_view name;  ///< such as "positions"
  std::variant<std::span<const float>, std::span<const std::uint32_t>> numbers;
};

/// Where a container has these arrays. Each offset is a multiple of 8.
std::vector<ArrayPlace> PlacesOf(const std::vector<ContainerArray>& arrays);

/// Writes a container, which viewer/data.md defines: the description, then the arrays at the places
/// that PlacesOf returns. A float that is not finite is written as 0. `progress` is called with the
/// finished share, from 0 to 1. Throws ExportError if the description has 4 GiB or more.
void WriteContainer(std::string_view description, const std::vector<ContainerArray>& arrays,
                    const ByteSink& sink, const std::function<void(double)>& progress);

}  // namespace KelIFC::exporting

#endif  // EXPORT_VIEW_CONTAINER_H_
