#pragma once

#include <QString>

#include <string_view>

namespace zqbchwcx::qt {

/// A text that somebody else wrote as one line of what a reader can see: controls and line breaks are blanks, marks
/// that turn the direction of writing are left out, a text that is written from right to left keeps to itself, and what
/// is longer than `most` characters has its middle left out.
QString PlainText(const QString& text, qsizetype most);

/// The same, of each of its lines, in lines that no screen cuts off. No toolkit takes it for HTML.
QString ToolTipText(const QString& text);

inline QString ToQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace zqbchwcx::qt
