#include "kelifc/server/model_source.h"

#include <fstream>
#include <ios>
#include <streambuf>
#include <vector>

#include "kelifc/platform/path.h"

namespace KelIFC {
namespace {

// A stream that reads bytes without a copy, from any position.
class MemoryStream : private std::streambuf, public std::istream {
 public:
  MemoryStream(const char* data, std::size_t size) : std::istream(this) {
    // The stream only reads, but std::streambuf needs a non-const pointer.
    char* const begin = const_cast<char*>(data);  // NOLINT(cppcoreguidelines-pro-type-const-cast)
    setg(begin, begin, begin + size);
  }

 private:
  // Only positions from the begin can be sought.
  std::streambuf::pos_type seekpos(std::streambuf::pos_type position,
                                   std::ios_base::openmode which) override {
    const std::streamoff offset = position;
    if ((which & std::ios_base::in) == 0 || offset < 0 || offset > egptr() - eback()) {
      return std::streambuf::pos_type(std::streamoff{-1});
    }
    setg(eback(), eback() + offset, egptr());
    return position;
  }
};

std::unique_ptr<std::istream> OpenFile(const std::string& path) {
  auto file = std::make_unique<std::ifstream>(path, std::ios::binary);
  if (!*file) return nullptr;
  return file;
}

}  // namespace

std::uint64_t FileSource::GetSize() const { return GetFileSize(path.c_str()); }
std::unique_ptr<std::istream> FileSource::Open() const { return OpenFile(path); }

std::unique_ptr<std::istream> MemorySource::Open() const {
  return std::make_unique<MemoryStream>(data, size);
}

std::unique_ptr<std::istream> CopiedSource::Open() const {
  return std::make_unique<MemoryStream>(bytes.data(), bytes.size());
}

SpooledSource::SpooledSource(std::istream& in, std::uint64_t mostBytes)
    : state(Copy(in, mostBytes)) {}

SpooledSource::State SpooledSource::Copy(std::istream& in, std::uint64_t mostBytes) {
  constexpr std::size_t kBlock = std::size_t{256} * 1024;
  std::ofstream copy(file.GetPath(), std::ios::binary);
  if (!copy || !in) return State::kFailed;
  std::vector<char> block(kBlock);
  while (in) {
    in.read(block.data(), static_cast<std::streamsize>(kBlock));
    const std::streamsize count = in.gcount();
    if (static_cast<std::uint64_t>(count) > mostBytes - size) return State::kTooLong;
    size += static_cast<std::uint64_t>(count);
    copy.write(block.data(), count);
  }
  return in.bad() || !copy.flush() ? State::kFailed : State::kWhole;
}

std::unique_ptr<std::istream> SpooledSource::Open() const { return OpenFile(file.GetPath()); }

}  // namespace KelIFC
