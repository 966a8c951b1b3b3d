#pragma once

#include "app/export/StationPages.h"
#include "zqbchwcx/reference/model/contract/Station.h"

#include <QString>

#include <optional>

namespace quillon_ed {

enum class PictureFormat { Png, Svg, Pdf };

/// The format that the file name's ending says; nothing for any other ending.
std::optional<PictureFormat> PictureFormatOf(const QString& fileName);

/// Draws the overview of a central station into the file, replacing it in one step: pixels with that many device
/// pixels to a logical one (PNG), a vector picture (SVG), or a page with a header (PDF; vectors). What the overview
/// leaves out of the station stands below it.
/// Throws FileError when the file name has another ending or the file cannot be written; it is then as it was.
void ExportOverview(const zqbchwcx::reference::StationPtr& station, const PageHeader& header, double scale,
                    const QString& fileName);

} // namespace quillon_ed
