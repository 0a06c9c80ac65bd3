#include "export/view/gzip.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <new>
#include <utility>

namespace KelIFC::exporting {
namespace {

constexpr int kGzipWindow = 15 + 16;  // the largest window, and the format of gzip
constexpr int kMemoryLevel = 8;       // zlib's default
constexpr int kUnknownSystem = 255;   // the header does not name the system
constexpr std::size_t kOutputSize = 1 << 16;

class GzipFilter : public ByteFilter {
 public:
  explicit GzipFilter(ByteSink sink) : sink(std::move(sink)) {
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, kGzipWindow, kMemoryLevel,
                     Z_DEFAULT_STRATEGY) != Z_OK) {
      throw std::bad_alloc();
    }
    header.os = kUnknownSystem;
    deflateSetHeader(&stream, &header);
  }
  ~GzipFilter() override { deflateEnd(&stream); }
  GzipFilter(const GzipFilter&) = delete;
  GzipFilter& operator=(const GzipFilter&) = delete;

  void Write(std::string_view bytes) override {
    constexpr std::size_t kMost = std::numeric_limits<uInt>::max();
    while (!bytes.empty()) {
      const std::size_t size = std::min(kMost, bytes.size());
      Run(bytes.substr(0, size), Z_NO_FLUSH);
      bytes.remove_prefix(size);
    }
  }

  void Finish() override { Run({}, Z_FINISH); }

 private:
  // zlib does not write to its input, but takes it as not const.
  void Run(std::string_view bytes, int flush) {
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    do {
      stream.next_out = reinterpret_cast<Bytef*>(output.data());
      stream.avail_out = static_cast<uInt>(output.size());
      deflate(&stream, flush);
      const std::size_t size = output.size() - stream.avail_out;
      if (size > 0) sink({output.data(), size});
    } while (stream.avail_out == 0);
  }

  ByteSink sink;
  z_stream stream = {};
  gz_header header = {};
  std::array<char, kOutputSize> output = {};
};

}  // namespace

std::unique_ptr<ByteFilter> MakeGzip(const ByteSink& sink) {
  return std::make_unique<GzipFilter>(sink);
}

}  // namespace KelIFC::exporting
