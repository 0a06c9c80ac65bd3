#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include "kelifc/building/read_building.h"
#include "kelifc/model_access.h"
#include "kelifc/server/ifc_server.h"

#include "bench/conversion.h"

// Measures a load, a conversion, a complete reading, a save and a reset of one model, once each in
// a new process, as a host does it. Prints the processor time and the page faults of each in one
// line. The first line is the byte loop: it counts the `;` outside of quotes in the same file in
// memory, byte by byte. A time in byte loops depends little on the speed of the machine.

namespace {

void Require(bool success, const char* what) {
  if (success) return;
  std::fprintf(stderr, "%s failed\n", what);
  std::exit(1);
}

struct Usage {
  double seconds = 0.0;  // processor time of the program, and of the system for it
  long faults = 0;       // how often the system had to provide a page
};

Usage GetUsage() {
  rusage usage = {};
  getrusage(RUSAGE_SELF, &usage);
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
  };
  return {seconds(usage.ru_utime) + seconds(usage.ru_stime), usage.ru_minflt};
}

template <class Work>
void Measure(const char* name, Work work) {
  const Usage before = GetUsage();
  work();
  const Usage after = GetUsage();
  std::printf("%s %.4f %ld\n", name, after.seconds - before.seconds, after.faults - before.faults);
}

std::size_t CountStatements(const std::string& text) {
  std::size_t statements = 0;
  bool isQuoted = false;
  for (const char c : text) {
    if (c == '\'') isQuoted = !isQuoted;
    if (c == ';' && !isQuoted) ++statements;
  }
  return statements;
}

void MeasureLoop(const char* path) {
  std::ifstream file(path, std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  Measure("loop", [&text] { Require(CountStatements(text) > 0, "counting statements"); });
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "byte_loops MODEL.ifc SAVED.ifc\n");
    return 64;
  }
  MeasureLoop(argv[1]);
  const auto server = bench::MakeServer();
  KelIFC::IfcServer& model = *KelIFC::GetModel(server.Get());
  Measure("load", [&] { Require(model.LoadIfcFile(argv[1]) == 0, "load"); });
  Measure("conversion", [&] {
    const auto structure = bench::GetStructure(*server);
    Require(bench::ConvertAll(*structure) >= 0, "conversion");
  });
  Measure("building", [&] {
    Require(KelIFC::ReadBuilding(model).totals.products > 0, "reading the building");
  });
  Measure("save", [&] { Require(model.SaveIfcFile(argv[2]) == 0, "save"); });
  Measure("reset", [&] { model.Reset(); });
}
