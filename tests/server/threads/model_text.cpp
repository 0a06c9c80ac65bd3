#include "tests/server/threads/model_text.h"

#include <sstream>

#include "kelifc/core/unknown.h"
#include "kelifc/schema/ifc20.h"
#include "kelifc/schema/ifc2x.h"
#include "kelifc/schema/ifc2x2.h"
#include "kelifc/schema/ifc2x3.h"
#include "kelifc/server/report_format.h"

#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

void PutNumber(const IfcServer& server, const IfcUnknown* instance, std::ostream& out) {
  out << " #" << server.Find(instance);
}

template <template <class> class View, class T>
void PutNumbers(const IfcServer& server, const View<T*>& view, std::ostream& out) {
  for (std::size_t i = 1; i <= view.GetSize(); ++i) PutNumber(server, view[i], out);
}

/// Puts the inverse attributes of an instance, if it is of a class.
template <class Type, class... Getters>
void PutInverse(const IfcServer& server, const IfcUnknown& instance, std::ostream& out,
                Getters... getters) {
  const auto* const object = dynamic_cast<const Type*>(&instance);
  if (object == nullptr) return;
  ((out << " (", PutNumbers(server, getters(*object), out), out << ')'), ...);
}

template <class Element, class Opening, class Building>
void PutInverseOfElement(const IfcServer& server, const IfcUnknown& instance, std::ostream& out) {
  PutInverse<Element>(
      server, instance, out, [](const Element& e) { return e.GetConnectedTo(); },
      [](const Element& e) { return e.GetConnectedFrom(); });
  PutInverse<Opening>(server, instance, out, [](const Opening& o) { return o.GetHasFillings(); });
  if (const auto* opening = dynamic_cast<const Opening*>(&instance)) {
    PutNumber(server, opening->GetVoidsElements(), out);
  }
  PutInverse<Building>(
      server, instance, out, [](const Building& b) { return b.GetHasOpenings(); },
      [](const Building& b) { return b.GetFillsVoids(); });
}

template <class Object, class Element, class Structure>
void PutInverseOfObject(const IfcServer& server, const IfcUnknown& instance, std::ostream& out) {
  PutInverse<Object>(
      server, instance, out, [](const Object& o) { return o.GetDecomposes(); },
      [](const Object& o) { return o.GetIsDecomposedBy(); },
      [](const Object& o) { return o.GetIsDefinedBy(); },
      [](const Object& o) { return o.GetHasAssociations(); });
  PutInverse<Element>(server, instance, out,
                      [](const Element& e) { return e.GetContainedInStructure(); });
  PutInverse<Structure>(server, instance, out,
                        [](const Structure& s) { return s.GetContainsElements(); });
}

void DescribeInverse(const IfcServer& server, const IfcUnknown& instance, std::ostream& out) {
  PutInverse<KelIFC20::IfcObject>(
      server, instance, out, [](const KelIFC20::IfcObject& o) { return o.GetContains(); },
      [](const KelIFC20::IfcObject& o) { return o.GetIsContainedBy(); });
  PutInverseOfElement<KelIFC20::IfcElement, KelIFC20::IfcOpeningElement,
                      KelIFC20::IfcBuildingElement>(server, instance, out);
  PutInverseOfElement<KelIFC2x::IfcElement, KelIFC2x::IfcOpeningElement,
                      KelIFC2x::IfcBuildingElement>(server, instance, out);
  PutInverseOfElement<KelIFC2x2::IfcElement, KelIFC2x2::IfcOpeningElement,
                      KelIFC2x2::IfcBuildingElement>(server, instance, out);
  PutInverseOfElement<KelIFC2x3::IfcElement, KelIFC2x3::IfcOpeningElement,
                      KelIFC2x3::IfcBuildingElement>(server, instance, out);
  PutInverseOfObject<KelIFC2x::IfcObject, KelIFC2x::IfcElement,
                     KelIFC2x::IfcSpatialStructureElement>(server, instance, out);
  PutInverseOfObject<KelIFC2x2::IfcObject, KelIFC2x2::IfcElement,
                     KelIFC2x2::IfcSpatialStructureElement>(server, instance, out);
  PutInverseOfObject<KelIFC2x3::IfcObject, KelIFC2x3::IfcElement,
                     KelIFC2x3::IfcSpatialStructureElement>(server, instance, out);
}

void DescribeInstanceOf(IfcServer& server, const IfcUnknown& instance, std::ostream& out) {
  const std::size_t number = server.Find(&instance);
  const StatementPlace place = server.GetStatementPlace(number);
  out << '#' << number << " at " << place.offset << '+' << place.length << " line " << place.line
      << ": ";
  instance.Write(out);
  DescribeInverse(server, instance, out);
  out << (instance.GetServer() == &server ? "\n" : " in another model\n");
}

}  // namespace

LoadedModel LoadText(const std::string& text, const LoadOptions& options, std::size_t mostCalls) {
  LoadedModel model;
  std::ostringstream calls;
  std::size_t count = 0;
  model.server->SetProgressHandler([&](std::uint64_t done, std::uint64_t total) {
    calls << done << '/' << total << '\n';
    return ++count < mostCalls;
  });
  model.result = model.server->LoadIfcMemory(text.data(), text.size(), options);
  model.server->SetProgressHandler(nullptr);
  model.progress = calls.str();
  return model;
}

std::string Describe(const LoadedModel& model) {
  IfcServer& server = *model.server;
  std::ostringstream out;
  out << "result " << model.result << ", release " << server.GetRelease() << ", schema "
      << server.GetFileSchema() << ", dialect " << server.GetDialect() << '\n';
  // A load that fails leaves the switch as it is at that time.
  if (model.result == 0) out << "fillings " << server.GetSupportsFillings() << '\n';
  for (const IfcUnknown* instance : server.GetItems()) {
    if (instance != nullptr) DescribeInstanceOf(server, *instance, out);
  }
  out << "numbers:";
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    out << ' ' << n;
  }
  out << "\nproducts:";
  for (const std::uint32_t position : server.GetProductPositions()) out << ' ' << position;
  out << '\n' << model.progress;
  // A load that is cancelled has counted the statements of the last piece or a part of them.
  if (model.result != LOAD_RESULT_CANCELLED) out << FormatReportAsJson(server.GetLoadReport());
  return out.str();
}

std::string FirstDifference(const std::string& a, const std::string& b) {
  if (a == b) return "";
  std::istringstream left(a);
  std::istringstream right(b);
  std::string lineOfLeft;
  std::string lineOfRight;
  do {
    lineOfLeft = lineOfRight = "(end)";
    std::getline(left, lineOfLeft);
    std::getline(right, lineOfRight);
  } while (lineOfLeft == lineOfRight);
  return lineOfLeft + "\n" + lineOfRight;
}

std::string SavedData(IfcServer& server, bool faithful, unsigned threads) {
  const TempFile file;
  SaveOptions options;
  options.faithful = faithful;
  options.threads = threads;
  server.SetErrorHandler([](const std::string&) {});
  if (server.SaveIfc(file.GetPath(), options) != 0) return "cannot be saved";
  const std::string text = file.Read();
  const std::size_t data = text.find("DATA");
  return data == std::string::npos ? text : text.substr(data);
}

}  // namespace KelIFC
