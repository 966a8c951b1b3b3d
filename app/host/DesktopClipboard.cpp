#include "app/host/DesktopClipboard.h"

#include "zqbchwcx/qt/ClipboardFormats.h"
#include "zqbchwcx/qt/QtClipboard.h"

namespace quillon_ed {

using namespace zqbchwcx;

std::optional<ByteArray> DesktopClipboard::Read(std::string_view formatName) const
{
    const std::int16_t nFormat = qt::ClipboardFormatNumber(formatName);
    if (!qt::QtClipboard::GetFormat(nFormat)) return std::nullopt;
    return qt::QtClipboard::GetData(nFormat);
}

void DesktopClipboard::Write(std::string_view formatName, const ByteArray& data)
{
    qt::QtClipboard::SetData({{qt::ClipboardFormatNumber(formatName), data}});
}

} // namespace quillon_ed
