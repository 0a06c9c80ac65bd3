#include "fuzz/model_text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sstream>

#include "fuzz/step_text.h"

namespace fuzz {
namespace {

constexpr int kMostRounds = 6;

/// Whether a record contains an inline value, with or without the name of its type.
bool HasValueInPlace(std::string_view statement) {
  int names = 0;
  for (std::size_t i = 1; i < statement.size(); ++i) {
    names += statement[i] == '(' && std::strchr("(, ", statement[i - 1]) == nullptr ? 1 : 0;
  }
  constexpr std::array<std::string_view, 4> kWithoutName = {"(,", ", (", ",,", ",)"};
  return names > 1 ||
         std::any_of(kWithoutName.begin(), kWithoutName.end(), [statement](std::string_view mark) {
           return statement.find(mark) != std::string_view::npos;
         });
}

}  // namespace

std::string SaveToText(KelIFC::IfcServer& server, MemoryFile& file) {
  if (server.SaveIfcFile(file.GetPath()) != 0) std::abort();
  const std::string text = file.Read();
  const std::size_t data = text.find("\nDATA;\n");
  if (data == std::string::npos) std::abort();
  return text.substr(data);
}

std::string WriteRecord(const KelIFC::IfcUnknown& instance) {
  std::ostringstream out;
  instance.Write(out) << ')';
  return out.str();
}

bool IsRegular(KelIFC::IfcServer& server, const std::string& record) {
  const std::unique_ptr<KelIFC::IfcUnknown> fresh(server.ParseClass(record.c_str(), nullptr));
  if (fresh == nullptr || HasValueInPlace(record)) return false;
  fresh->SetServer(&server);
  const std::size_t count = CountAttributes(record);
  return count != 0 && count == CountAttributes(WriteRecord(*fresh));
}

bool AreRegular(KelIFC::IfcServer& server, const std::string& model) {
  const auto statements = SplitStatements(model);
  return std::all_of(statements.begin(), statements.end(), [&](const std::string& statement) {
    const Span record = FindRightSide(statement);
    return record.begin == 0 ||
           IsRegular(server, statement.substr(record.begin, record.end - record.begin));
  });
}

void RequireSettled(std::string text, const std::function<bool(std::string&)>& again) {
  std::string last;
  for (int round = 0; round < kMostRounds; ++round) {
    last = text;
    if (!again(text) || text == last) return;
  }
  std::fprintf(stderr, "This does not settle:\n%s\n====\n%s\n", last.c_str(), text.c_str());
  std::abort();
}

}  // namespace fuzz
