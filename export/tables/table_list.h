#ifndef EXPORT_TABLES_TABLE_LIST_H_
#define EXPORT_TABLES_TABLE_LIST_H_

#include "export/tables/tables.h"

namespace KelIFC::exporting {

// Each function makes one table.

BuildingTable ModelTable();
BuildingTable StoreyTable();
BuildingTable MaterialTable();
BuildingTable ProfileTable();
BuildingTable ElementTable();
BuildingTable LayerTable();
BuildingTable AxisPointTable();
BuildingTable OutlinePointTable();
BuildingTable OpeningTable();
BuildingTable LossTable();

}  // namespace KelIFC::exporting

#endif  // EXPORT_TABLES_TABLE_LIST_H_
