#ifndef KELIFC_BUILDING_READ_ITEMS_H_
#define KELIFC_BUILDING_READ_ITEMS_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/facts/number_map.h"
#include "kelifc/building/facts/solid_facts.h"
#include "kelifc/building/read/profiles.h"
#include "kelifc/building/read/read_context.h"

namespace KelIFC::building {

/// Reads the items of representations. Each item is read once, however many products and maps use
/// it. Nesting of any depth takes no stack; what is nested deeper than ReadingOptions::maxDepth
/// becomes an Unreadable with kLimit, and what contains itself one with kCycle.
class ItemReader {
 public:
  explicit ItemReader(ReadContext& reading) : context(reading), profiles(reading) {}

  /// The solids of a representation. Items that are never a body, such as curves, are left out if
  /// there are others. An item that cannot be read is an Unreadable.
  const std::vector<SolidPointer>& ReadItems(const Instance& representation);

  /// The same as one solid that several owners share, for representations with many items.
  SolidPointer ReadShared(const Instance& representation);

 private:
  // An item, or a representation, which is a group of items.
  struct Node {
    bool isComplete = false;
    std::size_t height = 0;  // the levels of items below it and itself
    SolidPointer solid;
    std::vector<SolidPointer> group;
  };

  struct Frame {
    Instance instance;
    std::vector<Instance> children;
    std::size_t next = 0;
  };

  Node& Complete(const Instance& instance);
  void Push(const Instance& instance);
  void Finish(const Frame& frame);
  std::vector<Instance> ChildrenOf(const Instance& instance) const;
  SolidPointer Refuse(LossReason reason, std::size_t at, std::size_t id) const;
  SolidPointer Share(Node& node, std::size_t number) const;
  SolidPointer SolidOf(const Instance& user, const Instance& item);
  void FinishGroup(const Frame& frame, Node& node);
  Solid Make(const Instance& item);

  void ReadExtrusion(const Instance& item, Solid& solid, Unreadable& why);
  void ReadRevolution(const Instance& item, Solid& solid, Unreadable& why);
  void ReadSweptDisk(const Instance& item, Solid& solid, Unreadable& why);
  void ReadSweptCurve(const Instance& item, Solid& solid, Unreadable& why);
  void ReadBrep(const Instance& item, Solid& solid, Unreadable& why);
  void ReadSurfaceModel(const Instance& item, Solid& solid, Unreadable& why);
  void ReadHalfSpace(const Instance& item, Solid& solid, Unreadable& why);
  void ReadPrimitive(const Instance& item, Solid& solid, Unreadable& why);
  void ReadBoolean(const Instance& item, Solid& solid, Unreadable& why);
  void ReadMapped(const Instance& item, Solid& solid, Unreadable& why);
  bool ReadLength(const Instance& item, Attribute attribute, double& metres, Unreadable& why) const;

  ReadContext& context;
  ProfileReader profiles;
  std::vector<Frame> stack;  // of Complete; empty between its calls
  NumberMap<Node> nodes;
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_ITEMS_H_
