#ifndef KELIFC_SERVER_DETAIL_PROJECT_CLASSES_H_
#define KELIFC_SERVER_DETAIL_PROJECT_CLASSES_H_

// The server returns the project of each release and needs no more than the names of the classes.

namespace KelIFC151 {
class IfcProject;
}
namespace KelIFC20 {
class IfcProject;
}
namespace KelIFC2x {
class IfcProject;
}
namespace KelIFC2x2 {
class IfcProject;
}
namespace KelIFC2x3 {
class IfcProject;
}

#endif  // KELIFC_SERVER_DETAIL_PROJECT_CLASSES_H_
