#ifndef PYTHON_SOURCE_DESCRIBED_H_
#define PYTHON_SOURCE_DESCRIBED_H_

#include <cstddef>
#include <tuple>
#include <type_traits>

namespace KelIFC::python {

/// A member of a structure that Python can read: its name in Python, and its meaning.
template <class T, class Value>
struct Field {
  const char* name;
  Value T::*member;
  const char* doc;
};

template <class T, class Value>
Field(const char*, Value T::*, const char*) -> Field<T, Value>;

/// A member that holds an instance number. In Python, 0 is None.
template <class T>
struct IdField {
  const char* name;
  std::size_t T::*member;
  const char* doc;
};

template <class T>
IdField(const char*, std::size_t T::*, const char*) -> IdField<T>;

/// The description of a structure, from which its Python class and its pickled form are made.
template <class... Fields>
struct Description {
  const char* name;
  const char* doc;
  std::tuple<Fields...> fields;  ///< all members; their order is that of the pickled form
};

/// Makes a description of the name and the docstring of the class, and of its members.
template <class... Fields>
constexpr Description<Fields...> Describe(const char* name, const char* doc, Fields... fields) {
  return {name, doc, std::tuple<Fields...>(fields...)};
}

/// The type of kDescribed for a type without a description.
struct NotDescribed {};

/// The description of a structure. Each structure has a specialisation.
template <class T>
inline constexpr auto kDescribed = NotDescribed();

/// True if a structure has a description.
template <class T>
inline constexpr bool kIsDescribed = !std::is_same_v<decltype(kDescribed<T>), const NotDescribed>;

/// Calls `visit` with each field of a structure.
template <class T, class Visit>
void ForEachField(Visit visit) {
  std::apply([&](const auto&... field) { (visit(field), ...); }, kDescribed<T>.fields);
}

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_DESCRIBED_H_
