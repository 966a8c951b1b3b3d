#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"

#include <QString>

#include <string>
#include <string_view>

namespace quillon_ed {

inline QString ToQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline QString ToQString(const zqbchwcx::reference::LocalizedText& text, zqbchwcx::reference::Language language)
{
    return ToQString(text.In(language));
}

} // namespace quillon_ed
