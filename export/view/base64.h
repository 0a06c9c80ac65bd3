#ifndef EXPORT_VIEW_BASE64_H_
#define EXPORT_VIEW_BASE64_H_

#include <cstddef>
#include <string>
#include <string_view>

#include "export/view/byte_sink.h"

namespace KelIFC::exporting {

/// Writes bytes as base64 (RFC 4648, with padding) on one line.
class Base64Writer : public ByteFilter {
 public:
  /// Writes the text to `sink`.
  explicit Base64Writer(ByteSink sink);

  void Write(std::string_view bytes) override;
  void Finish() override;

 private:
  ByteSink sink;
  std::string rest;  // fewer than three bytes, which wait for the next ones
  std::string text;
};

}  // namespace KelIFC::exporting

#endif  // EXPORT_VIEW_BASE64_H_
