#include "export/saf/material_list.h"

#include <algorithm>
#include <array>
#include <optional>

#include "export/text.h"

namespace KelIFC::exporting::saf {
namespace {

constexpr std::string_view kUnknown = "Unknown";

// A part of a name in lower case, and the type that it stands for. The first part that the name
// contains decides: "betonstahl" stands before "beton", "porenbeton" and "kalksand" before "beton"
// and "stahlbeton" before "stahl".
struct NamePart {
  std::string_view part;
  std::string_view type;
};

constexpr auto kNameParts = std::to_array<NamePart>({
    {"betonstahl", "Steel"},
    {"reinforcing steel", "Steel"},
    {"bewehrungsstahl", "Steel"},
    {"porenbeton", "Masonry"},
    {"gasbeton", "Masonry"},
    {"aerated concrete", "Masonry"},
    {"concrete masonry", "Masonry"},
    {"concrete block", "Masonry"},
    {"masonry", "Masonry"},
    {"mauerwerk", "Masonry"},
    {"kalksand", "Masonry"},
    {"ziegel", "Masonry"},
    {"brick", "Masonry"},
    {"ma\xC3\xA7onnerie", "Masonry"},
    {"brique", "Masonry"},
    {"muratura", "Masonry"},
    {"ladrillo", "Masonry"},
    {"metselwerk", "Masonry"},
    {"baksteen", "Masonry"},
    {"tegel", "Masonry"},
    {"zdivo", "Masonry"},
    {"poroton", "Masonry"},
    {"ytong", "Masonry"},
    {"concrete", "Concrete"},
    {"beton", "Concrete"},
    {"b\xC3\xA9ton", "Concrete"},
    {"hormig", "Concrete"},
    {"calcestruzzo", "Concrete"},
    {"cemento armato", "Concrete"},
    {"bet\xC3\xA3o", "Concrete"},
    {"steel", "Steel"},
    {"stahl", "Steel"},
    {"acier", "Steel"},
    {"acero", "Steel"},
    {"acciaio", "Steel"},
    {"st\xC3\xA5l", "Steel"},
    {"staal", "Steel"},
    {"ocel", "Steel"},
    {"timber", "Timber"},
    {"wood", "Timber"},
    {"holz", "Timber"},
    {"glulam", "Timber"},
    {"fichte", "Timber"},
    {"madera", "Timber"},
    {"legno", "Timber"},
    {"legname", "Timber"},
    {"houten", "Timber"},
    {"madeira", "Timber"},
    {"alumin", "Aluminium"},
});

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsWordCharacter(char c) {
  const char lower = LowerCase(c);
  return IsDigit(c) || (lower >= 'a' && lower <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

// How a strength class is written: a prefix, a number of `digits` digits, and perhaps a second
// number after a slash.
struct StrengthClass {
  std::string_view prefix;
  std::size_t digits;
  bool hasSecondNumber;
  std::string_view type;
};

constexpr auto kStrengthClasses = std::to_array<StrengthClass>({
    {"LC", 2, true, "Concrete"},
    {"C", 2, true, "Concrete"},
    {"S", 3, false, "Steel"},
    {"St", 2, false, "Steel"},
    {"Fe", 3, false, "Steel"},
    {"GL", 2, false, "Timber"},
    {"BSH", 2, false, "Timber"},
});

std::size_t CountDigits(std::string_view text) {
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), IsDigit) -
                                  text.begin());
}

// The length of the class at the beginning of a text; 0 if it begins with another text.
std::size_t LengthOf(const StrengthClass& strength, std::string_view text) {
  if (!text.starts_with(strength.prefix)) return 0;
  std::size_t length = strength.prefix.size();
  if (CountDigits(text.substr(length)) != strength.digits) return 0;
  length += strength.digits;
  if (!strength.hasSecondNumber) return length;
  if (text.substr(length, 1) != "/") return 0;
  const std::size_t digits = CountDigits(text.substr(length + 1));
  return digits == 2 || digits == 3 ? length + 1 + digits : 0;
}

// A strength class that begins at the beginning of a word, and its type.
struct FoundClass {
  std::string_view text;
  std::string_view type;
};

std::optional<FoundClass> FindStrengthClass(std::string_view name) {
  for (std::size_t i = 0; i < name.size(); ++i) {
    if (i > 0 && IsWordCharacter(name[i - 1])) continue;
    for (const StrengthClass& strength : kStrengthClasses) {
      const std::size_t length = LengthOf(strength, name.substr(i));
      if (length > 0) return FoundClass{name.substr(i, length), strength.type};
    }
  }
  return std::nullopt;
}

}  // namespace

std::string_view MaterialTypeOf(std::string_view name) {
  std::string lower(name);
  std::transform(lower.begin(), lower.end(), lower.begin(), LowerCase);
  for (const NamePart& part : kNameParts) {
    if (lower.find(part.part) != std::string::npos) return part.type;
  }
  const std::optional<FoundClass> found = FindStrengthClass(name);
  return found ? found->type : "Other";
}

std::string_view MaterialQualityOf(std::string_view name) {
  const std::optional<FoundClass> found = FindStrengthClass(name);
  return found ? found->text : name;
}

MaterialList::MaterialList(const std::vector<BuildingMaterial>& materials, Table& table,
                           IdList& ids)
    : table(table), ids(ids) {
  for (const BuildingMaterial& material : materials) {
    names.push_back(table.HasRoomFor(2) ? Write(material.name) : std::string());
  }
}

std::string MaterialList::Write(std::string_view name) {
  std::string written = list.Take(name, kUnknown);
  table.BeginRow();
  table.Set("Name", written);
  table.Set("Type", MaterialTypeOf(name));
  const std::string_view quality = MaterialQualityOf(name);
  table.Set("Quality", quality == name ? std::string_view(written) : quality);
  table.Set("Id", ids.Take("material/" + written));
  return written;
}

const std::string& MaterialList::NameOf(const BuildingIndex& material) {
  const bool isWritten = material && *material < names.size() && !names[*material].empty();
  if (isWritten) return names[*material];
  if (unknown.empty()) unknown = Write("");
  return unknown;
}

}  // namespace KelIFC::exporting::saf
