#ifndef KELIFC_TESTS_CORE_PROBE_H_
#define KELIFC_TESTS_CORE_PROBE_H_

#include <string>

#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/unknown.h"

namespace KelIFC {

/// An instance that counts the objects of its class and writes itself as `PROBE(n)`.
class Probe : public IfcUnknown {
 public:
  explicit Probe(int number = 0) : number(number) { ++alive; }
  Probe(const Probe& other) : IfcUnknown(other), number(other.number) { ++alive; }
  ~Probe() override { --alive; }

  const char* GetStepName() const override { return "Probe"; }
  const char* Parse(const char* text) override { return IfcUnknown::Parse(text); }
  std::ostream& Write(std::ostream& out) const override {
    IfcUnknown::Write(out);
    detail::PutText(out, std::to_string(number) + ")");
    return out;
  }

  inline static int alive = 0;

 private:
  int number;
};

}  // namespace KelIFC

#endif  // KELIFC_TESTS_CORE_PROBE_H_
