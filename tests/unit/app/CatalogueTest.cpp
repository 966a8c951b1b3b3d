#include "tests/unit/app/AppStage.h"

#include "app/catalogue/CatalogueFilter.h"
#include "app/catalogue/CatalogueModel.h"
#include "app/catalogue/CataloguePanel.h"
#include "app/catalogue/CatalogueTree.h"
#include "app/catalogue/ModuleTypeCard.h"
#include "app/host/SvgIcon.h"
#include "app/window/ModuleInserter.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"

#include <QBitmap>
#include <QDirIterator>
#include <QLabel>
#include <QMimeData>

#include <set>

namespace quillon_ed {
namespace {

using namespace zqbchwcx::reference;

class CatalogueTest : public testing::AppStage {
protected:
    CatalogueTest()
        : model(
              services.Catalogue(), [](const QString&) { return nullptr; }, nullptr),
          filter(nullptr)
    {
        filter.setSourceModel(&model);
        model.Fill(0, Language::English);
    }

    std::set<QString> Found(const QModelIndex& parent = {})
    {
        std::set<QString> numbers;
        for (int row = 0; row < filter.rowCount(parent); ++row) {
            const QModelIndex index = filter.index(row, 0, parent);
            const QString number = index.data(CatalogueModel::OrderNumberRole).toString();
            if (number.isEmpty()) numbers.merge(Found(index));
            else numbers.insert(number);
        }
        return numbers;
    }

    CatalogueModel model;
    CatalogueFilter filter;
};

TEST_F(CatalogueTest, ShowsEachTypeOfTheKindOfStationAndNoOther)
{
    for (const std::int32_t kind : {0, 1, 2}) {
        model.Fill(kind, Language::German);
        std::set<QString> expected;
        for (const ModuleType& type : services.Catalogue().Types()) {
            if (!type.isSubModule && type.FitsStation(kind)) expected.insert(QString::fromStdString(type.orderNumber));
        }
        EXPECT_FALSE(expected.empty());
        EXPECT_EQ(Found(), expected) << kind;
        EXPECT_EQ(filter.TypeCount(), static_cast<int>(expected.size()));
    }
}

TEST_F(CatalogueTest, FindsAllWordsInNumberNameAndDescriptionWhateverTheirCase)
{
    filter.Search(QStringLiteral("q3-ai08-a"));
    EXPECT_EQ(Found(), std::set<QString>{QStringLiteral("Q3-AI08-A")});
    EXPECT_TRUE(filter.FirstType().parent().isValid()) << "the groups above it stay";
    filter.Search(QStringLiteral("PRECISION ai"));
    EXPECT_EQ(Found(), std::set<QString>{QStringLiteral("Q3-AI08-P")});
    filter.Search(QStringLiteral("no such thing"));
    EXPECT_FALSE(filter.FirstType().isValid());
}

TEST_F(CatalogueTest, ADraggedTypeIsReadBackAsTheModuleThatItIs)
{
    const auto document = OpenExample();
    Station& station = *document->Station();
    for (const ModuleType& type : services.Catalogue().Types()) {
        if (type.isSubModule) continue;
        const std::unique_ptr<QMimeData> data(ModuleDragData(station, QString::fromStdString(type.orderNumber)));
        ASSERT_TRUE(data) << type.orderNumber;
        const QByteArray bytes = data->data(QStringLiteral("application/x-vxhwconfigtext"));
        const QString text = QString::fromUtf16(reinterpret_cast<const char16_t*>(bytes.constData()));
        const auto modules = station.ModulesFromConfigText(text.toStdString(), nullptr);
        ASSERT_EQ(modules->Count(), std::max(type.placeCount, 1)) << type.orderNumber;
        EXPECT_EQ(modules->Item(0)->OrderNumber(), type.orderNumber);
        EXPECT_FALSE(services.Pictures().Picture(type, 1.5, 2.0).isNull()) << type.orderNumber;
    }
}

TEST_F(CatalogueTest, ANarrowPanelShowsNamesWholeAndHintsAtWhatTheStationCanDo)
{
    CataloguePanel panel(
        services.Catalogue(), services.Pictures(), [](const QString&) { return nullptr; }, nullptr);
    const auto* tree = panel.findChild<CatalogueTree*>();
    const auto* card = panel.findChild<ModuleTypeCard*>();
    for (const std::int32_t kind : {0, 1, 2}) {
        panel.Show(kind, Language::English);
        panel.resize(panel.minimumSizeHint());
        panel.grab();
        for (QModelIndex row = tree->model()->index(0, 0); row.isValid(); row = tree->indexBelow(row)) {
            if (row.data(CatalogueModel::OrderNumberRole).toString().isEmpty()) continue;
            for (const int column : {0, 1}) {
                if (tree->isColumnHidden(column)) continue;
                const QModelIndex cell = row.siblingAtColumn(column);
                EXPECT_LE(tree->fontMetrics().horizontalAdvance(cell.data().toString()), tree->visualRect(cell).width())
                    << cell.data().toString().toStdString();
            }
        }
        QString hints;
        for (const QLabel* label : card->findChildren<QLabel*>()) hints += label->text();
        EXPECT_TRUE(hints.contains(QStringLiteral("Drag")));
    }
}

TEST_F(CatalogueTest, EveryIconDrawsSomething)
{
    for (QDirIterator icons(QStringLiteral(":/icons")); icons.hasNext();) {
        const QString name = QFileInfo(icons.next()).baseName();
        EXPECT_FALSE(QRegion(SvgIcon(name).pixmap(20, 20).mask()).isEmpty()) << name.toStdString();
    }
}

} // namespace
} // namespace quillon_ed
