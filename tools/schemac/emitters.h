#ifndef KELIFC_TOOLS_SCHEMAC_EMITTERS_H_
#define KELIFC_TOOLS_SCHEMAC_EMITTERS_H_

#include "tools/schemac/emit_common.h"

namespace schemac {

/// The header of one family in one release.
void EmitHeader(const ReleaseModel& model, const Family& family, Files& files);

/// The source of one family in one release.
void EmitSource(const ReleaseModel& model, const Family& family, Files& files);

/// The table of the names that a file of one release can contain.
void EmitNames(const ReleaseModel& model, Files& files);

/// The comparison of the values of each class of one release.
void EmitComparisons(const ReleaseModel& model, Files& files);

/// The description of the attributes of one release: a source with constant tables.
void EmitAttributes(const ReleaseModel& model, Files& files);

/// Forward declarations, the list of classes for templates and the umbrella header of one release.
void EmitRelease(const Description& description, const ReleaseModel& model, Files& files);

/// The enumerations of the core namespace, one header per family.
void EmitCoreEnumerations(const Description& description, Files& files);

/// The reference pages and their index. Each page describes one family in all releases.
void EmitReference(const Description& description, const std::vector<ReleaseModel>& models,
                   Files& files);

/// A test source with a sample record of each class whose Parse and Write are generated.
void EmitRecords(const ReleaseModel& model, Files& files);

/// A test source that compares the order of the virtual operations with the compiler's layout.
void EmitSlots(const std::vector<ReleaseModel>& models, Files& files);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_EMITTERS_H_
