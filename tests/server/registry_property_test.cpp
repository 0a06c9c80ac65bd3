#include <gtest/gtest.h>

#include <map>
#include <random>
#include <vector>

#include "kelifc/server/ifc_server.h"

#include "tests/server/probe.h"

namespace KelIFC {
namespace {

// The registry by its plain definition: a list of slots and an ordered map, searched from the
// start.
class PlainRegistry {
 public:
  std::size_t AddItem(const IfcUnknown* item) {
    std::size_t number = numbers.empty() ? 1 : numbers.rbegin()->first + 1;
    if (number == 0) {
      for (number = 1; numbers.count(number) != 0;) ++number;
    }
    numbers[number] = slots.size();
    slots.push_back(item);
    return number;
  }

  void InsertItem(std::size_t number, const IfcUnknown* item) {
    if (item == nullptr || number == 0) return;
    numbers[number] = slots.size();
    slots.push_back(item);
  }

  std::size_t Find(const IfcUnknown* item) const {
    for (std::size_t position = 0; position < slots.size(); ++position) {
      if (slots[position] == item) return NumberOf(position);
    }
    return 0;
  }

  std::size_t DeleteItem(const IfcUnknown* item) {
    const std::size_t number = Find(item);
    numbers.erase(number);
    if (item == nullptr) return number;
    for (const IfcUnknown*& slot : slots) {
      if (slot == item) slot = nullptr;
    }
    return number;
  }

  const IfcUnknown* GetItem(std::size_t number) const {
    const auto found = numbers.find(number);
    return found == numbers.end() ? nullptr : slots[found->second];
  }

  std::vector<const IfcUnknown*> slots;
  std::map<std::size_t, std::size_t> numbers;

 private:
  std::size_t NumberOf(std::size_t position) const {
    for (const auto& [number, slot] : numbers) {
      if (slot == position) return number;
    }
    return 0;
  }
};

// Applies the same random operations to a server and to the plain registry, and compares each
// result.
class Comparison {
 public:
  explicit Comparison(unsigned seed) : random(seed) {}

  void Step() {
    switch (random() % 10) {
      case 0:
      case 1:
        Add(new Probe);
        break;
      case 2:
        Add(random() % 2 == 0 ? nullptr : AnyLiving());
        break;
      case 3:
      case 4:
        Insert(new Probe);
        break;
      case 5:
        Delete();
        break;
      default:
        Compare();
    }
  }

  void CompareAll() {
    ASSERT_EQ(server.GetNumberCount(), plain.numbers.size());
    std::size_t number = 0;
    for (const auto& entry : plain.numbers) {
      number = server.GetNextNumber(number);
      ASSERT_EQ(number, entry.first);
    }
    ASSERT_EQ(server.GetNextNumber(number), 0u);
    ASSERT_EQ(server.GetItems().size(), plain.slots.size());
    for (std::size_t i = 0; i < plain.slots.size(); ++i) {
      ASSERT_EQ(server.GetItems()[i], plain.slots[i]);
      ASSERT_EQ(server.Find(plain.slots[i]), plain.Find(plain.slots[i]));
    }
  }

 private:
  IfcUnknown* AnyLiving() {
    return server.GetItems().empty() ? nullptr
                                     : server.GetItems()[random() % server.GetItems().size()];
  }

  // An instance that is registered, one that was destroyed, one that never existed, or null.
  const IfcUnknown* AnyInstance() {
    static const Probe kStranger;
    if (random() % 16 == 0) return &kStranger;
    return known.empty() ? nullptr : known[random() % known.size()];
  }

  std::size_t AnyNumber() {
    if (random() % 40 == 0) return 0xFFFFFFFFFFFFFFFF - random() % 3;
    if (random() % 20 == 0) return std::size_t{random() % 5} << 20;
    return random() % 60;
  }

  void Add(IfcUnknown* item) {
    known.push_back(item);
    ASSERT_EQ(server.AddItem(item), plain.AddItem(item));
  }

  void Insert(IfcUnknown* item) {
    const std::size_t number = AnyNumber();
    known.push_back(item);
    server.InsertItem(number, item);
    plain.InsertItem(number, item);
    if (number == 0) delete item;
  }

  void Delete() {
    const IfcUnknown* item = AnyInstance();
    ASSERT_EQ(server.DeleteItem(item), plain.DeleteItem(item));
  }

  void Compare() {
    const IfcUnknown* item = AnyInstance();
    ASSERT_EQ(server.Find(item), plain.Find(item));
    const std::size_t number = AnyNumber();
    ASSERT_EQ(server.GetItem(number), plain.GetItem(number));
  }

  std::mt19937 random;
  IfcServer server;
  PlainRegistry plain;
  std::vector<const IfcUnknown*> known = {nullptr};
};

TEST(Registry, ReturnsTheSameAsALinearSearch) {
  for (unsigned seed = 0; seed < 60 && !testing::Test::HasFatalFailure(); ++seed) {
    Comparison comparison(seed);
    for (int step = 0; step < 600 && !testing::Test::HasFatalFailure(); ++step) comparison.Step();
    comparison.CompareAll();
  }
}

}  // namespace
}  // namespace KelIFC
