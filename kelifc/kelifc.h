#ifndef KELIFC_KELIFC_H_
#define KELIFC_KELIFC_H_

// All that a host can use: the model server, the values and the entity classes of the five
// releases, and the object model of the converted structure.

#include "kelifc/core/binary.h"
#include "kelifc/core/boolean.h"
#include "kelifc/core/bounding_box.h"
#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/coordinates.h"
#include "kelifc/core/enum.h"
#include "kelifc/core/exception.h"
#include "kelifc/core/integer.h"
#include "kelifc/core/invalid_parameter.h"
#include "kelifc/core/length_measure.h"
#include "kelifc/core/list_of_members.h"
#include "kelifc/core/logical.h"
#include "kelifc/core/member.h"
#include "kelifc/core/mvector.h"
#include "kelifc/core/other.h"
#include "kelifc/core/parameter_value.h"
#include "kelifc/core/real.h"
#include "kelifc/core/representation_item.h"
#include "kelifc/core/selects.h"
#include "kelifc/core/set_of_members.h"
#include "kelifc/core/step_file_schema.h"
#include "kelifc/core/string.h"
#include "kelifc/core/trimming_preference.h"
#include "kelifc/core/unit_assignment.h"
#include "kelifc/core/unknown.h"
#include "kelifc/core/value.h"
#include "kelifc/geo/interfaces.h"
#include "kelifc/model_access.h"
#include "kelifc/platform/com.h"
#include "kelifc/schema/ifc151.h"
#include "kelifc/schema/ifc20.h"
#include "kelifc/schema/ifc2x.h"
#include "kelifc/schema/ifc2x2.h"
#include "kelifc/schema/ifc2x3.h"
#include "kelifc/server/ifc_server.h"

#endif  // KELIFC_KELIFC_H_
