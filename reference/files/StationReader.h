#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/files/FileStamp.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// The name of the station file format and the version that is written.
inline constexpr std::string_view StationFormat = "quillon-station";
inline constexpr std::int32_t StationFormatVersion = 1;
/// Several times what 100 racks full of modules take.
inline constexpr std::size_t LargestStationFile = std::size_t{64} << 20;

/// A station and the state of the file that it was read from.
struct LoadedStation {
    StationData data;
    FileStamp stamp;
};

/// The station that the text of a station file describes. Throws FileError with the JSON pointer and the reason for
/// anything that is not exactly a station: damaged JSON, missing, unknown or repeated members, numbers out of range,
/// more racks or places than positions can name, a module that reaches beyond its rack. A station that breaks the
/// placing rules is read, so that they can be checked and mended.
StationData ParseStation(std::string_view text, std::string_view fileName, const Catalogue& catalogue);

/// The same from a file, which stays untouched.
LoadedStation LoadStation(const std::string& fileName, const Catalogue& catalogue, FileSystem& files = SystemFiles());

} // namespace zqbchwcx::reference
