#include "app/export/StationPages.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

#include <gtest/gtest.h>

namespace quillon_ed {
namespace {

constexpr QSizeF PageSize(700, 1000);

PageHeader Header()
{
    return {QStringLiteral("Water works"), QDate(2024, 3, 1), QLocale(QLocale::English)};
}

/// The page as SVG, in which texts stand as texts.
QString SvgOf(const StationPages& pages, int page)
{
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(PageSize.toSize());
    QPainter painter(&generator);
    pages.Paint(painter, page);
    painter.end();
    return QString::fromUtf8(buffer.data());
}

PrintedTable Table(int rows, const QString& longText = {})
{
    PrintedTable table{{QStringLiteral("Number"), QStringLiteral("Comment")}, {}};
    for (int row = 0; row < rows; ++row) table.rows.push_back({QStringLiteral("<row %1>").arg(row), longText});
    return table;
}

TEST(StationPages, EveryPageHasNameDateAndNumber)
{
    StationPages pages(Header(), PageSize);
    pages.AddDrawing({100, 100}, [](QPainter&) {});
    pages.AddTable(Table(1));
    const QString svg = SvgOf(pages, 1);
    const QString date = Header().locale.toString(Header().date, QLocale::LongFormat);
    for (const QString& text : {QStringLiteral("Water works"), date, QStringLiteral("Page 2 of 2")})
        EXPECT_TRUE(svg.contains(text)) << text.toStdString();
}

TEST(StationPages, EveryRowOfATableStandsOnOnePageUnderTheHeadings)
{
    for (const int rows : {0, 1, 51, 52, 53, 200}) {
        StationPages pages(Header(), PageSize);
        pages.AddTable(Table(rows));
        EXPECT_EQ(pages.Count(), std::max((rows + 51) / 52, 1)) << "52 rows and the headings fill a page";
        QString all;
        for (int page = 0; page < pages.Count(); ++page) {
            const QString svg = SvgOf(pages, page);
            EXPECT_TRUE(svg.contains(QStringLiteral(">Number<"))) << rows << " rows, page " << page;
            all += svg;
        }
        for (int row = 0; row < rows; ++row)
            EXPECT_EQ(all.count(QStringLiteral("row %1&gt;").arg(row)), 1) << "row " << row << " of " << rows;
        EXPECT_EQ(all.count(QStringLiteral("&lt;row")), rows);
    }
}

TEST(StationPages, TextsThatAreTooWideGiveWayToTheOthers)
{
    StationPages pages(Header(), PageSize);
    pages.AddTable(Table(3, QString(400, QLatin1Char('m'))));
    EXPECT_TRUE(SvgOf(pages, 0).contains(QStringLiteral("row 2&gt;")));
    EXPECT_TRUE(SvgOf(pages, 0).contains(QChar(0x2026)));
}

TEST(StationPages, ADrawingFillsThePageButIsNotBlownUp)
{
    const auto factorOf = [](QSizeF size) {
        double factor = 0;
        StationPages pages(Header(), PageSize);
        pages.AddDrawing(size, [&](QPainter& painter) { factor = painter.transform().m11(); });
        SvgOf(pages, 0);
        return factor;
    };
    const double plain = factorOf({700, 10});
    EXPECT_NEAR(factorOf({1400, 10}) / plain, 0.5, 1e-9);
    EXPECT_NEAR(factorOf({7, 7}) / plain, 2, 1e-9);
    EXPECT_LT(factorOf({10, 1000}) / plain, 1);
}

} // namespace
} // namespace quillon_ed
