#include <zlib.h>

#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <vector>

#include "archive/expansion.h"
#include "archive/formats.h"

namespace KelIFC::archive {
namespace {

constexpr std::size_t kGzipBlock = std::size_t{64} * 1024;
constexpr int kGzipOnly = 16;  // added to the window bits: zlib then accepts the gzip form alone

// A zlib stream that expands gzip members.
class Inflater {
 public:
  Inflater() {
    if (inflateInit2(&stream, MAX_WBITS + kGzipOnly) != Z_OK) throw std::bad_alloc();
  }
  ~Inflater() { inflateEnd(&stream); }
  Inflater(const Inflater&) = delete;
  Inflater& operator=(const Inflater&) = delete;

  void SetInput(char* data, std::size_t size) {
    stream.next_in = reinterpret_cast<Bytef*>(data);
    stream.avail_in = static_cast<uInt>(size);
  }
  bool HasInput() const { return stream.avail_in != 0; }

  // True if the remaining input can begin another member. Other bytes after a member are padding.
  bool BeginsMember() const { return stream.avail_in != 0 && *stream.next_in == 0x1f; }

  // True while a member has begun and has not ended.
  bool IsInMember() const { return isInMember; }
  void BeginMember() {
    inflateReset(&stream);
    isInMember = true;
  }

  // Expands the input into `expansion` up to the end of the input or of the member.
  void Expand(Expansion& expansion) {
    while (isInMember) {
      stream.next_out = reinterpret_cast<Bytef*>(block.data());
      stream.avail_out = static_cast<uInt>(block.size());
      const int status = inflate(&stream, Z_NO_FLUSH);
      if (status != Z_OK && status != Z_STREAM_END && status != Z_BUF_ERROR) {
        throw ArchiveError("the archive is damaged");
      }
      isInMember = status != Z_STREAM_END;
      expansion.Write(block.data(), block.size() - stream.avail_out);
      if (stream.avail_in == 0 && stream.avail_out != 0) return;
    }
  }

 private:
  z_stream stream = {};
  std::vector<char> block = std::vector<char>(kGzipBlock);
  bool isInMember = true;
};

}  // namespace

void ExpandGzip(const std::string& path, std::ostream& out, const ExpansionLimits& limits) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::system_error(errno, std::generic_category(), "the file cannot be opened");
  Expansion expansion(out, limits, std::filesystem::file_size(path));
  Inflater inflater;
  std::vector<char> input(kGzipBlock);
  bool isPadding = false;
  while (!isPadding && file) {
    file.read(input.data(), static_cast<std::streamsize>(input.size()));
    if (file.bad())
      throw std::system_error(errno, std::generic_category(), "the file cannot be read");
    inflater.SetInput(input.data(), static_cast<std::size_t>(file.gcount()));
    while (inflater.HasInput() && !isPadding) {
      if (!inflater.IsInMember()) {
        isPadding = !inflater.BeginsMember();
        if (isPadding) break;
        inflater.BeginMember();
      }
      inflater.Expand(expansion);
    }
  }
  if (inflater.IsInMember()) throw ArchiveError("the archive ends too early");
  expansion.Finish();
}

}  // namespace KelIFC::archive
