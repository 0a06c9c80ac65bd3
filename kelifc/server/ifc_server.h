#ifndef KELIFC_SERVER_IFC_SERVER_H_
#define KELIFC_SERVER_IFC_SERVER_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "kelifc/core/mvector.h"
#include "kelifc/platform/export.h"
#include "kelifc/platform/guid.h"
#include "kelifc/server/detail/instance_index.h"
#include "kelifc/server/detail/number_index.h"
#include "kelifc/server/detail/project_classes.h"
#include "kelifc/server/load_findings.h"
#include "kelifc/server/load_options.h"
#include "kelifc/server/load_result.h"
#include "kelifc/server/release.h"
#include "kelifc/server/save_options.h"

namespace KelIFC {

class IfcServer;
class IfcUnknown;
class IsoStatementReader;
class LoadArena;
class ModelOrigin;
class ModelSource;
class ScanBuffer;
class StepFileSchema;

/// The order of global identifiers: by the three numbers, then byte by byte.
struct KELIFC_API GuidLess {
  bool operator()(const _GUID& a, const _GUID& b) const;
};

/// Told how far a load is: the bytes read so far and the bytes to read, both passes over the file
/// together. An answer of false stops the load. It must not touch the server.
using ProgressHandler = std::function<bool(std::uint64_t bytesDone, std::uint64_t bytesTotal)>;

/// Told what went wrong while a file was saved, in one line without its end: the path as it was
/// given, a colon, a blank and the cause.
using ErrorHandler = std::function<void(const std::string& message)>;

/// One model: it owns the instances of one file, or of one that is built in memory, and knows each
/// by its instance number (the n of #n). Every reference of an instance resolves through it.
///
/// Nothing here throws or reports: null and 0 mean "not found". The number 0 is none. A null name,
/// path or instance is never followed. A server and its instances belong to one thread at a time.
class KELIFC_API IfcServer {
 public:
  IfcServer();

  /// Copies field by field: both servers then hold the same instances, and both would destroy them.
  /// Copy only a server that holds none.
  IfcServer(const IfcServer&);
  IfcServer& operator=(const IfcServer&);

  // The operations that a derived class can replace. Their order is fixed; new ones go below, and
  // are not virtual.

  /// Destroys the instances, in reverse order.
  virtual ~IfcServer();

  virtual IFC_RELEASE GetRelease();
  virtual void SetRelease(IFC_RELEASE release);

  /// Destroys all instances, in reverse order of registration, and forgets all numbers and
  /// identifiers. The dialect is the classic one from then on. The release, the tolerance and the
  /// switches stay.
  virtual void Reset();

  /// Registers an instance under the number that a file gives it and takes it over. A number that
  /// is in use moves to the new instance; the earlier one stays, without a number, and is not
  /// saved. With a null instance or the number 0 nothing happens. Throws std::bad_alloc where
  /// memory is lacking; the model is what it was then, and an instance without a server is
  /// destroyed.
  virtual void InsertItem(std::size_t id, IfcUnknown* item);

  /// Registers an instance under a new number, takes it over and gives the number: the highest in
  /// use plus 1. During a load the number is above every number of the file; where it would
  /// overflow it is the lowest that is free. A null instance takes a number and an empty slot.
  /// Throws as InsertItem does.
  virtual std::size_t AddItem(IfcUnknown* item);

  /// Makes an instance by the name of its entity in the server's release and registers it. Gives
  /// the instance, which stays the server's, or null for a name that the release does not know.
  virtual IfcUnknown* CreateItem(const char* name);

  /// Destroys an instance and gives the number it had, 0 if it had none or is not here. Its slot
  /// stays, empty. The pointer may be of an instance that is gone; null means the first empty slot.
  virtual std::size_t DeleteItem(const IfcUnknown* item);

  /// Replaces the model by that of a STEP file, which must be an ordinary file: it is read twice.
  /// Returns a LOAD_RESULT. A load that the progress handler stops leaves the model empty. What
  /// inside a file cannot be understood is left out without a report. An instance that there is no
  /// memory for is left out, too; where memory is lacking otherwise the model is empty and
  /// std::bad_alloc is thrown.
  virtual int LoadIfcFile(const char* path);

  /// Writes all numbered instances to a STEP file, by rising number. Gives 0 if the file was
  /// created, 1 if not or if the server has no release. The error handler is told every failure,
  /// also one while the file is written, after which the result is still 0.
  virtual int SaveIfcFile(const char* path);

  /// Makes an unregistered instance from the entity name at the start of `text`, which the caller
  /// owns. `end`, if not null, receives the position behind the name. Null for a name that the
  /// release does not know.
  virtual IfcUnknown* ParseClass(const char* text, const char** end);

  /// Makes an unregistered instance by name, ignoring the case of letters; the caller owns it. The
  /// first knows the names that all releases share; each of the others asks it before its own
  /// names. A name that is unknown gives null, and in 2x2 and 2x3 an IfcOther.
  virtual IfcUnknown* InstantiateClass(const char* name);
  virtual IfcUnknown* InstantiateClass151(const char* name);
  virtual IfcUnknown* InstantiateClass20(const char* name);
  virtual IfcUnknown* InstantiateClass2x(const char* name);
  virtual IfcUnknown* InstantiateClass2x2(const char* name);
  virtual IfcUnknown* InstantiateClass2x3(const char* name);

  /// The tolerance of the model, 0.001 in a new server.
  virtual double GetEps() const;

  /// Always null. Use the overload that is not const.
  virtual const IfcUnknown* GetItem(std::size_t id) const;

  /// The first instance with a global identifier, null if there is none; releases 2x, 2x2 and 2x3
  /// only. Answers from an index that is made on first use and forgotten by Reset: instances that
  /// are registered later, and identifiers that are changed later, are not found.
  virtual IfcUnknown* GetItem(const _GUID& guid);

  /// The instance under a number, or null.
  virtual IfcUnknown* GetItem(std::size_t id);

  /// The number of an instance, 0 if it has none or is not here. The pointer may be of an instance
  /// that is gone; null means the first empty slot. Constant time.
  virtual std::size_t Find(const IfcUnknown* item) const;

  /// All slots in order of registration; those of deleted instances are null.
  virtual const Mvector<IfcUnknown*>& GetItems() const;

  /// The first project of a release, or null.
  virtual const KelIFC151::IfcProject* GetProject151() const;
  virtual const KelIFC20::IfcProject* GetProject20() const;
  virtual const KelIFC2x::IfcProject* GetProject2x() const;
  virtual KelIFC2x2::IfcProject* GetProject2x2();
  virtual const KelIFC2x2::IfcProject* GetProject2x2() const;
  virtual KelIFC2x3::IfcProject* GetProject2x3();
  virtual const KelIFC2x3::IfcProject* GetProject2x3() const;

  /// A switch of the host, false in a new server, that is kept and given back.
  virtual bool GetSupportsFillings() const;

  /// Sets the tolerance of this model, and with it that with which every server of the process
  /// writes real numbers. Gives the tolerance that this model had.
  virtual double SetEps(double eps);

  virtual void SetSupportsFillings(bool supportsFillings);

  // Global identifiers as text.

  /// Writes the 20 characters in base 85 that releases 1.5.1 and 2.0 use, and a NUL, to `text`.
  /// False only if that is null.
  static bool EncodeGUID(const _GUID& guid, char* text);

  /// Reads the first 20 characters of `text`; one outside the alphabet counts as 0. False, with
  /// `guid` left alone, if there are fewer.
  static bool DecodeGUID(const char* text, _GUID& guid);

  /// A new identifier as text in base 85, for releases 1.5.1 and 2.0.
  static std::string CreateGlobalId();

  /// A new identifier as 22 characters in base 64, for releases 2x, 2x2 and 2x3.
  static std::string CreateGlobalId2x();

  // Additions for C++ hosts.

  /// The schema string in the header of the file that was loaded last, as it stands there; "" if
  /// that load did not come so far.
  const std::string& GetFileSchema() const { return fileSchema; }

  /// Replaces the model by that of a STEP file, as LoadIfcFile does it, by rules that the host
  /// chooses. What differs:
  ///  - Only the file decides about the release; one that was set before has no effect.
  ///  - A limit that is reached returns 4, and a load that the progress handler stopped returns 5.
  ///    Both leave the model empty.
  ///  - A schema that belongs to a later release, such as IFC4X3, returns 6. GetFileSchema names
  ///  it.
  ///  - GetLoadFindings tells what is wrong in the file.
  /// In the dialect of ISO 10303-21 texts are UTF-8, the first name in the header that is known, in
  /// any case, is the schema, and of statements with the same number only the last one is read.
  int LoadIfc(const char* path, const LoadOptions& options);

  /// The same for what is left of a stream. It is copied to a temporary file first, because a model
  /// is read twice; progress is reported from then on.
  int LoadIfcStream(std::istream& in, const LoadOptions& options);

  /// The same for `size` bytes of memory. They must not change during the load, and are not needed
  /// after it: in the dialect of ISO 10303-21 the server keeps a copy for a faithful save.
  int LoadIfcMemory(const void* data, std::size_t size, const LoadOptions& options);

  /// Writes all numbered instances to a STEP file, as SaveIfcFile does it, and returns a
  /// SAVE_RESULT. What differs:
  ///  - The file is written beside `path` and replaces it at the end, as FileReplacement defines. A
  ///    failure at any time leaves the old file as it was.
  ///  - Every failure has a result other than 0. The error handler receives one message.
  ///  - A faithful save copies from the source of the model what the host did not change.
  int SaveIfc(const char* path, const SaveOptions& options);

  /// The dialect that the model was loaded in, and in which it is saved. STEP_DIALECT_CLASSIC after
  /// Reset and after a load that failed. In the dialect of ISO 10303-21 the texts of attributes are
  /// UTF-8.
  STEP_DIALECT GetDialect() const { return dialect; }

  /// What LoadIfc, LoadIfcStream or LoadIfcMemory found wrong in the file that was loaded last.
  /// LoadIfcFile leaves it empty.
  const LoadFindings& GetLoadFindings() const { return findings; }

  /// How many numbers are in use, those of empty slots included.
  std::size_t GetNumberCount() const { return idToIndex.GetCount(); }

  /// The lowest number in use above `number`, 0 if there is none. This walks the numbers in rising
  /// order:
  ///   for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) ...
  std::size_t GetNextNumber(std::size_t number) const;

  /// The positions in GetItems, from 0 and rising, of the instances that are products (2x, 2x2 and
  /// 2x3): few of all, so that walks over products need not look at every instance. Slots of
  /// deleted instances are null.
  const std::vector<std::uint32_t>& GetProductPositions() const { return productPositions; }

  /// Sets who is told how far a load is; an empty handler tells nobody, as in a new server.
  void SetProgressHandler(ProgressHandler handler);

  /// Sets who is told of failures while a file is saved. An empty handler, as in a new server,
  /// writes one line that begins with "kelifc: " to the standard error stream.
  void SetErrorHandler(ErrorHandler handler);

 private:
  friend class FaithfulSave;
  friend void ScanFile(std::istream& in, IfcServer* server, bool firstPass);
  template <class AnyScanner>
  friend void ScanStatements(IfcServer& server, AnyScanner& scanner, bool firstPass);
  friend std::int16_t RegisterStatement(IfcServer* server, char* statement);
  friend std::int16_t ParseStatement(IfcServer* server, char* statement);

  // What a load knows about its file while it runs; all zero outside a load.
  struct LoadState {
    STEP_DIALECT dialect = STEP_DIALECT_CLASSIC;
    LoadLimits limits = {0, 0, 0, 0};
    LoadFindings* findings = nullptr;  // null if nothing is noted
    ModelOrigin* origin = nullptr;     // receives what a faithful save needs; null for none
    bool keepsUnknown = false;         // as IfcOther, where the release has no class

    bool isRunning = false;
    bool isStopped = false;                // by the progress handler
    bool isBeyondLimit = false;            // one of the limits was reached
    bool isLaterSchema = false;            // the schema belongs to a later release
    const ScanBuffer* scanner = nullptr;   // of the pass that runs
    IsoStatementReader* reader = nullptr;  // null in the classic dialect
    const LoadArena* memory = nullptr;     // of the model; null where blocks stand alone
    std::uint64_t statementBytes = 0;      // of the statements that were read
    // By number, how many statements follow that have the same one. Only the last one is read.
    std::unordered_map<std::size_t, std::size_t> repeats;
    const IfcUnknown* parsed = nullptr;  // the instance whose statement is being read,
    std::size_t parsedNumber = 0;        // and its number
    bool isUnordered = false;            // the last number was far from the one ahead of it
    std::size_t lastNumber = 0;
    std::uint64_t highestNumber = 0;    // of all statements so far, those left out included
    std::uint64_t highestOrdinary = 0;  // the same, of numbers that are not negative
    std::uint64_t bytesBefore = 0;      // in the passes that are done
    std::uint64_t bytesTotal = 0;       // of both passes
    std::uint64_t bytesReported = 0;
  };

  IfcUnknown* MakeByRelease(const char* name);
  std::size_t MakeNumber();
  void Append(std::size_t id, IfcUnknown* item);
  void FillSlot(std::size_t id, IfcUnknown* item);
  void BuildInstanceIndex() const;
  void BuildGuidIndex();
  void DropRepeatedSlots();

  int LoadWithOptions(const std::shared_ptr<const ModelSource>& source, const LoadOptions& options);
  void KeepSource(std::shared_ptr<const ModelSource> source);
  void ScanOrigin(std::istream& in, ModelOrigin& target);
  int LoadFrom(const ModelSource& source, const LoadState& initial);
  int LoadPasses(const ModelSource& source);
  void ForgetLoad();
  void MakeRoom(std::uint64_t fileSize);
  bool GoesOn();
  bool ReportProgress(std::uint64_t bytesRead);
  bool IsWithinMemory() const;
  std::int16_t ReadHeaderStatement(char* statement);
  IFC_RELEASE ReadSchema(const char* statement);
  IFC_RELEASE ReadIsoSchema(const char* statement);
  std::int16_t RegisterInstance(char* statement);
  bool IsIso() const { return load.reader != nullptr; }
  IfcUnknown* MakeStated(const char* text);
  IfcUnknown* MakeRaw(const char* text);
  void NoteRepeat(std::size_t id);
  bool IsRepeated(std::size_t id);
  void NoteNumber(std::size_t id);
  void NoteOrder(std::size_t id);

  int SaveModel(const char* path, std::string_view schema, const SaveOptions& options,
                std::string& reason);
  void WriteModel(std::ostream& out, std::string_view fileName, std::string_view schema);
  void WriteInstances(std::ostream& out);
  void WriteInstance(std::ostream& out, std::uint64_t number);
  int TellError(const std::string& message) const;  // gives the code of a failed save

  Mvector<IfcUnknown*> items;  // owned; null where deleted
  detail::NumberIndex idToIndex;
  IFC_RELEASE release = IFC_RELEASE_NONE;
  double eps = 0.001;
  bool supportsFillings = false;
  std::shared_ptr<StepFileSchema> schemaRecord;  // shared by copies of the server
  bool headerSeen = false;
  std::vector<std::uint32_t> productPositions;  // in `items`
  // Positions, not pointers, so that a deleted instance is not found again.
  using GuidIndex = std::map<_GUID, std::uint32_t, GuidLess>;
  GuidIndex guidIndex;

  mutable detail::InstanceIndex instanceIndex;
  bool mayRepeat = false;            // an instance may stand in two slots
  std::size_t slotsWithoutGuid = 0;  // so many slots were seen to hold no global identifier
  std::string fileSchema;
  STEP_DIALECT dialect = STEP_DIALECT_CLASSIC;
  LoadFindings findings;
  std::shared_ptr<const ModelOrigin> origin;  // null if the model cannot be saved faithfully
  LoadState load;
  ProgressHandler progressHandler;
  ErrorHandler errorHandler;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_IFC_SERVER_H_
