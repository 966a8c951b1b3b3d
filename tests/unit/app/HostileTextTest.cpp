#include "tests/unit/app/WindowTour.h"

#include "app/catalogue/CataloguePanel.h"
#include "zqbchwcx/reference/files/StationWriter.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTextDocument>

#include <set>

namespace quillon_ed {
namespace {

using namespace zqbchwcx::reference;

/// Reads every text that a window shows or tells a screen reader.
class HostileTextTest : public testing::WindowTour {
protected:
    HostileTextTest()
    {
        QImage picture(900, 900, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.save(Path("lure.png"));
        lure =
            QStringLiteral("<img src='%1'><h1>lure</h1>&lt;b&gt; &Lure[*]\u202Eerul\u2066\u05D0\n\r\n\t\u2028\x01\x1B")
                .arg(Path("lure.png"))
                .toStdString();
    }

    std::string Lure(std::size_t length) const
    {
        std::string text = lure;
        while (text.size() < length) text += "\nlure\x02" + std::string(20, 'W');
        text.resize(length);
        return text;
    }

    /// Every text of the type that is shown somewhere.
    LocalizedText Both() const { return {Lure(10'000), Lure(10'000)}; }

    Catalogue HostileCatalogue() const
    {
        std::vector<ModuleType> types = services.Catalogue().Types();
        for (ModuleType& type : types) {
            type.name = type.description = Both();
            type.facts = {{Both(), Both()}};
            for (ParameterDefinition& parameter : type.parameters) {
                parameter.label = parameter.help = Both();
                parameter.unit = Lure(10'000);
                for (ParameterChoice& choice : parameter.choices) choice.label = Both();
            }
        }
        std::vector<CatalogueGroup> groups = services.Catalogue().Groups();
        for (CatalogueGroup& group : groups) group.name = Both();
        return {Lure(10'000), types, groups};
    }

    Content Hostile(const Catalogue& catalogue)
    {
        Content content = Shipped();
        StationData data = LoadStation(content.stationFile.toStdString(), services.Catalogue()).data;
        data.name = Lure(MaxTextBytes);
        auto rack = std::make_shared<RackData>(*data.racks[0]);
        for (PlaceData& place : rack->places) {
            if (!place.module) continue;
            auto module = std::make_shared<ModuleData>(*place.module);
            module->name = module->comment = Lure(MaxTextBytes);
            place.module = module;
        }
        data.racks[0] = rack;
        // A file name holds neither a separator nor this much.
        content.stationFile = folder.filePath(QString::fromStdString(Lure(4000)).remove(u'/').left(150) +
                                              QStringLiteral(".station.json"));
        WriteFile(content.stationFile,
                  QByteArray::fromStdString(WriteStation(data, content.stationFile.toStdString())));
        content.module.name = content.module.comment = Lure(MaxTextBytes);
        for (ModuleData& subModule : content.module.subModules) subModule.name = Lure(MaxTextBytes);
        content.catalogue = &catalogue;
        return content;
    }

    void Expect(const QString& text, const std::string& place, qsizetype longest = 430)
    {
        if (text.contains(QStringLiteral("lure"))) places.insert(place.substr(place.find(':') + 2));
        EXPECT_LE(text.size(), longest + longest / 20) << place;
        for (const QChar character : text) {
            const bool isHidden = (character.unicode() >= 0x202A && character.unicode() <= 0x202E) ||
                                  character.unicode() == 0x2028 || character.unicode() == 0x2066;
            EXPECT_FALSE(isHidden || (character.category() == QChar::Other_Control && character != u'\n'))
                << place << ": U+" << std::hex << int{character.unicode()};
        }
        EXPECT_EQ(text.count(QChar(0x2068)), text.count(QChar(0x2069))) << place;
    }

    void ExpectLine(const QString& text, const std::string& place)
    {
        Expect(text, place);
        EXPECT_FALSE(text.contains(u'\n')) << place;
    }

    void ExpectToolTip(const QString& text, const std::string& place)
    {
        Expect(text, place, 1000);
        EXPECT_FALSE(Qt::mightBeRichText(text)) << place;
        EXPECT_LE(text.count(u'\n'), 24) << place;
        for (const QString& line : text.split(u'\n')) EXPECT_LE(line.size(), 64) << place;
    }

    void ExpectItems(const QAbstractItemModel& model, const QModelIndex& parent, const std::string& place)
    {
        for (int row = 0; row < model.rowCount(parent); ++row)
            for (int column = 0; column < model.columnCount(parent); ++column) {
                const QModelIndex index = model.index(row, column, parent);
                ExpectLine(index.data().toString(), place + " item");
                ExpectToolTip(index.data(Qt::ToolTipRole).toString(), place + " item tooltip");
                if (column == 0) ExpectItems(model, index, place);
            }
    }

    void ExpectPlain(QWidget& window, const std::string& name)
    {
        ExpectLine(window.windowTitle(), name + ": title");
        EXPECT_LT(window.minimumSizeHint().height(), 700) << name;
        EXPECT_LT(window.minimumSizeHint().width(), 1200) << name;
        for (auto* widget : window.findChildren<QWidget*>()) {
            const std::string place = name + ": " + widget->metaObject()->className();
            ExpectToolTip(widget->toolTip(), place + " tooltip");
            ExpectLine(widget->accessibleName(), place + " name");
            ExpectLine(widget->accessibleDescription(), place + " description");
            for (const QAction* action : widget->actions()) {
                ExpectLine(action->text(), place + " action");
                EXPECT_FALSE(action->text().remove(QStringLiteral("&&")).contains(QStringLiteral("&Lure"))) << place;
            }
            if (const auto* label = qobject_cast<const QLabel*>(widget)) {
                Expect(label->text(), place, 700);
                EXPECT_TRUE(label->textFormat() == Qt::PlainText || !label->isVisible() ||
                            !label->text().contains(QStringLiteral("<img")))
                    << place << label->text().toStdString();
                EXPECT_FALSE(label->buddy() &&
                             label->text().remove(QStringLiteral("&&")).contains(QStringLiteral("&Lure")))
                    << place;
            } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
                ExpectLine(button->text(), place);
            } else if (const auto* edit = qobject_cast<const QLineEdit*>(widget)) {
                ExpectLine(edit->placeholderText(), place + " placeholder");
            } else if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
                ExpectItems(*list->model(), {}, place);
            } else if (const auto* view = qobject_cast<const QAbstractItemView*>(widget); view && view->model()) {
                ExpectItems(*view->model(), {}, place);
            }
        }
    }

    std::string lure;
    std::set<std::string> places; ///< that have shown some of it
};

TEST_F(HostileTextTest, EveryPlaceShowsForeignTextsAsPlainLines)
{
    const Catalogue catalogue = HostileCatalogue();
    Show(Hostile(catalogue), [this](QWidget& window, const std::string& name) { ExpectPlain(window, name); });
    CataloguePanel panel(
        catalogue, services.Pictures(), [](const QString&) { return nullptr; }, nullptr);
    panel.Show(0, Language::English);
    auto* tree = panel.findChild<QAbstractItemView*>();
    tree->setCurrentIndex(tree->model()->index(0, 0, tree->model()->index(0, 0)));
    VisitShown(panel, "catalogue", [this](QWidget& window, const std::string& name) { ExpectPlain(window, name); });

    // Where they have to be found, or nothing was looked at.
    for (const char* place : {"title", "QLabel", "QMenu action", "QListWidget item", "QListWidget item tooltip",
                              "zqbchwcx::qt::GridWidget item", "QTreeWidget item", "QTreeWidget item tooltip",
                              "QComboBox item", "QLineEdit placeholder", "QLineEdit tooltip", "QLineEdit name",
                              "quillon_ed::CatalogueTree item", "quillon_ed::CatalogueTree item tooltip"})
        EXPECT_TRUE(places.contains(place)) << place;
}

} // namespace
} // namespace quillon_ed
