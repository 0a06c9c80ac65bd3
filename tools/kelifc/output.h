#ifndef TOOLS_KELIFC_OUTPUT_H_
#define TOOLS_KELIFC_OUTPUT_H_

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace command {

/// A file to write, standard output if the path is empty, or a text in memory. All functions throw
/// Failure with Status::kFile if the text cannot be written, for example because the disk is full.
class Output {
 public:
  /// Creates the file.
  explicit Output(const std::string& path);

  /// Appends to `text`, which must outlive the output. This never fails.
  explicit Output(std::string& text);

  /// Closes the file. What was not written by Close may be lost.
  ~Output();
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  void Write(std::string_view text) {
    if (text.size() > kBlockSize - used) return WriteBlocks(text);
    text.copy(block.get() + used, text.size());
    used += text.size();
  }

  /// Writes what is left. It is called once, at the end.
  void Close();

 private:
  static constexpr std::size_t kBlockSize = std::size_t{1} << 16;

  void WriteBlocks(std::string_view text);
  void Flush();
  void Put(std::string_view text);

  std::string name;
  std::FILE* file;                // null after Close, and for a text
  std::string* target = nullptr;  // null for a file
  bool isStandard;
  std::unique_ptr<char[]> block{new char[kBlockSize]};  // what is not written yet
  std::size_t used = 0;
};

/// Writes `text` to the file at `path`, or to standard output if `path` is empty.
void WriteOutput(const std::string& path, std::string_view text);

}  // namespace command

#endif  // TOOLS_KELIFC_OUTPUT_H_
