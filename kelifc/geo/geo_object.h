#ifndef KELIFC_GEO_GEO_OBJECT_H_
#define KELIFC_GEO_GEO_OBJECT_H_

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "kelifc/geo/server_link.h"
#include "kelifc/platform/com_interfaces.h"
#include "kelifc/platform/guid.h"
#include "kelifc/server/load_options.h"

namespace KelIFC {

/// The part that all elements share. What a host writes to an element does not change the model.
///
/// The order of these operations is fixed and differs from that of IGeoObject. The element classes
/// override none of them: the operations of their interfaces call these.
class CoGeoObject {
 public:
  /// The section index of an element without a section.
  static constexpr std::uint64_t kNoSection = std::numeric_limits<std::uint64_t>::max();

  CoGeoObject() = default;
  CoGeoObject(const CoGeoObject&) = delete;
  CoGeoObject& operator=(const CoGeoObject&) = delete;

  virtual ~CoGeoObject();

  // The reserved operations keep the order of the others. They return E_NOTIMPL.
  virtual HRESULT Reserved1(void*);
  virtual HRESULT Reserved2(LONG);
  virtual HRESULT Reserved3(void*);
  virtual HRESULT Reserved4(void*);
  virtual HRESULT Reserved5(void*);
  virtual HRESULT Reserved6(void*);
  virtual HRESULT Reserved7(LONG);

  /// Stores the identifier in braces.
  virtual HRESULT get_GUID(BSTR* out);

  /// Reads an identifier in braces. For any other text the identifier becomes the null identifier,
  /// and the status is CO_E_CLASSSTRING.
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

  /// Stores the name of the section, "" if the element has none. Returns E_POINTER if there is no
  /// server object or it has been released.
  virtual HRESULT get_SectionName(BSTR* out);
  virtual HRESULT Reserved20(void*);

  /// Stores 4 for every element.
  virtual HRESULT get_ObjectCode(LONG* out);

  /// Stores the number of the storey that contains this element; kNoStoreyNumber if no storey does.
  ///
  /// An element keeps no link to its storey. Each call finds the instance with the identifier of
  /// this element, and then the storey by the identifiers of the structures that contain the
  /// instance. So put_GUID changes the result, and the place of the element does not matter. The
  /// call converts the storeys if no host has asked for them yet. The result is not a failure if
  /// the element is in no storey. Returns E_POINTER if the model has no such instance, and if there
  /// is no server object or it has been released.
  ///
  /// An element of the complete reading has its storey number from the beginning.
  virtual HRESULT get_StoreyNumber(SHORT* out);
  virtual HRESULT Reserved23(SHORT);
  virtual HRESULT Reserved24(void*);
  virtual HRESULT Reserved25(void*);
  virtual HRESULT Reserved26(void*);

  _GUID guid = {};
  std::uint64_t sectionIndex = kNoSection;  ///< index in the sections of the structure, from 0
  std::string name;
  STEP_DIALECT dialect = STEP_DIALECT_CLASSIC;  ///< of the name
  ServerLink server;
  std::optional<SHORT> storeyNumber;  ///< set by the complete reading only
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_GEO_OBJECT_H_
