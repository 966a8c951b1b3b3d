#include "tests/unit/app/WindowTour.h"

#include <QAbstractButton>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTableView>
#include <QTableWidget>
#include <QToolBar>

namespace quillon_ed {
namespace {

using zqbchwcx::reference::Language;

/// What a window manager puts around a window.
constexpr QSize Frame(0, 40);

class WindowSizeTest : public testing::WindowTour {
protected:
    /// The area that the widget is to lie in: the window, or as far as it cannot be scrolled to.
    static QRect RoomOf(const QWidget& widget, const QWidget& window)
    {
        for (const QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
            if (!qobject_cast<const QScrollArea*>(parent)) continue;
            const QRect viewport(parent->mapTo(&window, QPoint()), parent->size());
            return {viewport.left(), -100'000, viewport.width(), 200'000};
        }
        return window.rect();
    }

    static bool IsWhole(const QWidget& widget, const QWidget& window)
    {
        const auto* label = qobject_cast<const QLabel*>(&widget);
        const bool mayShrink =
            label && (label->wordWrap() || label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored);
        const QRect at(widget.mapTo(&window, QPoint()), widget.size());
        return RoomOf(widget, window).contains(at) && (mayShrink || widget.width() >= widget.minimumSizeHint().width());
    }

    static void ExpectFits(QWidget& window, const std::string& name, QSize room)
    {
        window.resize(room);
        QCoreApplication::processEvents();
        EXPECT_LE(window.width(), room.width()) << name;
        EXPECT_LE(window.height(), room.height()) << name;
        for (const auto* area : window.findChildren<QScrollArea*>())
            if (area->isVisibleTo(&window) && area->horizontalScrollBarPolicy() != Qt::ScrollBarAsNeeded) {
                EXPECT_LE(area->widget()->width(), area->viewport()->width()) << name << " scrolls sideways";
            }
        for (const auto* list : window.findChildren<QTableWidget*>())
            for (int row = 0; row < list->rowCount(); ++row) {
                const QRect cell = list->visualItemRect(list->item(row, 1));
                const QString text = list->item(row, 1)->text();
                const QRect needed =
                    list->fontMetrics().boundingRect(cell.adjusted(3, 0, -3, 9999), Qt::TextWordWrap, text);
                EXPECT_GE(cell.height(), needed.height()) << name << " cuts off " << text.toStdString();
            }
        for (const auto* widget : window.findChildren<QWidget*>()) {
            const auto* label = qobject_cast<const QLabel*>(widget);
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            const QString text = label ? label->text() : button ? button->text() : QString();
            const bool isTool = qobject_cast<const QToolBar*>(widget->parentWidget()); // has a way of its own
            if (text.isEmpty() || isTool || !widget->isVisibleTo(&window) || widget->window() != &window) continue;
            EXPECT_TRUE(IsWhole(*widget, window))
                << name << ": " << widget->metaObject()->className() << " " << text.toStdString();
        }
    }
};

TEST_F(WindowSizeTest, HalfAScreenAndASmallOneHoldTheWindowAndEveryDialog)
{
    for (const int points : {9, 18}) {
        const testing::FontChange font(points);
        for (const Language language : {Language::English, Language::German}) {
            services.ShowLanguage(language);
            const QString state = QStringLiteral("%1 points %2 ").arg(points).arg(language == Language::German);
            Content content = Shipped();
            content.everyType = true;
            Show(content, [&](QWidget& window, const std::string& name) {
                for (const QSize screen : {QSize(960, 1040), QSize(1366, 768) / 1.5})
                    ExpectFits(window, state.toStdString() + name, screen - Frame);
            });
        }
    }
}

TEST_F(WindowSizeTest, ListsAndTabsFollowTheFontOfTheDesktop)
{
    const testing::FontChange font(15);
    MainWindow window(services);
    // Larger than the overview: beside it stands the list.
    WriteFile(Path("large.station.json"), R"({"format": "quillon-station", "version": 1, "name": "Large",
        "kind": "central", "displayMode": 0, "readOnly": false,
        "racks": [{"present": true, "placeCount": 12, "places": []}]})");
    ASSERT_TRUE(window.Files().OpenFile(Path("large.station.json")));
    const auto* table = window.findChild<QTableView*>();
    for (const QWidget* widget :
         {static_cast<const QWidget*>(table), static_cast<const QWidget*>(window.findChild<QTabBar*>())})
        EXPECT_EQ(widget->font().pointSize(), 15) << widget->metaObject()->className();
    EXPECT_GE(table->rowHeight(0), table->fontMetrics().height());
}

} // namespace
} // namespace quillon_ed
