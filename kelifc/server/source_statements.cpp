#include "kelifc/server/source_statements.h"

#include <algorithm>
#include <cstdint>

#include "kelifc/server/ifc_server.h"
#include "kelifc/server/iso_statement.h"
#include "kelifc/server/model_origin.h"
#include "kelifc/server/statements.h"

namespace KelIFC {
namespace {

constexpr std::uint32_t kLongestStatement = 1U << 16;

// Removes line ends, and comments outside of strings.
std::string RemoveComments(std::string_view text) {
  std::string result;
  bool isQuoted = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' || text[i] == '\n') continue;
    if (text[i] == '\'') isQuoted = !isQuoted;
    if (!isQuoted && text.substr(i, 2) == "/*") {
      const std::size_t end = text.find("*/", i + 2);
      if (end == std::string_view::npos) break;
      i = end + 1;
      continue;
    }
    result += text[i];
  }
  return result;
}

}  // namespace

bool SourceStatements::ReadText(std::size_t number) {
  const StatementPlace place = model.GetStatementPlace(number);
  if (place.line == 0 || place.length == 0 || place.length > kLongestStatement) return false;
  if (!isOpened && model.origin != nullptr) stream = model.origin->source->Open();
  isOpened = true;
  if (stream == nullptr) return false;
  stream->clear();
  stream->seekg(static_cast<std::streamoff>(place.offset));
  text.resize(place.length);
  stream->read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(stream->gcount()));
  return text.size() == place.length;
}

bool SourceStatements::IsMadeId(std::size_t number, std::string_view id) const {
  if (model.origin == nullptr) return false;
  const auto made = model.origin->replacedIds.find(number);
  return made != model.origin->replacedIds.end() &&
         std::find(made->second.begin(), made->second.end(), id) != made->second.end();
}

StatementView SourceStatements::Read(std::size_t number, std::string_view entity) {
  if (!ReadText(number)) return {};
  std::string statement = RemoveComments(text);
  IsoStatementReader reader;
  std::string plain = reader.Read(statement.c_str(), statement.c_str() + statement.size());
  const Assignment assignment = CutAssignment(plain.data());
  if (assignment.number != number) return {};
  const std::string_view stated = assignment.text;
  const std::size_t last = stated.rfind(')');
  const bool isWhole = last != std::string_view::npos && last > entity.size();
  if (!isWhole || stated.substr(0, entity.size()) != entity || stated[entity.size()] != '(') {
    return {};
  }
  return StatementView(stated.substr(entity.size() + 1, last - entity.size() - 1));
}

}  // namespace KelIFC
