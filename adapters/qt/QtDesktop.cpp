#include "zqbchwcx/qt/QtDesktop.h"

#include "zqbchwcx/qt/ClipboardFormats.h"
#include "zqbchwcx/qt/SystemColors.h"

#include <QApplication>

namespace zqbchwcx::qt {

QtDesktop::~QtDesktop()
{
    if (QCoreApplication::instance() != nullptr) ScreenMousePointer(MousePointer::Default);
}

std::optional<OleColor> QtDesktop::TranslateColor(OleColor color, std::intptr_t /*hPalette*/) const
{
    const auto translated = ToQColor(color);
    if (!translated) return std::nullopt;
    return ToOleColor(*translated);
}

void QtDesktop::ScreenMousePointer(MousePointer pointer)
{
    const bool bHourglass = pointer == MousePointer::Hourglass;
    if (bHourglass == mbHourglass) return;
    mbHourglass = bHourglass;
    if (bHourglass) QApplication::setOverrideCursor(Qt::WaitCursor);
    else QApplication::restoreOverrideCursor();
}

std::int16_t QtDesktop::RegisterClipboardFormat(std::string_view name)
{
    return ClipboardFormatNumber(name);
}

} // namespace zqbchwcx::qt
