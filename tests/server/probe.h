#ifndef TESTS_SERVER_PROBE_H_
#define TESTS_SERVER_PROBE_H_

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "kelifc/core/unknown.h"

namespace KelIFC {

/// An instance that adds its name to a list when it is destroyed.
class Probe : public IfcUnknown {
 public:
  using Ends = std::vector<std::string>;

  explicit Probe(std::string probeName = "", Ends* list = nullptr)
      : name(std::move(probeName)), ends(list) {}
  ~Probe() override {
    if (ends != nullptr) ends->push_back(name);
  }

  const char* GetStepName() const override { return "Probe"; }
  const char* Parse(const char* text) override { return IfcUnknown::Parse(text); }
  std::ostream& Write(std::ostream& out) const override { return IfcUnknown::Write(out) << name; }

 private:
  std::string name;
  Ends* ends;
};

}  // namespace KelIFC

#endif  // TESTS_SERVER_PROBE_H_
