#include "tools/schemac/signatures.h"

#include <algorithm>
#include <array>
#include <utility>

namespace schemac {

namespace {

struct ValueWord {
  std::string_view word;
  std::string_view type;
};

/// The words for plain values in signatures.
constexpr std::array kResultWords = {
    ValueWord{"integer", "INTEGER"},    ValueWord{"real", "REAL"},
    ValueWord{"boolean", "BOOLEAN"},    ValueWord{"logical", "LOGICAL"},
    ValueWord{"string", "STRING"},      ValueWord{"measure", "IfcLengthMeasure"},
    ValueWord{"number", "std::size_t"}, ValueWord{"guid", "_GUID"},
};

constexpr std::array kParameterWords = {
    ValueWord{"integer", "INTEGER value"},     ValueWord{"real", "REAL value"},
    ValueWord{"bool", "bool value"},           ValueWord{"measure", "IfcLengthMeasure value"},
    ValueWord{"number", "std::size_t number"}, ValueWord{"index", "std::size_t index"},
    ValueWord{"text", "const char* text"},     ValueWord{"guid", "const _GUID& guid"},
};

template <class Table>
std::string_view Translate(const Table& table, std::string_view word) {
  for (const auto& row : table) {
    if (row.word == word) return row.type;
  }
  return {};
}

}  // namespace

std::string ResultType(const std::string& described, const ReleaseModel& model) {
  if (described.empty()) return "void";
  if (const auto type = Translate(kResultWords, described); !type.empty()) {
    return std::string(type);
  }
  for (const auto& [word, aggregate] : {std::pair{"list ", "LIST<"}, std::pair{"set ", "SET<"}}) {
    if (described.rfind(word, 0) != 0) continue;
    const std::string element = described.substr(std::string_view(word).size());
    const bool isClass = model.KnowsClass(element);
    return aggregate + (isClass ? "const " + element + "*" : ResultType(element, model)) + ">";
  }
  if (model.KnowsClass(described)) return "const " + described + "*";
  return described;
}

std::string Parameters(const std::string& described) {
  std::string parameters;
  std::size_t begin = 0;
  while (begin < described.size()) {
    const auto end = std::min(described.find(',', begin), described.size());
    std::string one = described.substr(begin, end - begin);
    one.erase(0, one.find_first_not_of(' '));
    begin = end + 1;
    if (one.empty()) continue;
    if (const auto known = Translate(kParameterWords, one); !known.empty()) one = known;
    if (one.back() == '*' || one.back() == '&') one += " item";
    parameters += (parameters.empty() ? "" : ", ") + one;
  }
  return parameters;
}

}  // namespace schemac
