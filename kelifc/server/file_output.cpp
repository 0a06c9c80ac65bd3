#include "kelifc/server/file_output.h"

#include <cstring>
#include <locale>

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
  if (IsOpen() && buffer.file.close() == nullptr) stream.setstate(std::ios::badbit);
  return stream.good();
}

FileOutput::Buffer::Buffer() : block(new char[kBlockSize]) {
  setp(block.get(), block.get() + kBlockSize);
}

bool FileOutput::Buffer::Flush() {
  const std::streamsize count = pptr() - pbase();
  setp(block.get(), block.get() + kBlockSize);
  return file.sputn(block.get(), count) == count;
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
  if (count > kBlockSize) return file.sputn(text, count);
  std::memcpy(pptr(), text, static_cast<std::size_t>(count));
  pbump(static_cast<int>(count));
  return count;
}

int FileOutput::Buffer::sync() { return Flush() && file.pubsync() == 0 ? 0 : -1; }

}  // namespace KelIFC
