#ifndef KELIFC_SERVER_FILE_OUTPUT_H_
#define KELIFC_SERVER_FILE_OUTPUT_H_

#include <fstream>
#include <memory>
#include <ostream>
#include <streambuf>
#include <string>

namespace KelIFC {

/// A text file for writing, as an output stream with a large buffer. Instances write many short
/// pieces; the stream passes them to the system in blocks of some hundred kilobytes.
///
/// The stream does not use the process locale, and its line ends are those of the platform.
class FileOutput {
 public:
  /// Creates the file, or empties an existing one.
  explicit FileOutput(const std::string& name);
  ~FileOutput();
  FileOutput(const FileOutput&) = delete;
  FileOutput& operator=(const FileOutput&) = delete;

  /// Returns true if the file was created.
  bool IsOpen() const { return buffer.file.is_open(); }

  std::ostream& GetStream() { return stream; }

  /// Writes the rest of the buffer and closes the file. Returns false if any byte of the file could
  /// not be written.
  bool Close();

  /// Returns the system's text for the first failure; "" if there was none, or if the system has no
  /// text.
  std::string GetFailure() const;

 private:
  // Collects text and writes it to the file in blocks.
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
