#include "app/window/StatusLine.h"

#include "app/document/Document.h"
#include "app/host/PlainText.h"
#include "app/window/Notice.h"
#include "app/window/StationView.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/qt/PositionText.h"

#include <QLabel>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr int TellMilliseconds = 8000;

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent), moFocus(new QLabel(this)), moTold(new Notice(TellMilliseconds, this)),
      moConnection(new QLabel(this)), moSelection(new QLabel(this)), moReadOnly(new QLabel(this)),
      moMode(new QLabel(this))
{
    for (QLabel* label : {moFocus, static_cast<QLabel*>(moTold)}) {
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        label->setContentsMargins(4, 0, 4, 0);
        addWidget(label, 1);
    }
    moTold->hide();
    connect(moTold, &Notice::gone, moFocus, &QWidget::show);
    // A source's name and a reason can be longer than a window is wide.
    moConnection->setMinimumWidth(1);
    for (QLabel* label : {moConnection, moSelection, moReadOnly, moMode}) {
        label->setContentsMargins(6, 0, 6, 0);
        addPermanentWidget(label);
    }
}

void StatusLine::Show(const Document* document, const StationView* view)
{
    States states;
    if (document && view) G_Trap("StatusLine", "Show", [&] { states = StatesOf(*document, *view); });
    // Only what is different changes, for screen readers hear of every change.
    moFocus->setText(states.focus);
    for (const auto& [label, text] : {std::pair(moSelection, states.selection), std::pair(moReadOnly, states.readOnly),
                                      std::pair(moMode, states.mode)}) {
        label->setText(text);
        label->setVisible(!text.isEmpty());
    }
}

StatusLine::States StatusLine::StatesOf(const Document& document, const StationView& view)
{
    States states;
    const reference::Station& station = *document.Station();
    const PositionDescription focus = G_DescribePosition(station, view.Handler()->FocusPosition());
    states.focus = qt::PositionTexts(focus).join(QStringLiteral(" · "));
    const auto selected = view.Handler()->SelPlaces()->Count();
    if (selected > 0) states.selection = tr("%n place(s) selected", nullptr, selected);
    if (station.IsReadOnly()) states.readOnly = tr("Read-only");
    else if (document.IsFileWriteProtected()) states.readOnly = tr("File is write-protected");
    states.mode = station.DisplayMode() == vxDisplayModeOffline ? tr("Offline") : tr("Online");
    return states;
}

void StatusLine::ShowConnection(const QString& state)
{
    moConnection->setText(state);
    moConnection->setToolTip(ToolTipText(state));
    moConnection->setVisible(!state.isEmpty());
}

void StatusLine::Tell(const QString& text)
{
    if (text.isEmpty()) return;
    moFocus->hide();
    moTold->Tell(PlainText(text, LongestDescription));
}

void StatusLine::EndTelling()
{
    moTold->hide();
}

} // namespace quillon_ed
