#include "app/host/PlainText.h"

#include "app/host/Strings.h"

#include <QStringList>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

constexpr QChar ZeroWidthSpace(0x200B);
constexpr qsizetype LongestPiece = 24;    ///< of a word
constexpr QStringView Joints = u"/\\._-"; ///< of paths and names, where a break is natural

} // namespace

QString PlainText(const QString& text, qsizetype most)
{
    return zqbchwcx::qt::PlainText(text, most);
}

QString PlainText(std::string_view text)
{
    return PlainText(ToQString(text));
}

QString PlainText(const LocalizedText& text, Language language, qsizetype most)
{
    return PlainText(ToQString(text, language), most);
}

QString ToolTipText(const QString& text)
{
    return zqbchwcx::qt::ToolTipText(text);
}

QString WithoutMnemonic(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

QString WithoutModifiedMark(QString text)
{
    return text.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

QString BreakableText(const QString& text)
{
    QStringList lines;
    for (const QString& line : text.split(u'\n')) {
        QString shown;
        qsizetype piece = 0;
        for (const QChar character : PlainText(line, LongestDescription)) {
            const bool isWhole = !character.isLowSurrogate() && !character.isMark();
            if (isWhole && (piece >= LongestPiece || (piece == 0 && !shown.isEmpty()))) {
                shown += ZeroWidthSpace;
                piece = 0;
            }
            shown += character;
            piece = character.isSpace() || Joints.contains(character) ? 0 : piece + 1;
        }
        lines << shown;
    }
    return lines.join(u'\n');
}

} // namespace quillon_ed
