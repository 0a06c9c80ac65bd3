#ifndef KELIFC_GEO_IFC_SERVER_OBJECT_H_
#define KELIFC_GEO_IFC_SERVER_OBJECT_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/server_link.h"
#include "kelifc/platform/com_ptr.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// The object that a host makes first: it owns the model, and the structure that is made from it.
class CoIFCServer : public CoIFCServerBase {
 public:
  CoIFCServer() : links(this) {}

  /// Loads the model. A model of a release that cannot be converted is loaded all the same. The
  /// structure stays as it is.
  HRESULT Load(BSTR fileName) override;

  HRESULT get_Structure(IGeoStructure** out) override;

  IfcServer& Model() { return server; }

  /// The factor from the lengths of the file to metres; 1 where the model does not tell.
  double GetLengthScale();

  /// A way back to this object that is null once it is gone.
  ServerLink Link() const { return links.Link(); }

 protected:
  ~CoIFCServer() = default;

 private:
  IfcServer server;
  ComPtr<IGeoStructure> structure;
  ServerLinkOwner links;  // the last member, so that it ends first
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_IFC_SERVER_OBJECT_H_
