#ifndef KELIFC_SERVER_FILE_HEADER_H_
#define KELIFC_SERVER_FILE_HEADER_H_

#include <string>
#include <string_view>

namespace KelIFC {

// The fields of FILE_NAME that every save writes.

/// The local time as a header has it, such as 2012-03-03T14:05:09.
std::string GetTimeStamp();

/// The name and the version of this library.
std::string GetPreprocessorVersion();

/// Returns FILE_NAME(...) of a source with three fields replaced: the name, the time stamp and the
/// preprocessor version. Everything else stays, comments and blanks included. A field that the
/// record lacks is not added.
std::string RenewFileName(std::string_view record, std::string_view fileName);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_FILE_HEADER_H_
