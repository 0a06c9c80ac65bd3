#include "archive/packed_model.h"

#include <fstream>

#include "archive/formats.h"

namespace KelIFC::archive {
namespace {

constexpr std::string_view kGzipStart = "\x1f\x8b";
constexpr std::string_view kZipMember("PK\x03\x04", 4);
constexpr std::string_view kEmptyZip("PK\x05\x06", 4);

bool BeginsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

}  // namespace

Packing DetectPacking(std::string_view start) {
  if (BeginsWith(start, kGzipStart)) return Packing::kGzip;
  if (BeginsWith(start, kZipMember) || BeginsWith(start, kEmptyZip)) return Packing::kZip;
  return Packing::kNone;
}

Packing DetectFilePacking(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  char start[kPackingBytes] = {};
  file.read(start, sizeof start);
  return DetectPacking({start, static_cast<std::size_t>(file.gcount())});
}

void ExpandModel(const std::string& path, std::ostream& out, const ExpansionLimits& limits) {
  switch (DetectFilePacking(path)) {
    case Packing::kGzip:
      ExpandGzip(path, out, limits);
      return;
    case Packing::kZip:
      ExpandZip(path, out, limits);
      return;
    case Packing::kNone:
      break;
  }
  throw ArchiveError("the file is no archive");
}

}  // namespace KelIFC::archive
