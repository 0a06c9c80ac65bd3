#include "kelifc/server/file_output.h"

#include <cerrno>
#include <cstring>
#include <locale>
#include <system_error>

namespace KelIFC {
namespace {

constexpr std::streamsize kBlockSize = std::streamsize{512} * 1024;

}  // namespace

FileOutput::FileOutput(const std::string& name) : stream(&buffer) {
  stream.imbue(std::locale::classic());
  buffer.file.pubimbue(std::locale::classic());
  buffer.file.open(name, std::ios::out | std::ios::trunc);
}

FileOutput::~FileOutput() { Close(); }

bool FileOutput::Close() {
  if (!buffer.Flush()) stream.setstate(std::ios::badbit);
  if (IsOpen() && !buffer.CloseFile()) stream.setstate(std::ios::badbit);
  return stream.good();
}

std::string FileOutput::GetFailure() const {
  return buffer.failure == 0 ? std::string() : std::generic_category().message(buffer.failure);
}

FileOutput::Buffer::Buffer() : block(new char[kBlockSize]) {
  setp(block.get(), block.get() + kBlockSize);
}

bool FileOutput::Buffer::Flush() {
  const std::streamsize count = pptr() - pbase();
  setp(block.get(), block.get() + kBlockSize);
  return Put(block.get(), count);
}

bool FileOutput::Buffer::CloseFile() { return Note(file.close() != nullptr); }

bool FileOutput::Buffer::Put(const char* text, std::streamsize count) {
  return Note(file.sputn(text, count) == count);
}

// A later failure can be a mere consequence of the first one.
bool FileOutput::Buffer::Note(bool success) {
  if (!success && failure == 0) failure = errno;
  return success;
}

FileOutput::Buffer::int_type FileOutput::Buffer::overflow(int_type character) {
  if (!Flush()) return traits_type::eof();
  if (traits_type::eq_int_type(character, traits_type::eof())) return traits_type::not_eof(0);
  *pptr() = traits_type::to_char_type(character);
  pbump(1);
  return character;
}

std::streamsize FileOutput::Buffer::xsputn(const char* text, std::streamsize count) {
  if (count > epptr() - pptr() && !Flush()) return 0;
  if (count > kBlockSize) return Put(text, count) ? count : 0;
  std::memcpy(pptr(), text, static_cast<std::size_t>(count));
  pbump(static_cast<int>(count));
  return count;
}

int FileOutput::Buffer::sync() { return Flush() && file.pubsync() == 0 ? 0 : -1; }

}  // namespace KelIFC
