#include "app/export/PaperOverview.h"

#include "app/export/PaperSite.h"
#include "app/export/PaperToolkit.h"
#include "app/export/PartShown.h"
#include "app/export/ShowStation.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"

#include <QPainter>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr Rect SheetRect = MakeRect(0, 0, 242, 392);

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

PaperOverview::PaperOverview(const reference::StationPtr& station)
    : mCaption(PartShownText(*station), SheetRect.width()), moSite(std::make_unique<PaperSite>(nullptr, SheetRect))
{
    const PaperBracket paper;
    moView = std::make_unique<VxHWRackOverview>(*moSite);
    ShowStation(*moView, station);
}

PaperOverview::~PaperOverview() = default;

QSizeF PaperOverview::Size() const
{
    const zqbchwcx::Size extent = moSite->Extent();
    return QSizeF(extent.width, extent.height + mCaption.Height());
}

void PaperOverview::Paint(QPainter& painter) const
{
    moSite->Paint(painter);
    painter.save();
    painter.translate(0, moSite->Extent().height);
    mCaption.Paint(painter, Qt::black);
    painter.restore();
}

} // namespace quillon_ed
