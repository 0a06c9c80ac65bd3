#ifndef KELIFC_GEO_GEO_ELEMENT_H_
#define KELIFC_GEO_GEO_ELEMENT_H_

#include "kelifc/geo/geo_object.h"

namespace KelIFC {

/// Forwards the operations that the interface of every element shares with CoGeoObject. `Self`
/// derives from this class and from CoGeoObject. `Base` is the generated base of the class.
template <class Self, class Base>
class ObjectOperations : public Base {
 public:
  HRESULT get_SectionName(BSTR* out) override { return Element().get_SectionName(out); }
  HRESULT get_ObjectCode(LONG* out) override { return Element().get_ObjectCode(out); }
  HRESULT get_StoreyNumber(SHORT* out) override { return Element().get_StoreyNumber(out); }
  HRESULT get_Name(BSTR* out) override { return Element().get_Name(out); }
  HRESULT put_Name(BSTR text) override { return Element().put_Name(text); }
  HRESULT get_GUID(BSTR* out) override { return Element().get_GUID(out); }
  HRESULT put_GUID(BSTR text) override { return Element().put_GUID(text); }

 protected:
  ~ObjectOperations() = default;

 private:
  CoGeoObject& Element() { return static_cast<Self&>(*this); }
};

/// The base of the element classes: their interfaces, and the part that all elements share.
template <class Base>
class GeoElement : public ObjectOperations<GeoElement<Base>, Base>, public CoGeoObject {
 protected:
  ~GeoElement() override = default;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_GEO_ELEMENT_H_
