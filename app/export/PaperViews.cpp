#include "app/export/PaperViews.h"

#include "app/export/PaperSite.h"
#include "app/export/PaperToolkit.h"
#include "app/export/ShowStation.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/qt/TableWidget.h"
#include "zqbchwcx/views/overview/OverviewControl.h"

#include <QPainter>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr int OverviewWidth = 242;

/// While it exists, views lie on paper.
class PaperBracket {
public:
    PaperBracket() : moScreen(G_ServiceRoot().toolkit)
    {
        G_ServiceRoot().toolkit = std::make_shared<PaperToolkit>(moScreen);
    }
    ~PaperBracket() { G_ServiceRoot().toolkit = moScreen; }
    PaperBracket(const PaperBracket&) = delete;
    PaperBracket& operator=(const PaperBracket&) = delete;

private:
    std::shared_ptr<Toolkit> moScreen;
};

} // namespace

PaperViews::PaperViews(const reference::StationPtr& station, const PictureContent& content)
    : mLayout(*station, content, OverviewWidth)
{
    const auto selection = SelectionOf(station, content);
    if (content.HasOverview()) {
        const PaperBracket paper;
        const QSize size = mLayout.Overview().size();
        moSite = std::make_unique<PaperSite>(nullptr, MakeRect(0, 0, size.width(), size.height()));
        moOverview = MakeOverview(*moSite, station, content, selection);
    }
    if (content.HasTable()) {
        // A grid has its own way of being painted on any device.
        moTable = MakeTable(station, content, selection, mLayout.Table().size());
    }
}

PaperViews::~PaperViews() = default;

void PaperViews::Paint(QPainter& painter) const
{
    if (moSite) moSite->Paint(painter);
    if (moTable)
        moTable->render(&painter, mLayout.Table().topLeft(), QRect(QPoint(), mLayout.Table().size()),
                        QWidget::DrawChildren);
    painter.save();
    painter.translate(mLayout.CaptionCorner());
    mLayout.Caption().Paint(painter, Qt::black);
    painter.restore();
}

} // namespace quillon_ed
