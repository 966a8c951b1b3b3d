#pragma once

#include "app/export/PictureContent.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/contract/Station.h"

#include <QString>

#include <optional>

namespace quillon_ed {

/// How much of a station its picture shows, and how many modules are missing in it, as a sentence without a full stop.
/// Nothing when the picture is whole, and for a kind of station that has none.
std::optional<zqbchwcx::reference::LocalizedText> PartShown(const zqbchwcx::reference::StationData& station,
                                                            const PictureContent& content = {});

/// The same in the language of the station's context; empty for nothing.
QString PartShownText(const zqbchwcx::reference::Station& station, const PictureContent& content = {});

} // namespace quillon_ed
