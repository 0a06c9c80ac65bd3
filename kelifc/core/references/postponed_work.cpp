#include "kelifc/core/references/postponed_work.h"

namespace KelIFC {
namespace {

thread_local PostponedWork* current = nullptr;

}  // namespace

PostponedWork::Collection::Collection(PostponedWork& list) : outer(current) { current = &list; }

PostponedWork::Collection::~Collection() { current = outer; }

PostponedWork* PostponedWork::GetCurrent() { return current; }

}  // namespace KelIFC
