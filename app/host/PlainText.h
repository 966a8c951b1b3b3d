#pragma once

#include "zqbchwcx/qt/PlainText.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"

#include <QString>

#include <string_view>

namespace quillon_ed {

// Every text of a file, the clipboard or the file system passes one of these on its way into the window.

inline constexpr qsizetype LongestName = 120;
inline constexpr qsizetype LongestDescription = 400;

QString PlainText(const QString& text, qsizetype most = LongestName);
QString PlainText(std::string_view text);
QString PlainText(const zqbchwcx::reference::LocalizedText& text, zqbchwcx::reference::Language language,
                  qsizetype most = LongestName);
QString ToolTipText(const QString& text);

/// For labels with a buddy, menus and buttons, where a single & marks a key.
QString WithoutMnemonic(QString text);
/// For window titles, where [*] stands for the mark of a modified document.
QString WithoutModifiedMark(QString text);
/// With places to break long words at, such as paths. Keeps the line breaks.
QString BreakableText(const QString& text);

} // namespace quillon_ed
