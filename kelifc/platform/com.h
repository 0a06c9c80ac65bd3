#ifndef KELIFC_PLATFORM_COM_H_
#define KELIFC_PLATFORM_COM_H_

// All that a host of the object model needs in addition to its interfaces: the types of the
// Component Object Model (COM), automation strings, variants, the error object, the creation of
// objects and a smart pointer. Off Windows this folder declares what the headers of Windows declare
// there.

#include "kelifc/platform/com_bstr.h"
#include "kelifc/platform/com_entry_points.h"
#include "kelifc/platform/com_error.h"
#include "kelifc/platform/com_factory.h"
#include "kelifc/platform/com_guid.h"
#include "kelifc/platform/com_interfaces.h"
#include "kelifc/platform/com_local_classes.h"
#include "kelifc/platform/com_ptr.h"
#include "kelifc/platform/com_string.h"
#include "kelifc/platform/com_text.h"
#include "kelifc/platform/com_types.h"
#include "kelifc/platform/com_variant.h"

#endif  // KELIFC_PLATFORM_COM_H_
