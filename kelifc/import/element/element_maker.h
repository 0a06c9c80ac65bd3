#ifndef KELIFC_IMPORT_ELEMENT_ELEMENT_MAKER_H_
#define KELIFC_IMPORT_ELEMENT_ELEMENT_MAKER_H_

#include <string>

#include "kelifc/geo/creation.h"
#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/geo/structure.h"
#include "kelifc/import/element/fill_identity.h"

namespace KelIFC {

/// Makes the elements of one collection, with what every element gets.
template <class Element, class Collection>
class ElementMaker {
 public:
  using Made = Element;

  ElementMaker(Collection& collection, CoIFCServer& server)
      : collection(collection), server(server), link(server.Link()) {}

  /// Goes ahead of everything else; after a failure nothing can be made.
  HRESULT Open() {
    const HRESULT status = factory.Open();
    return FAILED(status) ? status : server.get_Structure(structure.Put());
  }

  /// Appends an element to the collection and gives it its identity. On success `element` points to
  /// it.
  HRESULT Make(const IdentityFacts& identity, Element** element, const std::string& suffix = {}) {
    const HRESULT status = factory.Append(collection, element);
    if (SUCCEEDED(status)) FillIdentity(identity, link, **element, suffix);
    return status;
  }

  /// Removes the element that was made last, which is not understood after all.
  void TakeBack() { collection.RemoveLast(); }

  /// What the sections of the elements stand in.
  CoGeoStructure& Structure() const { return static_cast<CoGeoStructure&>(*structure); }

  const ServerLink& Link() const { return link; }

 private:
  Collection& collection;
  CoIFCServer& server;
  ServerLink link;
  ComPtr<IGeoStructure> structure;
  Factory<Element> factory;
};

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_ELEMENT_ELEMENT_MAKER_H_
