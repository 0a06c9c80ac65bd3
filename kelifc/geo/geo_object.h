#ifndef KELIFC_GEO_GEO_OBJECT_H_
#define KELIFC_GEO_GEO_OBJECT_H_

#include <cstdint>
#include <limits>
#include <string>

#include "kelifc/geo/server_link.h"
#include "kelifc/platform/com_interfaces.h"
#include "kelifc/platform/guid.h"

namespace KelIFC {

/// What all elements have. What a host writes into it does not go back into the model.
///
/// Its operations stand in an order of their own, which is not that of IGeoObject, and the classes
/// of elements override none of them: their interfaces lead here.
class CoGeoObject {
 public:
  /// The index of an element without a section.
  static constexpr std::uint64_t kNoSection = std::numeric_limits<std::uint64_t>::max();

  CoGeoObject() = default;
  CoGeoObject(const CoGeoObject&) = delete;
  CoGeoObject& operator=(const CoGeoObject&) = delete;

  virtual ~CoGeoObject();
  virtual HRESULT Reserved1(void*);
  virtual HRESULT Reserved2(LONG);
  virtual HRESULT Reserved3(void*);
  virtual HRESULT Reserved4(void*);
  virtual HRESULT Reserved5(void*);
  virtual HRESULT Reserved6(void*);
  virtual HRESULT Reserved7(LONG);

  /// The identifier in its braced form.
  virtual HRESULT get_GUID(BSTR* out);
  /// What is no braced form gives CO_E_CLASSSTRING and makes the identifier all zero.
  virtual HRESULT put_GUID(BSTR text);
  virtual HRESULT Reserved10(void*);
  virtual HRESULT Reserved11(double);

  virtual HRESULT get_Name(BSTR* out);
  virtual HRESULT put_Name(BSTR text);
  virtual HRESULT Reserved14(void*);
  virtual HRESULT Reserved15(SHORT);
  virtual HRESULT Reserved16(void*);
  virtual HRESULT Reserved17(void*);
  virtual HRESULT Reserved18(void*);

  /// The name of the section, empty without one. E_POINTER if there is no server object, or no
  /// longer one.
  virtual HRESULT get_SectionName(BSTR* out);
  virtual HRESULT Reserved20(void*);

  /// Always 4.
  virtual HRESULT get_ObjectCode(LONG* out);

  /// The number of the storey that contains the instance of the identifier, worked out anew at each
  /// call; kNoStoreyNumber if none does. E_POINTER if the model has no such instance.
  virtual HRESULT get_StoreyNumber(SHORT* out);
  virtual HRESULT Reserved23(SHORT);
  virtual HRESULT Reserved24(void*);
  virtual HRESULT Reserved25(void*);
  virtual HRESULT Reserved26(void*);

  _GUID guid = {};
  std::uint64_t sectionIndex = kNoSection;  ///< in the structure's sections, from 0
  std::string name;
  ServerLink server;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_GEO_OBJECT_H_
