#include "bench/model.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace bench {

const std::string& GetModelPath() {
  static const std::string path = [] {
    const char* own = std::getenv("KELIFC_BENCH_MODEL");
    return std::string(own == nullptr ? KELIFC_BENCH_MODEL : own);
  }();
  return path;
}

std::int64_t GetModelSize() {
  std::error_code error;
  return static_cast<std::int64_t>(std::filesystem::file_size(GetModelPath(), error));
}

void LoadModel(KelIFC::IfcServer& server) {
  if (server.LoadIfcFile(GetModelPath().c_str()) == 0) return;
  std::fprintf(stderr, "%s: no model that can be loaded\n", GetModelPath().c_str());
  std::exit(1);
}

KelIFC::IfcServer& GetLoadedServer() {
  static KelIFC::IfcServer server;
  if (server.GetItems().empty()) LoadModel(server);
  return server;
}

}  // namespace bench
