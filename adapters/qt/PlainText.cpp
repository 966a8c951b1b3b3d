#include "zqbchwcx/qt/PlainText.h"

#include <QStringList>
#include <QTextDocument>

#include <algorithm>
#include <iterator>

namespace zqbchwcx::qt {
namespace {

constexpr char32_t Ellipsis = 0x2026;
constexpr char32_t FirstStrongIsolate = 0x2068;
constexpr char32_t PopDirectionalIsolate = 0x2069;
constexpr QChar WordJoiner(0x2060);

constexpr qsizetype LongestParagraph = 400;
constexpr qsizetype LongestLine = 60;
constexpr qsizetype MostLines = 24;

bool IsBlank(char32_t character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph;
}

/// The two joiners that some scripts are written with are none of them.
bool IsInvisible(char32_t character)
{
    constexpr std::pair<char32_t, char32_t> ranges[] = {
        {0x00AD, 0x00AD}, {0x061C, 0x061C}, {0x180E, 0x180E}, {0x200B, 0x200B}, {0x200E, 0x200F},
        {0x202A, 0x202E}, {0x2060, 0x206F}, {0xFEFF, 0xFEFF}, {0xFFF9, 0xFFFB}, {0xE0000, 0xE007F}};
    return std::any_of(std::begin(ranges), std::end(ranges), [character](const auto& range) {
        return character >= range.first && character <= range.second;
    });
}

bool IsWrittenFromRight(char32_t character)
{
    const QChar::Direction direction = QChar::direction(character);
    return direction == QChar::DirR || direction == QChar::DirAL || direction == QChar::DirAN;
}

void AddLines(QStringList& lines, QString paragraph)
{
    while (paragraph.size() > LongestLine) {
        const qsizetype blank = paragraph.lastIndexOf(u' ', LongestLine);
        const bool atBlank = blank > 0;
        const bool inPair = paragraph[LongestLine].isLowSurrogate();
        const qsizetype end = atBlank ? blank : LongestLine - (inPair ? 1 : 0);
        lines << paragraph.left(end);
        paragraph.remove(0, atBlank ? end + 1 : end);
    }
    lines << paragraph;
}

} // namespace

QString PlainText(const QString& text, qsizetype most)
{
    std::u32string shown;
    bool afterBlank = false;
    for (const char32_t character : text.toStdU32String()) {
        if (IsInvisible(character)) continue;
        const bool isBlank = IsBlank(character);
        if (!isBlank) shown += character;
        else if (!afterBlank) shown += U' ';
        afterBlank = isBlank;
    }
    const auto longest = static_cast<std::size_t>(most);
    if (shown.size() > longest) shown.replace(longest / 2, shown.size() - longest + 1, 1, Ellipsis);
    if (std::any_of(shown.begin(), shown.end(), IsWrittenFromRight))
        shown = FirstStrongIsolate + shown + PopDirectionalIsolate;
    return QString::fromStdU32String(shown);
}

QString ToolTipText(const QString& text)
{
    QStringList lines;
    for (const QString& paragraph : QString(text).remove(u'\r').split(u'\n')) {
        if (lines.size() >= MostLines) break;
        AddLines(lines, PlainText(paragraph, LongestParagraph));
    }
    QString shown = lines.mid(0, MostLines).join(u'\n');
    if (!Qt::mightBeRichText(shown)) return shown;
    // What HTML begins with is parted from what follows, by nothing that can be seen.
    for (const QChar mark : {u'<', u'&'}) shown.replace(mark, QString(mark) + WordJoiner);
    return shown;
}

} // namespace zqbchwcx::qt
