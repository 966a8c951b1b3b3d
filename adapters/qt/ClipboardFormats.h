#pragma once

#include <QString>

#include <cstdint>
#include <string_view>

namespace zqbchwcx::qt {

/// Numbers of the named clipboard formats. A number is valid in this process only; other processes know a format by
/// its MIME type, "application/x-" and the name in lower case.
std::int16_t ClipboardFormatNumber(std::string_view name);
/// Empty when there is no such number, which no data have.
QString ClipboardMimeType(std::int16_t nFormat);

/// The same for data to be offered. Throws VxError when there is no such number.
QString RequiredMimeType(std::int16_t nFormat);

} // namespace zqbchwcx::qt
