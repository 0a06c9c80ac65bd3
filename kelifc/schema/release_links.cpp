#include "kelifc/core/cast_cache.h"
#include "kelifc/schema/ifc2x.h"
#include "kelifc/schema/ifc2x2.h"
#include "kelifc/schema/ifc2x3.h"
#include "kelifc/server/release_tables.h"

namespace KelIFC {
