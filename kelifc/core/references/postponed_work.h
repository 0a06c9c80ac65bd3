#ifndef KELIFC_CORE_REFERENCES_POSTPONED_WORK_H_
#define KELIFC_CORE_REFERENCES_POSTPONED_WORK_H_

#include <array>
#include <cstddef>
#include <cstring>
#include <new>
#include <type_traits>
#include <vector>

namespace KelIFC {

class IfcUnknown;

/// The work of parsed statements that changes other instances or the model. A load on several
/// threads must do this work in the order of the file and on one thread. So each thread has a list
/// while it parses, and notes the work there. Without a list, the work is done at once.
class PostponedWork {
 public:
  /// Work on behalf of one statement.
  class Task {
   public:
    template <class Work>
    Task(IfcUnknown* stated, std::size_t statedNumber, const Work& work)
        : instance(stated), number(statedNumber), run(RunAs<Work>) {
      static_assert(std::is_trivially_copyable_v<Work> && sizeof(Work) <= sizeof(memory));
      std::memcpy(memory.data(), &work, sizeof work);
    }

    void Run() { run(memory.data()); }

    IfcUnknown* instance;  ///< which the statement was parsed into
    std::size_t number;    ///< of the statement

   private:
    static constexpr std::size_t kSize = 5 * sizeof(void*);

    template <class Work>
    static void RunAs(void* memory) {
      (*std::launder(static_cast<Work*>(memory)))();
    }

    void (*run)(void*);
    alignas(alignof(void*)) std::array<std::byte, kSize> memory;
  };

  PostponedWork() = default;

  /// Sets the statement that the current thread parses.
  void SetStatement(IfcUnknown* parsed, std::size_t parsedNumber) {
    instance = parsed;
    number = parsedNumber;
  }

  /// Makes a list the one of the current thread, as long as the object lives.
  class Collection {
   public:
    explicit Collection(PostponedWork& list);
    ~Collection();
    Collection(const Collection&) = delete;
    Collection& operator=(const Collection&) = delete;

   private:
    PostponedWork* outer;
  };

  /// Does work that changes the inverse attributes of other instances. A load postpones it until
  /// the statements before and those near are parsed.
  template <class Work>
  static void Link(const Work& work) {
    if (PostponedWork* const list = GetCurrent()) {
      list->links.emplace_back(list->instance, list->number, work);
    } else {
      work();
    }
  }

  /// Does work that adds instances to the model. A load postpones it until all statements are
  /// parsed.
  template <class Work>
  static void Extend(const Work& work) {
    if (PostponedWork* const list = GetCurrent()) {
      list->extensions.emplace_back(list->instance, list->number, work);
    } else {
      work();
    }
  }

  std::vector<Task> links;       ///< the work that was passed to Link, in its order
  std::vector<Task> extensions;  ///< the work that was passed to Extend, in its order

 private:
  static PostponedWork* GetCurrent();

  IfcUnknown* instance = nullptr;
  std::size_t number = 0;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_REFERENCES_POSTPONED_WORK_H_
