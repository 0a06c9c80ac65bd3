#ifndef EXPORT_VIEW_BYTE_SINK_H_
#define EXPORT_VIEW_BYTE_SINK_H_

#include <functional>
#include <string_view>

namespace KelIFC::exporting {

/// Takes the next bytes of a stream. The bytes are valid during the call only.
using ByteSink = std::function<void(std::string_view bytes)>;

/// A step of a stream: bytes go in and come out changed, at a sink.
class ByteFilter {
 public:
  ByteFilter() = default;
  virtual ~ByteFilter() = default;
  ByteFilter(const ByteFilter&) = delete;
  ByteFilter& operator=(const ByteFilter&) = delete;

  /// Takes the next bytes.
  virtual void Write(std::string_view bytes) = 0;

  /// Writes what is left to the sink. It is called once, at the end.
  virtual void Finish() = 0;
};

}  // namespace KelIFC::exporting

#endif  // EXPORT_VIEW_BYTE_SINK_H_
