#ifndef KELIFC_GEO_IFC_SERVER_OBJECT_H_
#define KELIFC_GEO_IFC_SERVER_OBJECT_H_

#include <atomic>
#include <memory>
#include <optional>

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/server_link.h"
#include "kelifc/platform/com_ptr.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

class CompleteReading;

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

  // The options, which are kept for all later loads. Setting one replaces the progress handler of
  // the model at the next load. Each getter returns E_POINTER if its argument is null. A number
  // that is negative, not finite or above 2^53 is E_INVALIDARG.
  HRESULT get_Dialect(LONG* out) override;
  HRESULT put_Dialect(LONG dialect) override;
  HRESULT get_MaxBytes(double* out) override;
  HRESULT put_MaxBytes(double bytes) override;
  HRESULT get_MaxInstances(double* out) override;
  HRESULT put_MaxInstances(double count) override;
  HRESULT get_MaxStatementBytes(double* out) override;
  HRESULT put_MaxStatementBytes(double bytes) override;
  HRESULT get_MaxMemoryBytes(double* out) override;
  HRESULT put_MaxMemoryBytes(double bytes) override;
  HRESULT SetProgress(IUnknown* receiver) override;
  HRESULT CancelLoad() override;

  // What the last load met.
  HRESULT get_LoadResult(LONG* out) override;
  HRESULT CheckModel(VARIANT_BOOL* out) override;
  HRESULT get_ReportText(BSTR* out) override;
  HRESULT get_ReportJson(BSTR* out) override;
  HRESULT ReportCount(BSTR name, double* out) override;
  HRESULT SourceLine(LONG number, LONG* out) override;

  // The building model. The collections of elements and losses are created at the first call and
  // cached; a later load does not change them.
  HRESULT get_Reading(LONG* out) override;
  HRESULT put_Reading(LONG reading) override;
  HRESULT get_Elements(IGeoElements** out) override;
  HRESULT get_Losses(IGeoLosses** out) override;

  /// Returns true if the structure is filled from the building model.
  bool IsReadingComplete() const { return isReadingComplete; }

  /// Ends the time in which a host may choose the reading. The structure calls it when a host asks
  /// for a collection.
  void FixReading() { isReadingFixed = true; }

  /// Reads the building model at the first call after a load. Never returns null. Throws
  /// std::bad_alloc.
  std::shared_ptr<const CompleteReading> ReadCompletely();

  /// Returns the model. It is valid while this object lives.
  IfcServer& Model() { return server; }

  /// Returns the factor from lengths of the file to metres; see LengthScaleOf.
  double GetLengthScale();

  /// Returns a link to this object. The link becomes null when the object is destroyed.
  ServerLink Link() const { return links.Link(); }

 protected:
  ~CoIFCServer() = default;

 private:
  int LoadFile(BSTR fileName);
  LoadOptions& ChosenOptions();
  HRESULT PutLimit(std::uint64_t LoadLimits::*limit, double value);
  HRESULT GetLimit(std::uint64_t LoadLimits::*limit, double* out) const;
  bool ReportProgress(std::uint64_t bytesDone, std::uint64_t bytesTotal);

  IfcServer server;
  std::optional<LoadOptions> options;  // empty until a host sets one
  ComPtr<IIFCLoadProgress> progress;   // at most one of the two
  ComPtr<IDispatch> progressFunction;
  std::atomic<bool> isCancelled = false;
  LONG loadResult = LOAD_RESULT_LOADED;
  ComPtr<IGeoStructure> structure;
  bool isReadingComplete = false;
  bool isReadingFixed = false;
  std::shared_ptr<const CompleteReading> completeReading;  // null until it is asked for
  ComPtr<IGeoElements> elements;
  ComPtr<IGeoLosses> losses;
  ServerLinkOwner links;  // declared last, so that it is destroyed first
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_IFC_SERVER_OBJECT_H_
