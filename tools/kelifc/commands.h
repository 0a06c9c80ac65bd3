#ifndef TOOLS_KELIFC_COMMANDS_H_
#define TOOLS_KELIFC_COMMANDS_H_

#include <string>

namespace command {

// The three commands. Each does its work or throws Failure; paths are as the user gave them.

struct StructureOptions {
  std::string model;
  std::string output;  ///< empty for standard output
  bool json = false;
};

/// Converts the model and prints its building structure.
void RunStructure(const StructureOptions& options);

struct InfoOptions {
  std::string model;
  bool json = false;
};

/// Prints what the model holds: release, schema, and how many instances of each class.
void RunInfo(const InfoOptions& options);

struct SaveOptions {
  std::string model;
  std::string output;
};

/// Loads the model and writes it back.
void RunSave(const SaveOptions& options);

}  // namespace command

#endif  // TOOLS_KELIFC_COMMANDS_H_
