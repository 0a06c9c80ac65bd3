#ifndef KELIFC_BUILDING_SOLID_KEY_WRITER_H_
#define KELIFC_BUILDING_SOLID_KEY_WRITER_H_

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "kelifc/building/facts/solid_facts.h"

namespace KelIFC::building {

/// Makes a key of values: a text that is equal for values that are equal bit for bit, and for no
/// others. The numbers of instances do not count. The length of each list comes before its
/// elements, so that different lists never have the same text.
class KeyWriter {
 public:
  /// Appends to `key`, which must outlive the writer.
  explicit KeyWriter(std::string& key) : text(key) {}

  void Add(double value) { AddBytes(&value, sizeof value); }
  void Add(std::size_t value) { AddBytes(&value, sizeof value); }
  void Add(bool value) { text.push_back(value ? '\1' : '\0'); }
  void Add(const Point2& p) { AddAll(std::array{p.x, p.y}); }
  void Add(const Vector2& v) { AddAll(std::array{v.x, v.y}); }
  void Add(const Point3& p) { AddAll(std::array{p.x, p.y, p.z}); }
  void Add(const Vector3& v) { AddAll(std::array{v.x, v.y, v.z}); }
  void Add(const std::string& value);
  void Add(const Transform3& map);
  void AddAxes(const Transform3& map);  ///< without the origin

  void Add(const Region& region);
  void Add(const ProfilePointer& profile);
  void Add(const SpaceCurve& curve);

  /// The faces of a mesh; its points are moved by `shift` first.
  void Add(const Mesh& mesh, const Vector3& shift);

  void Add(const Extrusion& form);
  void Add(const Revolution& form);
  void Add(const SweptDisk& form);
  void Add(const SweptCurve& form);
  void Add(const Shells& form);
  void Add(const HalfSpace& form);
  void Add(const BooleanResult& form);
  void Add(const MappedItems& form);
  void Add(const Primitive& form);

  /// A solid with all solids below it. There is no key for one that cannot be read.
  void Add(const SolidPointer& solid);

  /// False if there is no key, or if it is too long to be kept.
  bool IsUsable() const;

 private:
  void Add(const Unreadable&) { isReadable = false; }
  void Add(const Contour& contour);

  template <class T>
  void AddList(const std::vector<T>& list) {
    Add(list.size());
    for (const T& value : list) Add(value);
  }

  template <std::size_t n>
  void AddAll(const std::array<double, n>& values) {
    AddBytes(values.data(), sizeof values);
  }

  void AddBytes(const void* first, std::size_t count) {
    text.append(static_cast<const char*>(first), count);
  }

  std::string& text;
  std::size_t depth = 0;  // of the solid at hand
  bool isReadable = true;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_KEY_WRITER_H_
