#include "app/window/StationView.h"

#include "app/document/Document.h"
#include "app/document/SharedView.h"
#include "app/window/ModuleList.h"
#include "app/window/StationViews.h"

#include <QVBoxLayout>

namespace quillon_ed {

using namespace zqbchwcx;

StationView::StationView(Document& document, QWidget* parent)
    : QWidget(parent), moDocument(document), moViews(new StationViews(document, this))
{
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(moViews);
}

StationView::~StationView()
{
    moDocument.ShownBy({});
}

void StationView::Show(const VxHWSelectionHandlerPtr& handler, QWidget* below)
{
    moHandler = handler;
    if (!moViews->HasTable()) {
        moList = new ModuleList(moDocument.Station(), handler, this);
        connect(moList, &ModuleList::menuRequested, this, &StationView::menuRequested);
    }
    moViews->LayOut(moList, below);
    mcolConnections.push_back(handler->SelChange.Connect([this] { emit selectionChanged(); }));
    mcolConnections.push_back(handler->FocusChange.Connect([this](std::int32_t) { emit selectionChanged(); }));
    moDocument.ShownBy(
        {[this] { return View(); },
         [this](const reference::ViewState& state) { ShowView(*moHandler, *moDocument.Station(), state); }});
}

reference::ViewState StationView::View() const
{
    return CaptureView(*moHandler);
}

void StationView::FocusStation()
{
    moViews->FocusOverview();
}

int StationView::LackingWidth() const
{
    return moViews->LackingWidth();
}

} // namespace quillon_ed
