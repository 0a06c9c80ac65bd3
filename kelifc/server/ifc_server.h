#ifndef KELIFC_SERVER_IFC_SERVER_H_
#define KELIFC_SERVER_IFC_SERVER_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "kelifc/core/mvector.h"
#include "kelifc/platform/export.h"
#include "kelifc/platform/guid.h"
#include "kelifc/server/detail/guid_index.h"
#include "kelifc/server/detail/instance_index.h"
#include "kelifc/server/detail/number_index.h"
#include "kelifc/server/detail/number_order.h"
#include "kelifc/server/detail/product_numbers.h"
#include "kelifc/server/detail/project_classes.h"
#include "kelifc/server/load_findings.h"
#include "kelifc/server/load_options.h"
#include "kelifc/server/load_report.h"
#include "kelifc/server/load_result.h"
#include "kelifc/server/progress_handler.h"
#include "kelifc/server/release.h"
#include "kelifc/server/save_options.h"
#include "kelifc/server/source_position.h"
#include "kelifc/server/statement_place.h"

namespace KelIFC {

class BlockEnds;
class IfcServer;
class IfcUnknown;
class IsoStatementReader;
class LoadArena;
class ModelOrigin;
class ModelSource;
class ProgressSteps;
class ReportCollector;
class ScanBuffer;
class StepFileSchema;
enum class StatedAs : std::uint8_t;
struct MadeStatement;
enum class ListedAs : std::uint8_t;

/// The order of global identifiers: by the three numbers, then byte by byte.
struct KELIFC_API GuidLess {
  /// Returns true if `a` comes before `b`.
  bool operator()(const _GUID& a, const _GUID& b) const;
};

/// Receives an error of a save as one line without its line end: the path as the host passed it, a
/// colon, a blank and the cause.
using ErrorHandler = std::function<void(const std::string& message)>;

/// One model: it owns the instances of one file, or of one model that is built in memory, and finds
/// each by its instance number (the n of #n). All references of the instances resolve through it.
///
/// Except where a comment says otherwise, no operation throws or reports an error: null and 0 mean
/// "not found". No instance has the number 0. A null name, path or instance is never dereferenced.
/// One thread at a time uses a server and its instances.
class KELIFC_API IfcServer {
 public:
  IfcServer();

  /// Copies field by field: both servers then own the same instances, and both would destroy them.
  /// Copy only a server without instances.
  IfcServer(const IfcServer&);
  IfcServer& operator=(const IfcServer&);

  // The operations that a derived class can override. Their order is fixed; new operations are
  // added below them and are not virtual.

  /// Destroys the instances, in reverse order of registration.
  virtual ~IfcServer();

  /// Returns the release of the model, IFC_RELEASE_NONE in a new server. A load sets it.
  virtual IFC_RELEASE GetRelease();
  /// Sets the release of a model that is built in memory. The instances do not change. While a
  /// release is set, LoadIfcFile returns 0 and an empty model for a file with an unknown schema.
  virtual void SetRelease(IFC_RELEASE release);

  /// Destroys all instances, in reverse order of registration, and removes all numbers and
  /// identifiers. The dialect becomes the classic one. The release, the tolerance and the switches
  /// do not change.
  virtual void Reset();

  /// Registers an instance with its number in a file and becomes its owner. If the number is in
  /// use, it moves to the new instance; the earlier instance stays without a number and is not
  /// saved. A null instance or the number 0 has no effect. Throws std::bad_alloc if there is no
  /// memory: then the model does not change, and an instance without a server is destroyed.
  virtual void InsertItem(std::size_t id, IfcUnknown* item);

  /// Registers an instance with a new number, becomes its owner and returns the number: the highest
  /// number in use plus 1. During a load the number is above every number of the file. If it would
  /// overflow, it is the lowest free number. A null instance gets a number and an empty slot.
  /// Throws as InsertItem does.
  virtual std::size_t AddItem(IfcUnknown* item);

  /// Makes an instance of an entity of the server's release, by its name, and registers it. Returns
  /// the instance, which belongs to the server, or null for a name that the release does not know.
  /// All attributes are unset, and so is the global identifier. The object model finds the storey
  /// of an element by the global identifiers of both. So in a model that is built in memory, no
  /// element belongs to a storey until the host has set these identifiers.
  virtual IfcUnknown* CreateItem(const char* name);

  /// Destroys an instance and returns its number, 0 if it has none or is not in this model. Its
  /// slot stays and becomes empty. The pointer can be dangling; null means the first empty slot.
  virtual std::size_t DeleteItem(const IfcUnknown* item);

  /// Replaces the model by that of a STEP file, which must be an ordinary file because it is read
  /// twice. Returns a LOAD_RESULT. If the progress handler stops the load, the model is empty. Text
  /// that cannot be understood is left out without a report, and so is an instance for which there
  /// is no memory. If any other allocation fails, the model is empty and std::bad_alloc is thrown.
  virtual int LoadIfcFile(const char* path);

  /// Writes all instances with a number to a STEP file, in ascending order of the numbers. Returns
  /// 0 if the file was created, 1 if it was not or if the server has no release. The error handler
  /// receives every failure, also a failure to write to the file, for which the result is 0 all the
  /// same.
  virtual int SaveIfcFile(const char* path);

  /// Makes an unregistered instance from the entity name at the start of `text`; the caller owns
  /// it. Stores the position after the name in `end`, which can be null. Returns null for a name
  /// that the release does not know.
  virtual IfcUnknown* ParseClass(const char* text, const char** end);

  /// @{
  /// Makes an unregistered instance by name, ignoring the case of letters; the caller owns it.
  /// InstantiateClass knows the names that all releases share; each of the others calls it first
  /// and then searches its own names. For an unknown name it returns null, and an IfcOther in 2x2
  /// and 2x3.
  virtual IfcUnknown* InstantiateClass(const char* name);
  virtual IfcUnknown* InstantiateClass151(const char* name);
  virtual IfcUnknown* InstantiateClass20(const char* name);
  virtual IfcUnknown* InstantiateClass2x(const char* name);
  virtual IfcUnknown* InstantiateClass2x2(const char* name);
  virtual IfcUnknown* InstantiateClass2x3(const char* name);
  /// @}

  /// Returns the tolerance of the model, 0.001 in a new server.
  virtual double GetEps() const;

  /// Always returns null, even if the model has the number. A call through a const server or a
  /// pointer to one selects this overload; use the overload that is not const.
  virtual const IfcUnknown* GetItem(std::size_t id) const;

  /// Returns the first instance with a global identifier, null if there is none; in 2x, 2x2 and 2x3
  /// only. It uses an index that is built at the first call and removed by Reset: instances that
  /// are registered later, and identifiers that change later, are not found.
  virtual IfcUnknown* GetItem(const _GUID& guid);

  /// Returns the instance with a number, or null. The instance belongs to the server.
  virtual IfcUnknown* GetItem(std::size_t id);

  /// Returns the number of an instance, 0 if it has none or is not in this model. The pointer can
  /// be dangling; null means the first empty slot. Takes constant time.
  virtual std::size_t Find(const IfcUnknown* item) const;

  /// Returns all slots in order of registration. The slots of deleted instances are null.
  virtual const Mvector<IfcUnknown*>& GetItems() const;

  /// @{
  /// Returns the first project of a release, or null. The project belongs to the server.
  virtual const KelIFC151::IfcProject* GetProject151() const;
  virtual const KelIFC20::IfcProject* GetProject20() const;
  virtual const KelIFC2x::IfcProject* GetProject2x() const;
  virtual KelIFC2x2::IfcProject* GetProject2x2();
  virtual const KelIFC2x2::IfcProject* GetProject2x2() const;
  virtual KelIFC2x3::IfcProject* GetProject2x3();
  virtual const KelIFC2x3::IfcProject* GetProject2x3() const;
  /// @}

  /// Returns a switch that the host can set, false in a new server. A load sets it to true if the
  /// file has an IfcRelFillsElement with a building element. The server does not use it.
  virtual bool GetSupportsFillings() const;

  /// Sets the tolerance of this model, and also the tolerance with which every server of the
  /// process writes real numbers. Returns the old tolerance of this model.
  virtual double SetEps(double eps);

  /// Sets the switch that GetSupportsFillings returns.
  virtual void SetSupportsFillings(bool supportsFillings);

  // Global identifiers as text.

  /// Writes the 20 characters in base 85 that releases 1.5.1 and 2.0 use, and a NUL, to `text`,
  /// which has room for 21 characters. Returns false only if `text` is null.
  static bool EncodeGUID(const _GUID& guid, char* text);

  /// Decodes the first 20 characters of `text`. A character outside the alphabet counts as 0.
  /// Returns false, and does not change `guid`, if there are fewer characters.
  static bool DecodeGUID(const char* text, _GUID& guid);

  /// Returns a new identifier as text in base 85, for releases 1.5.1 and 2.0.
  static std::string CreateGlobalId();

  /// Returns a new identifier as 22 characters in base 64, for releases 2x, 2x2 and 2x3.
  static std::string CreateGlobalId2x();

  // Additions for C++ hosts.

  /// Returns the schema string in the header of the file that was loaded last, without any change;
  /// "" if that load did not reach it.
  const std::string& GetFileSchema() const { return fileSchema; }

  /// Replaces the model by that of a STEP file, as LoadIfcFile does, with the rules of `options`.
  /// There are these differences:
  ///  - Only the file decides about the release. A release that was set before has no effect.
  ///  - If a limit is reached, the result is 4; if the progress handler stopped the load, it is 5.
  ///    In both cases the model is empty.
  ///  - If the schema belongs to a later release, such as IFC4X3, the result is 6. GetFileSchema
  ///    returns its name.
  ///  - GetLoadFindings returns what is wrong in the file.
  /// In the dialect of ISO 10303-21, texts are UTF-8, and the schema is the first known name in the
  /// header, in any case. If several statements have the same number, only the last one is read.
  int LoadIfc(const char* path, const LoadOptions& options);

  /// The same for the rest of a stream. The rest is copied to a temporary file first, because a
  /// load reads a model twice. Progress is reported after that.
  int LoadIfcStream(std::istream& in, const LoadOptions& options);

  /// The same for `size` bytes of memory. They must not change during the load. In the dialect of
  /// ISO 10303-21 the server keeps a copy, which it reads again for CheckModel and a faithful save,
  /// so the bytes are not needed after the load. In the classic dialect a host that calls
  /// CheckModel keeps them until then.
  int LoadIfcMemory(const void* data, std::size_t size, const LoadOptions& options);

  /// Writes all numbered instances to a STEP file, as SaveIfcFile does, and returns a SAVE_RESULT.
  /// There are these differences:
  ///  - The file is written beside `path` and replaces it at the end, as FileReplacement defines. A
  ///    failure at any time leaves the old file as it was.
  ///  - Every failure has a result other than 0. The error handler receives one message.
  ///  - A faithful save copies from the source of the model what the host did not change.
  int SaveIfc(const char* path, const SaveOptions& options);

  /// Returns the dialect in which the model was loaded, and in which it is saved. Returns
  /// STEP_DIALECT_CLASSIC after Reset and after a load that failed. In the dialect of ISO 10303-21
  /// the texts of attributes are UTF-8.
  STEP_DIALECT GetDialect() const { return dialect; }

  /// Returns what the last LoadIfc, LoadIfcStream or LoadIfcMemory found wrong in its file. It is
  /// empty after LoadIfcFile.
  const LoadFindings& GetLoadFindings() const { return report.findings; }

  /// Returns the report of the last LoadIfc, LoadIfcStream or LoadIfcMemory. It is empty after
  /// LoadIfcFile. After a load that failed it has the counts up to the failure.
  const LoadReport& GetLoadReport() const { return report; }

  /// Adds to the report what a load does not look for: references to numbers that no statement has,
  /// and attributes whose values are not what the schema says. Reads the source twice, in linear
  /// time, and allocates 4 bytes of memory for each number.
  /// Returns true if the report is complete; a second call for the same model does nothing.
  ///
  /// Returns false if no model was loaded with a report, if the source cannot be read, or if it is
  /// not the source that was loaded. In the last case LoadReport::hasSourceChanged is true. The
  /// rest of the report does not change. The same holds if it throws std::bad_alloc.
  bool CheckModel();

  /// Returns the place of the statement of an instance in the source. All its members are 0 for a
  /// number that no statement has, and for a model that LoadIfcFile loaded. Of statements with the
  /// same number the last one counts. Takes constant time.
  StatementPlace GetStatementPlace(std::size_t number) const;

  /// The line of that place, from 1; 0 for none.
  std::uint32_t GetSourceLine(std::size_t number) const { return GetStatementPlace(number).line; }

  /// True if a number is in use, by an empty slot too.
  bool HasNumber(std::size_t number) const {
    return idToIndex.Find(number) != detail::NumberIndex::kNone;
  }

  /// Returns the number of instance numbers in use, including those of empty slots.
  std::size_t GetNumberCount() const { return idToIndex.GetCount(); }

  /// Returns the lowest number in use above `number`, 0 if there is none. This loop visits the
  /// numbers in ascending order:
  ///   for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) ...
  std::size_t GetNextNumber(std::size_t number) const;

  /// Returns the positions in GetItems of the instances that are products (2x, 2x2 and 2x3),
  /// counted from 0 and in ascending order. Few instances are products, so a loop over products
  /// need not visit every instance. Slots of deleted instances are null.
  const std::vector<std::uint32_t>& GetProductPositions() const { return productPositions; }

  /// Returns the positions in GetItems of all instances of IfcRoot (2x, 2x2 and 2x3), and of all
  /// raw text, which can be the text of an IfcRoot. They are counted from 0 and in ascending order.
  /// A loop over objects and relationships need not visit every instance. Slots of deleted
  /// instances are null.
  const std::vector<std::uint32_t>& GetRootPositions() const { return rootPositions; }

  /// Returns for each position in GetItems the number of its instance, as Find does; 0 if there is
  /// none. Takes linear time, and is much faster than a look-up for each instance.
  std::vector<std::uint64_t> GetNumbersByPosition() const;

  /// Sets the handler that receives the progress of loads: the bytes read so far and the bytes to
  /// read, for both passes over the file together. An empty handler, as in a new server, receives
  /// nothing. SaveOptions::progress receives the progress of a save.
  void SetProgressHandler(ProgressHandler handler);

  /// Sets the handler that receives the errors of saves. With an empty handler, as in a new server,
  /// a save writes one line that begins with "kelifc: " to the standard error stream.
  void SetErrorHandler(ErrorHandler handler);

 private:
  friend class FaithfulSave;
  friend class InstanceWriter;
  friend class PieceMaker;
  friend class PieceParser;
  friend class SourceStatements;
  friend bool IsReadLater(const IfcServer* server, std::size_t number);
  friend void ScanFile(std::istream& in, IfcServer* server, bool firstPass,
                       const SourcePosition& from);
  template <class AnyScanner>
  friend void ScanStatements(IfcServer& server, AnyScanner& scanner, bool firstPass);
  friend std::int16_t RegisterStatement(IfcServer* server, char* statement);
  friend std::int16_t ParseStatement(IfcServer* server, char* statement);

  // The state of a load while it runs; all zero outside a load.
  struct LoadState {
    STEP_DIALECT dialect = STEP_DIALECT_CLASSIC;
    LoadLimits limits = {0, 0, 0, 0};
    LoadFindings* findings = nullptr;      // null if nothing is noted
    ReportCollector* collector = nullptr;  // null if nothing is counted
    ModelOrigin* origin = nullptr;         // receives what a faithful save needs; null for none
    std::uint64_t* hash = nullptr;         // receives the hash of the source; null for none
    bool isReported = false;               // the places of statements are kept for the host
    bool keepsUnknown = false;             // as IfcOther, where the release has no class
    unsigned threads = 1;                  // which the load uses, that of the caller included

    bool isRunning = false;
    bool isStopped = false;                // by the progress handler
    bool isBeyondLimit = false;            // one of the limits was reached
    bool isLaterSchema = false;            // the schema belongs to a later release
    bool hasUnread = false;                // a numbered statement has no instance
    const ScanBuffer* scanner = nullptr;   // of the pass that runs
    IsoStatementReader* reader = nullptr;  // null in the classic dialect
    const LoadArena* memory = nullptr;     // of the model; null if it has no arena
    std::uint64_t statementBytes = 0;      // of the statements that were read
    // For each number, how many statements with that number follow. Only the last one is read.
    std::unordered_map<std::size_t, std::size_t> repeats;
    const IfcUnknown* parsed = nullptr;  // the instance whose statement is being read,
    std::size_t parsedNumber = 0;        // and its number
    std::size_t statementNumber = 0;     // of the statement that is being read, for the report
    std::size_t statedEnd = 0;  // of the positions of instances that statements made; second pass
    bool isPostponed = false;   // after all statements: instances that classes add are registered
    detail::NumberOrder order;  // of the statements of the pass that runs
    std::uint64_t highestNumber = 0;    // of all statements so far, including those left out
    std::uint64_t highestOrdinary = 0;  // the same, of numbers that are not negative
    std::uint64_t bytesBefore = 0;      // in the passes that are done
    std::uint64_t bytesTotal = 0;       // of both passes
    std::uint64_t bytesReported = 0;
    std::uint64_t threadBytes = 0;        // blocks of the model that other threads allocated,
    std::uint64_t threadBytesBefore = 0;  // and those of them in the passes that are done
    SourcePosition stoppedAt;             // after the statement that ended a pass early
    // With several threads: where statements end, about once for each block of the file.
    std::vector<SourcePosition> cuts;
  };

  IfcUnknown* MakeByRelease(const char* name);
  std::size_t MakeNumber();
  void Append(std::size_t id, IfcUnknown* item);
  void AppendNew(std::size_t id, std::unique_ptr<IfcUnknown> item, ListedAs listed);
  void FillSlot(std::size_t id, IfcUnknown* item, ListedAs listed);
  void DropSlot(std::size_t position) noexcept;
  void BuildInstanceIndex() const;
  std::uint64_t FindProductNumber(const IfcUnknown* item) const;
  void BuildGuidIndex();
  void DropRepeatedSlots();

  int LoadWithOptions(std::shared_ptr<const ModelSource> model, const LoadOptions& options);
  void KeepSource(std::shared_ptr<const ModelSource> kept);
  unsigned CountThreads(const LoadOptions& options, std::uint64_t size) const;
  LoadState MakeLoadState(const LoadOptions& options, std::uint64_t size);
  void MakeInstances(std::istream& in);
  void MakeOnThreads(std::istream& in);
  bool CanParseOnThreads() const;
  void ScanSource(std::istream& in);
  void ScanInstances(std::istream& in);
  void EndReport(ReportCollector& collector, std::shared_ptr<const ModelSource> model);
  int LoadFrom(const ModelSource& model, const LoadState& initial);
  int LoadPasses(const ModelSource& model);
  void ForgetLoad();
  void MakeRoom(std::uint64_t fileSize);
  bool GoesOn(std::uint64_t bytesRead);
  bool GoesOn(const BlockEnds& ends);
  bool ReportProgress(std::uint64_t bytesRead);
  bool IsWithinMemory() const;
  std::int16_t ReadHeaderStatement(char* statement);
  IFC_RELEASE ReadSchema(const char* statement);
  IFC_RELEASE ReadIsoSchema(const char* statement);
  std::int16_t RegisterInstance(char* statement);
  MadeStatement MakeStatement(std::size_t id, const char* text, const ScanBuffer& scanner);
  void RegisterMade(MadeStatement statement, const char* text);
  bool IsIso() const { return load.dialect == STEP_DIALECT_ISO; }
  IfcUnknown* MakeStated(const char* text);
  IfcUnknown* MakeRaw(const char* text);
  void NoteRepeat(std::size_t id, const SourcePlace& place);
  void NotePlace(std::size_t id, const StatementPlace& place);
  void NoteStatement(std::size_t id, StatedAs kind, const char* text);
  bool IsStatementOf(std::size_t id);
  bool IsRepeated(std::size_t id);
  void NoteNumber(std::size_t id);
  IfcUnknown* FindStated(std::size_t id, std::uint64_t offset);
  void NoteFailure(const SourcePlace& place);

  int SaveModel(const char* path, std::string_view schema, const SaveOptions& options,
                std::string& reason);
  void WriteModel(std::ostream& out, std::string_view fileName, std::string_view schema,
                  ProgressSteps& progress, unsigned threads);
  unsigned CountThreads(const SaveOptions& options) const;
  void WriteInstances(std::ostream& out, ProgressSteps& progress);
  void WriteInstance(std::ostream& out, std::uint64_t number);
  int TellError(const std::string& message) const;  // returns the code of a failed save

  Mvector<IfcUnknown*> items;  // owned; null where deleted
  detail::NumberIndex idToIndex;
  IFC_RELEASE release = IFC_RELEASE_NONE;
  double eps = 0.001;
  bool supportsFillings = false;
  std::shared_ptr<StepFileSchema> schemaRecord;  // shared by copies of the server
  bool headerSeen = false;
  std::vector<std::uint32_t> rootPositions;     // in `items`; see GetRootPositions
  std::vector<std::uint32_t> productPositions;  // in `items`; they are roots, too
  std::vector<std::uint64_t> productIds;        // the numbers with which they were registered
  detail::GuidIndex guidIndex;                  // of the roots, built at the first look-up

  mutable detail::InstanceIndex instanceIndex;
  mutable detail::ProductNumbers productNumbers;
  bool mayRepeat = false;            // an instance may be in two slots
  std::size_t slotsWithoutGuid = 0;  // so many slots had no global identifier
  std::string fileSchema;
  STEP_DIALECT dialect = STEP_DIALECT_CLASSIC;
  LoadReport report;
  std::shared_ptr<const ModelSource> source;  // of the last LoadIfc; null if there is none
  std::uint64_t sourceHash = 0;               // of the bytes of the source
  std::vector<StatementPlace> places;         // by position in `items`; shorter than that
  std::shared_ptr<const ModelOrigin> origin;  // null if the model cannot be saved faithfully
  LoadState load;
  ProgressHandler progressHandler;
  ErrorHandler errorHandler;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_IFC_SERVER_H_
