#ifndef TESTS_EXAMPLES_EXAMPLE_PROGRAM_H_
#define TESTS_EXAMPLES_EXAMPLE_PROGRAM_H_

#include <string>
#include <vector>

#include "tests/command/process.h"

namespace command_test {

/// Runs a program of `examples` in the folder of the shipped models.
inline Outcome RunExample(const std::string& name, const std::vector<std::string>& arguments) {
  return Run(std::string(KELIFC_EXAMPLE_PROGRAMS) + "/" + name, arguments);
}

}  // namespace command_test

#endif  // TESTS_EXAMPLES_EXAMPLE_PROGRAM_H_
