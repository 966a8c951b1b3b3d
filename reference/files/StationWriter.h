#pragma once

#include "zqbchwcx/reference/files/FileStamp.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// The text of a station file: the same for equal stations, indented, one member a line. Throws FileError with the
/// JSON pointer for a station that could not be read again (text that is no UTF-8 or too long, too many racks, ...).
std::string WriteStation(const StationData& station, std::string_view fileName = "station");

/// Writes the station file in one step (see `AtomicWrite`) and returns its new state.
FileStamp SaveStation(const StationData& station, const std::string& fileName, FileSystem& files = SystemFiles());

} // namespace zqbchwcx::reference
