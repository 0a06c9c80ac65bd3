#ifndef KELIFC_SERVER_FILE_OUTPUT_H_
#define KELIFC_SERVER_FILE_OUTPUT_H_

#include <fstream>
#include <memory>
#include <ostream>
#include <streambuf>
#include <string>

namespace KelIFC {

/// A text file that is being written, as an output stream with a large buffer. Instances write
/// themselves in many short pieces, which reach the system some hundred kilobytes at a time.
///
/// The stream is free of the process locale, and its line ends are those of the platform.
class FileOutput {
 public:
  /// Creates the file, or empties the one that is there.
  /// `mode` may add std::ios::binary: line ends are then written as they are.
  explicit FileOutput(const std::string& name, std::ios::openmode mode = {});
  ~FileOutput();
  FileOutput(const FileOutput&) = delete;
  FileOutput& operator=(const FileOutput&) = delete;

  /// True if the file could be created.
  bool IsOpen() const { return buffer.file.is_open(); }

  std::ostream& GetStream() { return stream; }

  /// Writes out what is left and closes the file. False if any byte of it could not be written.
  bool Close();

  /// What the system says of the first failure; "" if there was none, or if it says nothing.
  std::string GetFailure() const;

 private:
  // Gathers text and hands it to the file in blocks.
  class Buffer : public std::streambuf {
   public:
    Buffer();
    bool Flush();
    bool CloseFile();

    std::filebuf file;
    int failure = 0;  // errno of the first one

   protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize count) override;
    int sync() override;

   private:
    bool Put(const char* text, std::streamsize count);
    bool Note(bool success);

    std::unique_ptr<char[]> block;
  };

  Buffer buffer;
  std::ostream stream;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_FILE_OUTPUT_H_
