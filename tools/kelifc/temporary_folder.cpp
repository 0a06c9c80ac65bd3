#include "tools/kelifc/temporary_folder.h"

#include <cerrno>
#include <random>
#include <system_error>

namespace command {
namespace {

namespace fs = std::filesystem;

fs::path MakeFolder() {
  constexpr int kTries = 16;
  std::random_device random;
  for (int i = 0; i < kTries; ++i) {
    fs::path path = fs::temp_directory_path() /
                    ("kelifc-" + std::to_string(random()) + "-" + std::to_string(random()));
    if (!fs::create_directory(path)) continue;  // somebody else has it
    fs::permissions(path, fs::perms::owner_all);
    return path;
  }
  throw std::system_error(EEXIST, std::generic_category(), "no temporary folder can be created");
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path(MakeFolder()) {}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;  // the folder may be gone already
  fs::remove_all(path, ignored);
}

}  // namespace command
