#include "app/dialogs/NewStationDialog.h"

#include "app/document/NewStation.h"
#include "app/host/ScreenRoom.h"
#include "zqbchwcx/foundation/model/Enumerations.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr int WidthInCharacters = 58;

} // namespace

NewStationDialog::NewStationDialog(QWidget* parent)
    : QDialog(parent), moName(new QLineEdit(tr("New station"), this)), moKind(new QComboBox(this)),
      moKindNote(new QLabel(this)), moRacks(new QSpinBox(this)), moPlaces(new QSpinBox(this))
{
    setWindowTitle(tr("New station"));
    moName->setMaxLength(100);
    moKind->addItem(tr("Central station"), vxStationKindCentral);
    moKind->addItem(tr("Distributed station, on a rail"), vxStationKindDistributed1);
    moKind->addItem(tr("Distributed station, self-contained modules"), vxStationKindDistributed2);
    moKind->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    moKindNote->setWordWrap(true);
    moKindNote->setForegroundRole(QPalette::PlaceholderText);

    auto* form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Name:"), moName);
    form->addRow(tr("&Kind:"), moKind);
    form->addRow(QString(), moKindNote);
    form->addRow(tr("&Racks:"), moRacks);
    form->addRow(tr("&Places per rack:"), moPlaces);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Create"));
    auto* column = new QVBoxLayout(this);
    column->addLayout(form);
    column->addStretch();
    column->addWidget(buttons);

    connect(moKind, &QComboBox::currentIndexChanged, this, &NewStationDialog::ShowKind);
    connect(moName, &QLineEdit::textChanged, this, [this, buttons] {
        buttons->button(QDialogButtonBox::Ok)->setEnabled(!moName->text().trimmed().isEmpty());
    });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    ShowKind();
    moName->selectAll();
    setMinimumWidth(TextSize(*this, WidthInCharacters, 1).width());
}

void NewStationDialog::ShowKind()
{
    const StationSize limits = LargestNewStation(moKind->currentData().toInt());
    const bool central = limits.racks > 1;
    moRacks->setRange(1, limits.racks);
    moRacks->setEnabled(central);
    moPlaces->setRange(SmallestPlaceCount, limits.places);
    moPlaces->setValue(central ? limits.places : 16);
    moKindNote->setText(central ? tr("Racks with a power supply in place 1, the controller in place 2 of rack 0 and an "
                                     "interface module in place 3, followed by input and output modules.")
                                : tr("A head in place 1, followed by input and output modules in rows of eight."));
}

reference::StationData NewStationDialog::Station() const
{
    return MakeNewStation(moName->text().trimmed().toStdString(), moKind->currentData().toInt(),
                          {moRacks->value(), moPlaces->value()});
}

} // namespace quillon_ed
