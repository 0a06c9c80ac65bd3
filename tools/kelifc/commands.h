#ifndef TOOLS_KELIFC_COMMANDS_H_
#define TOOLS_KELIFC_COMMANDS_H_

#include <string>

namespace command {

// The three subcommands. A function that fails throws Failure. Paths are as the user gave them.

struct StructureOptions {
  std::string model;
  std::string output;  ///< a path; empty means standard output
  bool json = false;
};

/// Converts the model and prints the structure.
void RunStructure(const StructureOptions& options);

struct InfoOptions {
  std::string model;
  bool json = false;
};

/// Prints the release of the model, its schema string, and the number of instances of each class.
void RunInfo(const InfoOptions& options);

struct SaveOptions {
  std::string model;
  std::string output;
};

/// Loads the model and writes it to `output`.
void RunSave(const SaveOptions& options);

}  // namespace command

#endif  // TOOLS_KELIFC_COMMANDS_H_
