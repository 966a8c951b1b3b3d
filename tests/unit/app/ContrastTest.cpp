#include "tests/qt/Palettes.h"
#include "tests/unit/app/WindowTour.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTabBar>

#include <cmath>
#include <map>

namespace quillon_ed {
namespace {

double Luminance(QRgb color)
{
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) + 0.0722 * linear(qBlue(color));
}

/// Of the ground, which most of the area shows, and what differs most from it: the text.
double ContrastIn(const QImage& area)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < area.height(); ++y)
        for (int x = 0; x < area.width(); ++x) ++counts[area.pixel(x, y)];
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    const double ground = Luminance(most->first);
    double contrast = 1;
    for (const auto& [color, count] : counts) {
        const auto [dark, light] = std::minmax({ground, Luminance(color)});
        contrast = std::max(contrast, (light + 0.05) / (dark + 0.05));
    }
    return contrast;
}

class ContrastTest : public testing::WindowTour {
protected:
    using Spot = std::pair<QRect, QString>;

    static std::vector<Spot> CellsOf(const QAbstractItemView& view)
    {
        std::vector<Spot> spots;
        const QAbstractItemModel& model = *view.model();
        const auto add = [&](const QModelIndex& index) {
            const QString text = index.data().toString();
            const int icon = index.data(Qt::DecorationRole).isValid() ? 24 : 0;
            if (!text.trimmed().isEmpty())
                spots.emplace_back(view.visualRect(index).adjusted(icon + 3, 1, -3, -1), text);
        };
        for (int row = 0; row < model.rowCount(); ++row)
            for (int column = 0; column < model.columnCount(); ++column) {
                const QModelIndex index = model.index(row, column);
                add(index);
                if (model.rowCount(index) > 0) add(model.index(0, column, index));
            }
        return spots;
    }

    /// Where the widget itself has texts.
    static std::vector<Spot> SpotsOf(const QWidget& widget)
    {
        std::vector<Spot> spots;
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            if (!label->text().isEmpty()) spots.emplace_back(label->contentsRect(), label->text());
        } else if (const auto* button = qobject_cast<const QPushButton*>(&widget)) {
            QStyleOptionButton option;
            option.initFrom(button);
            const QRect contents = button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
            spots.emplace_back(contents.adjusted(button->icon().isNull() ? 2 : 28, 2, -2, -2), button->text());
        } else if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
            const QString text = edit->text().isEmpty() ? edit->placeholderText() : edit->text();
            if (!text.isEmpty())
                spots.emplace_back(edit->rect().adjusted(edit->actions().isEmpty() ? 5 : 28, 5, -5, -5), text);
        } else if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
            spots.emplace_back(list->rect().adjusted(6, 5, -28, -5), list->currentText());
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                spots.emplace_back(tabs->tabRect(tab).adjusted(4, 3, -4, -3), tabs->tabText(tab));
        } else if (const auto* menu = qobject_cast<const QMenuBar*>(&widget)) {
            for (QAction* action : menu->actions()) spots.emplace_back(menu->actionGeometry(action), action->text());
        } else if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) {
            for (int section = 0; section < header->count(); ++section)
                spots.emplace_back(QRect(header->sectionPosition(section) + 3, 3, header->sectionSize(section) - 6,
                                         header->height() - 6),
                                   header->model()->headerData(section, Qt::Horizontal).toString());
        } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
            spots = CellsOf(*view);
        }
        return spots;
    }

    static void ExpectReadable(QWidget& window, const std::string& name)
    {
        const QImage picture = window.grab().toImage();
        for (const auto* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisibleTo(&window) || widget->window() != &window) continue;
            const auto* scrolled = qobject_cast<const QAbstractScrollArea*>(widget);
            const QWidget* canvas = scrolled ? scrolled->viewport() : widget;
            for (const auto& [area, text] : SpotsOf(*widget)) {
                // What lies behind an edge of a scroll area is not in the picture.
                const QRect visible = canvas->visibleRegion().boundingRect() & area;
                if (visible.height() < area.height() || visible.width() < 12) continue;
                const QImage part = picture.copy(QRect(canvas->mapTo(&window, visible.topLeft()), visible.size()));
                EXPECT_GE(ContrastIn(part), 4.5)
                    << name << ": " << widget->metaObject()->className() << " " << text.toStdString();
            }
        }
        for (auto* menu : window.findChildren<QMenu*>()) {
            if (menu->isEmpty()) continue;
            menu->ensurePolished();
            menu->resize(menu->sizeHint());
            const QImage shown = menu->grab().toImage();
            for (QAction* action : menu->actions()) {
                if (action->isSeparator()) continue;
                const QRect area = menu->actionGeometry(action).adjusted(34, 2, -20, -2);
                EXPECT_GE(ContrastIn(shown.copy(area)), 4.5) << name << ": menu " << action->text().toStdString();
            }
        }
    }
};

TEST_F(ContrastTest, EveryTextCanBeReadInLightDarkAndHighContrast)
{
    const testing::FontChange font(14); // strokes as thick as a pixel at least
    const std::pair<const char*, QPalette> palettes[] = {{"light", zqbchwcx::testing::LightPalette()},
                                                         {"dark", zqbchwcx::testing::DarkPalette()},
                                                         {"high contrast", zqbchwcx::testing::ContrastPalette()}};
    for (const auto& [colors, palette] : palettes) {
        const zqbchwcx::testing::PaletteChange change(palette);
        Show(Shipped(), [&](QWidget& window, const std::string& name) {
            window.resize(1100, 800);
            QCoreApplication::processEvents();
            ExpectReadable(window, std::string(colors) + ", " + name);
        });
    }
}

} // namespace
} // namespace quillon_ed
