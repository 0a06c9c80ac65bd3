#ifndef KELIFC_GEO_IFC_SERVER_OBJECT_H_
#define KELIFC_GEO_IFC_SERVER_OBJECT_H_

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/server_link.h"
#include "kelifc/platform/com_ptr.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// The server object: the first object that a host creates. It owns the model and the structure
/// that is converted from it.
class CoIFCServer : public CoIFCServerBase {
 public:
  CoIFCServer() : links(this) {}

  /// Loads a file in place of the model. Every failure returns the same status and sets the error
  /// object of the thread. A model of a release without a conversion is loaded, although the status
  /// is a failure. The structure is not refreshed: collections that were converted before stay as
  /// they are.
  HRESULT Load(BSTR fileName) override;

  /// Stores the structure, which is created at the first call. Returns E_POINTER if `out` is null.
  HRESULT get_Structure(IGeoStructure** out) override;

  /// Returns the model. It is valid while this object lives.
  IfcServer& Model() { return server; }

  /// Returns the factor from lengths of the file to metres; see LengthScaleOf.
  double GetLengthScale();

  /// Returns a link to this object. The link becomes null when the object is destroyed.
  ServerLink Link() const { return links.Link(); }

 protected:
  ~CoIFCServer() = default;

 private:
  IfcServer server;
  ComPtr<IGeoStructure> structure;
  ServerLinkOwner links;  // declared last, so that it is destroyed first
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_IFC_SERVER_OBJECT_H_
