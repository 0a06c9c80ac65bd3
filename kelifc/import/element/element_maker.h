#ifndef KELIFC_IMPORT_ELEMENT_ELEMENT_MAKER_H_
#define KELIFC_IMPORT_ELEMENT_ELEMENT_MAKER_H_

#include <string>

#include "kelifc/geo/creation.h"
#include "kelifc/geo/ifc_server_object.h"
#include "kelifc/geo/structure.h"
#include "kelifc/import/element/fill_identity.h"

namespace KelIFC {

/// Creates the elements of one collection and sets what every element has: name, identifier and
/// server link. The collection and the server must outlive the maker.
template <class Element, class Collection>
class ElementMaker {
 public:
  using Made = Element;

  ElementMaker(Collection& collection, CoIFCServer& server)
      : collection(collection), server(server), link(server.Link()) {}

  /// Must be called first. If it fails, the maker cannot be used.
  HRESULT Open() {
    const HRESULT status = factory.Open();
    return FAILED(status) ? status : server.get_Structure(structure.Put());
  }

  /// Appends an element, which the collection owns, and sets its identity; `suffix` is that of
  /// FillIdentity. On success `*element` points to the element; a failure appends nothing.
  HRESULT Make(const IdentityFacts& identity, Element** element, const std::string& suffix = {}) {
    const HRESULT status = factory.Append(collection, element);
    if (SUCCEEDED(status)) FillIdentity(identity, link, **element, suffix);
    return status;
  }

  /// Removes the element that was made last, because its shape is not supported.
  void TakeBack() { collection.RemoveLast(); }

  /// The structure, which holds the sections of the elements.
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
