#include "app/plant/DetailsWindow.h"

#include "app/host/PlainText.h"
#include "app/host/ScreenRoom.h"
#include "app/host/Strings.h"
#include "app/plant/LocalTime.h"
#include "app/plant/PlantSession.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <utility>

namespace quillon_ed {

using namespace zqbchwcx;
using reference::PlantFinding;

namespace {

enum Column { What, Channel, Since, Remedy, ColumnCount };

} // namespace

DetailsWindow::DetailsWindow(reference::StationPtr oStation, PlantSession& session, reference::PlantItem item,
                             QWidget* parent)
    : QDialog(parent), moStation(std::move(oStation)), moSession(session), moItem(item), moModule(new QLabel(this)),
      moState(new QLabel(this)), moFindings(new QTreeWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    QFont bold = moModule->font();
    bold.setBold(true);
    moModule->setFont(bold);
    moState->setWordWrap(true);
    moFindings->setColumnCount(ColumnCount);
    moFindings->setRootIsDecorated(false);
    moFindings->setWordWrap(true);
    moFindings->setSelectionMode(QAbstractItemView::SingleSelection);
    moFindings->header()->setStretchLastSection(true);
    const int widths[] = {34, 9, 21};
    for (int column = 0; column < Remedy; ++column)
        moFindings->header()->resizeSection(column, TextSize(*this, widths[column], 1).width());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(moModule);
    column->addWidget(moState);
    column->addWidget(moFindings, 1);
    column->addWidget(buttons);
    resize(WithinScreen(*this, TextSize(*this, 110, 14)));
    moChanged = session.Changed.Connect([this](const reference::PlantChange&) { Fill(); });
    RetranslateUi();
}

void DetailsWindow::RetranslateUi()
{
    setWindowTitle(tr("Diagnostics of place %1").arg(QString::fromStdString(reference::PlantItemText(moItem))));
    moFindings->setHeaderLabels({tr("What"), tr("Channel"), tr("Since"), tr("What to do")});
    moFindings->setAccessibleName(windowTitle());
    Fill();
}

void DetailsWindow::changeEvent(QEvent* event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) RetranslateUi();
}

void DetailsWindow::Fill()
{
    const auto language = moStation->Context()->CurrentLanguage();
    std::vector<PlantFinding> findings;
    G_Trap("DetailsWindow", "Fill", [&] {
        const auto place = moStation->PlaceAt(moItem.place);
        const auto module = place->Module();
        const auto subModule = moItem.subModule > 0 ? module->SubModules()->Item(moItem.subModule - 1) : nullptr;
        const auto& shown = subModule ? subModule : module;
        moModule->setText(PlainText(shown->Name() + "  " + shown->OrderNumber()));
        findings = moSession.Service()->Findings(place, subModule);
    });
    moState->setText(findings.empty() ? tr("Nothing to report: the module is in order.")
                                      : tr("%n report(s):", nullptr, static_cast<int>(findings.size())));
    moFindings->clear();
    for (const PlantFinding& finding : findings) {
        QString what = WithLocalTime(PlainText(finding.what, language, LongestDescription));
        if (finding.item.subModule > 0 && moItem.subModule == 0)
            what = tr("Sub-module %1: %2").arg(finding.item.subModule).arg(what);
        auto* row = new QTreeWidgetItem(
            moFindings, {what, finding.channel > 0 ? QString::number(finding.channel) : QString(),
                         LocalTime(finding.since).chopped(4), PlainText(finding.remedy, language, LongestDescription)});
        for (int column = 0; column < ColumnCount; ++column) row->setToolTip(column, ToolTipText(row->text(column)));
    }
}

} // namespace quillon_ed
