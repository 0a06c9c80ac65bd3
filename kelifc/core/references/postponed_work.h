#ifndef KELIFC_CORE_REFERENCES_POSTPONED_WORK_H_
#define KELIFC_CORE_REFERENCES_POSTPONED_WORK_H_

#include <array>
#include <cstddef>
#include <cstdint>
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
  /// A statement of a file.
  struct Statement {
    IfcUnknown* instance = nullptr;  ///< into which it is parsed
    std::size_t number = 0;          ///< of the instance
    std::uint64_t line = 0;          ///< in the file,
    std::uint64_t column = 0;        ///< and in the line
  };

  /// Work on behalf of one statement.
  class Task {
   public:
    template <class Work>
    Task(const Statement& parsed, const Work& work) : statement(parsed), run(RunAs<Work>) {
      static_assert(std::is_trivially_copyable_v<Work> && sizeof(Work) <= sizeof(memory));
      std::memcpy(memory.data(), &work, sizeof work);
    }

    void Run() { run(memory.data()); }

    Statement statement;

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
  void SetStatement(const Statement& parsed) { statement = parsed; }

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
      list->links.emplace_back(list->statement, work);
    } else {
      work();
    }
  }

  /// Does work that adds instances to the model. A load postpones it until all statements are
  /// parsed.
  template <class Work>
  static void Extend(const Work& work) {
    if (PostponedWork* const list = GetCurrent()) {
      list->extensions.emplace_back(list->statement, work);
    } else {
      work();
    }
  }

  std::vector<Task> links;       ///< the work that was passed to Link, in its order
  std::vector<Task> extensions;  ///< the work that was passed to Extend, in its order

 private:
  static PostponedWork* GetCurrent();

  Statement statement;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_REFERENCES_POSTPONED_WORK_H_
