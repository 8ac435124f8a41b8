#pragma once

// Reading and writing one file of the host so that neither a full disk nor the end of the program in the
// middle loses what was there. A file is overwritten where it lies and cut to its new length at the end: at
// no moment is it empty, which for the restart record would mean a silent morning. The functions below DiskFiles;
// nothing else uses them.

#include <string>
#include <string_view>

#include "station/platform/run_time_error.h"

namespace quixair::host_file {

/// The error number that operators know for the last failed call of the host.
RunTimeError LastError();

Result<std::string> ReadAll(const std::string& host_path);

/// Makes `bytes` the file's content. 61 before anything is changed when the disk has no room for it.
/// `flush`: on the disk when the call returns.
Status Replace(const std::string& host_path, std::string_view bytes, bool flush);

/// Adds `bytes`, whole lines, at the end, or leaves the file as it was. A last line that a power cut tore is
/// ended first, so that only that line is lost.
Status AppendLines(const std::string& host_path, std::string_view bytes, bool flush);

/// A new file outlives a power cut only when its folder's entry does.
void FlushFolder(const std::string& folder);

}  // namespace quixair::host_file
