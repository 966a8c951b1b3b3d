#include "app/window/StatusLine.h"

#include "app/document/Document.h"
#include "app/host/PlainText.h"
#include "app/window/PositionText.h"
#include "app/window/StationView.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"

#include <QLabel>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr int TellMilliseconds = 8000;

} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent), moFocus(new QLabel(this)), moSelection(new QLabel(this)), moReadOnly(new QLabel(this)),
      moMode(new QLabel(this))
{
    moFocus->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    moFocus->setContentsMargins(4, 0, 4, 0);
    addWidget(moFocus, 1);
    for (QLabel* label : {moSelection, moReadOnly, moMode}) {
        label->setContentsMargins(6, 0, 6, 0);
        addPermanentWidget(label);
    }
}

void StatusLine::Show(const Document* document, const StationView* view)
{
    // Shown anew whenever the language changes, too.
    moFocus->setAccessibleName(tr("Focus"));
    for (QLabel* label : {moFocus, moSelection, moReadOnly, moMode}) label->clear();
    if (document && view) G_Trap("StatusLine", "Show", [&] { ShowStates(*document, *view); });
    for (QLabel* label : {moSelection, moReadOnly, moMode}) label->setVisible(!label->text().isEmpty());
}

void StatusLine::ShowStates(const Document& document, const StationView& view)
{
    const reference::Station& station = *document.Station();
    moFocus->setText(PositionText(station, view.Handler()->FocusPosition()));
    const auto selected = view.Handler()->SelPlaces()->Count();
    if (selected > 0) moSelection->setText(tr("%n place(s) selected", nullptr, selected));
    if (station.IsReadOnly()) moReadOnly->setText(tr("Read-only"));
    else if (document.IsFileWriteProtected()) moReadOnly->setText(tr("File is write-protected"));
    moMode->setText(station.DisplayMode() == vxDisplayModeOffline ? tr("Offline") : tr("Online"));
}

void StatusLine::Tell(const QString& text)
{
    showMessage(PlainText(text, LongestDescription), TellMilliseconds);
}

} // namespace quillon_ed
