#ifndef EXPORT_VIEW_GZIP_H_
#define EXPORT_VIEW_GZIP_H_

#include <memory>

#include "export/view/byte_sink.h"

namespace KelIFC::exporting {

/// Returns a filter that writes its bytes as one gzip stream (RFC 1952) to `sink`. The header holds
/// neither a time nor a name, so equal bytes give an equal stream. Returns null if this build has
/// no zlib. Throws std::bad_alloc.
std::unique_ptr<ByteFilter> MakeGzip(const ByteSink& sink);

}  // namespace KelIFC::exporting

#endif  // EXPORT_VIEW_GZIP_H_
