#include "kelifc/platform/com_module.h"

#include <atomic>

namespace KelIFC {

namespace {

std::atomic<long> liveObjects{0};
std::atomic<long> locks{0};

}  // namespace

long LiveObjectCount() { return liveObjects; }

bool CanUnload() { return liveObjects == 0 && locks == 0; }

void LockModule(bool lock) { locks += lock ? 1 : -1; }

LiveObject::LiveObject() { ++liveObjects; }

LiveObject::~LiveObject() { --liveObjects; }

}  // namespace KelIFC
