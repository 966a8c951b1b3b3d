#pragma once

#include "app/export/PictureContent.h"
#include "app/export/StationPages.h"
#include "zqbchwcx/reference/model/contract/Station.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillon_ed {

enum class PictureFormat { Png, Svg, Pdf };

/// The format that the file name's ending says; nothing for any other ending.
std::optional<PictureFormat> PictureFormatOf(const QString& fileName);

/// Draws views of a station into the file, replacing it in one step: pixels with that many device pixels to a
/// logical one (PNG), a vector picture (SVG), or a page with a header (PDF; vectors). What the views leave out of the
/// station stands below them. The content's rack is one that `AgainstContent` has nothing against.
/// Throws FileError when the file name has another ending or the file cannot be written; it is then as it was.
void ExportViews(const zqbchwcx::reference::StationPtr& station, const PictureContent& content,
                 const PageHeader& header, double scale, const QString& fileName);

/// The vector picture that `ExportViews` writes.
QByteArray SvgPictureOf(const zqbchwcx::reference::StationPtr& station, const PictureContent& content,
                        const QString& title);

/// Why the station has no such picture, as a sentence without a full stop; nothing when it has.
std::optional<zqbchwcx::reference::LocalizedText> AgainstContent(const zqbchwcx::reference::StationData& station,
                                                                 const PictureContent& content);

} // namespace quillon_ed
