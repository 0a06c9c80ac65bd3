#ifndef KELIFC_SERVER_MODEL_SOURCE_H_
#define KELIFC_SERVER_MODEL_SOURCE_H_

#include <cstddef>
#include <cstdint>
#include <istream>
#include <memory>
#include <string>

#include "kelifc/platform/temporary_file.h"

namespace KelIFC {

/// Where the bytes of a model come from. A load reads them twice.
class ModelSource {
 public:
  virtual ~ModelSource() = default;
  ModelSource(const ModelSource&) = delete;
  ModelSource& operator=(const ModelSource&) = delete;

  /// The number of bytes, as far as it is known.
  virtual std::uint64_t GetSize() const = 0;

  /// A stream over the bytes, from the first one on; null if they cannot be read. Its seekg sets a
  /// position that is counted from the first byte.
  virtual std::unique_ptr<std::istream> Open() const = 0;

 protected:
  ModelSource() = default;
};

/// An ordinary file.
class FileSource : public ModelSource {
 public:
  explicit FileSource(std::string file) : path(std::move(file)) {}
  std::uint64_t GetSize() const override;
  std::unique_ptr<std::istream> Open() const override;

 private:
  std::string path;
};

/// A block of memory, which must outlive the source and its streams.
class MemorySource : public ModelSource {
 public:
  MemorySource(const void* block, std::size_t count)
      : data(static_cast<const char*>(block)), size(count) {}
  std::uint64_t GetSize() const override { return size; }
  std::unique_ptr<std::istream> Open() const override;

 private:
  const char* data;
  std::size_t size;
};

/// A copy of a block of memory.
class CopiedSource : public ModelSource {
 public:
  CopiedSource(const void* block, std::size_t count)
      : bytes(static_cast<const char*>(block), count) {}
  std::uint64_t GetSize() const override { return bytes.size(); }
  std::unique_ptr<std::istream> Open() const override;

 private:
  std::string bytes;
};

/// A copy of the rest of a stream, in a temporary file.
class SpooledSource : public ModelSource {
 public:
  /// The result of the copy.
  enum class State {
    kWhole,
    kTooLong,  ///< the stream has more bytes than were allowed
    kFailed,   ///< the stream cannot be read, or the file cannot be written
  };

  /// Copies the stream. At most `mostBytes` are copied.
  SpooledSource(std::istream& in, std::uint64_t mostBytes);

  State GetState() const { return state; }
  std::uint64_t GetSize() const override { return size; }
  std::unique_ptr<std::istream> Open() const override;

 private:
  State Copy(std::istream& in, std::uint64_t mostBytes);

  TemporaryFile file;
  std::uint64_t size = 0;
  State state;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_MODEL_SOURCE_H_
