#ifndef PYTHON_SOURCE_PACKED_H_
#define PYTHON_SOURCE_PACKED_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "kelifc/kelifc.h"

#include "python/source/described.h"

namespace KelIFC::python {

// Structures as bytes, for pickle and for `==`. Only the same version of the module, on the same
// kind of machine, reads the bytes again.

/// Appends values to bytes.
class Packer {
 public:
  std::string bytes;

  template <class Value>
  void Put(const Value& value) {
    if constexpr (std::is_arithmetic_v<Value> || std::is_enum_v<Value>) {
      bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
    } else {
      ForEachField<Value>([&](const auto& field) { Put(value.*field.member); });
    }
  }
  void Put(const std::string& text) {
    Put(text.size());
    bytes += text;
  }
  void Put(const Point2& p) { PutAll(p.x, p.y); }
  void Put(const Vector2& v) { PutAll(v.x, v.y); }
  void Put(const Point3& p) { PutAll(p.x, p.y, p.z); }
  void Put(const Vector3& v) { PutAll(v.x, v.y, v.z); }
  void Put(const BuildingBox& box) { PutAll(box.min, box.max); }
  template <class Value>
  void Put(const std::optional<Value>& value) {
    Put(value.has_value());
    if (value) Put(*value);
  }
  template <class Value, std::size_t Size>
  void Put(const std::array<Value, Size>& values) {
    for (const Value& value : values) Put(value);
  }
  template <class First, class Second>
  void Put(const std::pair<First, Second>& pair) {
    PutAll(pair.first, pair.second);
  }
  template <class Item>
  void Put(const std::vector<Item>& items) {
    Put(items.size());
    for (const Item& item : items) Put(item);
  }
  template <class Key, class Value>
  void Put(const std::map<Key, Value>& values) {
    Put(values.size());
    for (const auto& pair : values) Put(pair);
  }
  void Put(const char* text) { Put(std::string(text)); }
  void Put(const std::shared_ptr<const Mesh>& mesh) {
    Put(mesh != nullptr);
    if (mesh) Put(*mesh);
  }
  void Put(const Mesh& mesh);

 private:
  template <class... Values>
  void PutAll(const Values&... values) {
    (Put(values), ...);
  }
};

/// Takes values from bytes. Throws std::invalid_argument if the bytes end too early.
class Unpacker {
 public:
  explicit Unpacker(std::string_view bytes) : rest(bytes) {}

  bool IsAtEnd() const { return rest.empty(); }

  template <class Value>
  void Take(Value& value) {
    if constexpr (std::is_arithmetic_v<Value> || std::is_enum_v<Value>) {
      std::memcpy(&value, TakeBytes(sizeof value).data(), sizeof value);
    } else {
      ForEachField<Value>([&](const auto& field) { Take(value.*field.member); });
    }
  }
  void Take(bool& value) {
    std::uint8_t byte = 0;
    Take(byte);
    value = byte != 0;
  }
  void Take(std::string& text) { text = TakeBytes(TakeSize(1)); }
  void Take(Point2& p) { TakeAll(p.x, p.y); }
  void Take(Vector2& v) { TakeAll(v.x, v.y); }
  void Take(Point3& p) { TakeAll(p.x, p.y, p.z); }
  void Take(Vector3& v) { TakeAll(v.x, v.y, v.z); }
  void Take(BuildingBox& box) { TakeAll(box.min, box.max); }
  template <class Value>
  void Take(std::optional<Value>& value) {
    bool isSet = false;
    Take(isSet);
    if (isSet) Take(value.emplace());
  }
  template <class Value, std::size_t Size>
  void Take(std::array<Value, Size>& values) {
    for (Value& value : values) Take(value);
  }
  template <class First, class Second>
  void Take(std::pair<First, Second>& pair) {
    TakeAll(pair.first, pair.second);
  }
  template <class Item>
  void Take(std::vector<Item>& items) {
    items.resize(TakeSize(1));
    for (Item& item : items) Take(item);
  }
  void Take(std::shared_ptr<const Mesh>& mesh);

 private:
  std::string_view TakeBytes(std::size_t count) {
    if (count > rest.size()) throw std::invalid_argument("the pickled data is damaged");
    const std::string_view taken = rest.substr(0, count);
    rest.remove_prefix(count);
    return taken;
  }
  /// The number of items that follow, each of which has at least `least` bytes.
  std::size_t TakeSize(std::size_t least) {
    std::size_t size = 0;
    Take(size);
    if (size > rest.size() / least) throw std::invalid_argument("the pickled data is damaged");
    return size;
  }
  template <class... Values>
  void TakeAll(Values&... values) {
    (Take(values), ...);
  }

  std::string_view rest;
};

/// The bytes of a structure.
template <class Value>
std::string Pack(const Value& value) {
  Packer packer;
  packer.Put(value);
  return std::move(packer.bytes);
}

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_PACKED_H_
