#include <zip.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

#include "archive/expansion.h"
#include "archive/formats.h"

namespace KelIFC::archive {
namespace {

constexpr std::size_t kZipBlock = std::size_t{64} * 1024;

struct ArchiveCloser {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, ArchiveCloser>;

struct MemberCloser {
  void operator()(zip_file_t* member) const { zip_fclose(member); }
};
using Member = std::unique_ptr<zip_file_t, MemberCloser>;

Archive Open(const std::string& path) {
  int code = ZIP_ER_OK;
  Archive archive(zip_open(path.c_str(), ZIP_RDONLY, &code));
  if (archive != nullptr) return archive;
  zip_error_t error;
  zip_error_init_with_code(&error, code);
  const int systemCode =
      zip_error_system_type(&error) == ZIP_ET_SYS ? zip_error_code_system(&error) : 0;
  zip_error_fini(&error);
  if (systemCode != 0) {
    throw std::system_error(systemCode, std::generic_category(), "the file cannot be opened");
  }
  throw ArchiveError("the archive is damaged");
}

bool EndsWith(std::string_view name, std::string_view ending) {
  if (name.size() < ending.size()) return false;
  name.remove_prefix(name.size() - ending.size());
  return std::equal(name.begin(), name.end(), ending.begin(), [](char found, char wanted) {
    return (found >= 'A' && found <= 'Z' ? found - 'A' + 'a' : found) == wanted;
  });
}

// What is said of an archive without a model, by the ending of a member that it has instead.
struct Refusal {
  std::string_view ending;
  const char* reason;
};
constexpr std::array kRefusals = {
    Refusal{".ifcxml", "the archive holds a model in XML, which is not read"},
    Refusal{".ifczip", "the archive holds another archive"},
    Refusal{".zip", "the archive holds another archive"},
    Refusal{".gz", "the archive holds another archive"},
};

// The member that is the model. Throws ArchiveError if there is none.
zip_uint64_t FindModel(zip_t& archive) {
  const char* reason = "the archive holds no .ifc file";
  const zip_int64_t count = zip_get_num_entries(&archive, 0);
  bool isRefused = false;
  for (zip_int64_t i = 0; i < count; ++i) {
    const char* name = zip_get_name(&archive, static_cast<zip_uint64_t>(i), ZIP_FL_ENC_RAW);
    if (name == nullptr) continue;
    if (EndsWith(name, ".ifc")) return static_cast<zip_uint64_t>(i);
    for (const Refusal& refusal : kRefusals) {
      if (isRefused || !EndsWith(name, refusal.ending)) continue;
      reason = refusal.reason;
      isRefused = true;
    }
  }
  throw ArchiveError(reason);
}

// The packed size of a member that can be expanded. Throws ArchiveError if it is encrypted.
std::uint64_t CheckMember(zip_t& archive, zip_uint64_t index) {
  zip_stat_t facts;
  if (zip_stat_index(&archive, index, 0, &facts) != 0) throw ArchiveError("the archive is damaged");
  if ((facts.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && facts.encryption_method != ZIP_EM_NONE) {
    throw ArchiveError("the archive is encrypted");
  }
  return (facts.valid & ZIP_STAT_COMP_SIZE) != 0 ? facts.comp_size : 0;
}

}  // namespace

void ExpandZip(const std::string& path, std::ostream& out, const ExpansionLimits& limits) {
  const Archive archive = Open(path);
  const zip_uint64_t index = FindModel(*archive);
  Expansion expansion(out, limits, CheckMember(*archive, index));
  const Member member(zip_fopen_index(archive.get(), index, 0));
  if (member == nullptr) {
    throw ArchiveError(std::string("the archive cannot be expanded: ") +
                       zip_strerror(archive.get()));
  }
  std::vector<char> block(kZipBlock);
  zip_int64_t count = 0;
  while ((count = zip_fread(member.get(), block.data(), block.size())) > 0) {
    expansion.Write(block.data(), static_cast<std::size_t>(count));
  }
  if (count < 0) throw ArchiveError("the archive is damaged");
  expansion.Finish();
}

}  // namespace KelIFC::archive
