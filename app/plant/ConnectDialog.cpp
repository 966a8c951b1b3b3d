#include "app/plant/ConnectDialog.h"

#include "app/host/PlainText.h"
#include "app/host/ScreenRoom.h"
#include "app/plant/SourceName.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <limits>

namespace quillon_ed {

namespace {

constexpr int WidthInCharacters = 62;
constexpr int Indentation = 22;

/// A group of inputs below the button that chooses it; switched off while another one is chosen.
QFormLayout* AddGroup(QVBoxLayout& column, QRadioButton* choice, QWidget* inputs)
{
    auto* form = new QFormLayout(inputs);
    form->setContentsMargins(Indentation, 0, 0, 8);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    column.addWidget(choice);
    column.addWidget(inputs);
    QObject::connect(choice, &QRadioButton::toggled, inputs, &QWidget::setEnabled);
    inputs->setEnabled(false);
    return form;
}

} // namespace

ConnectDialog::ConnectDialog(const QStringList& lastSources, const QString& folder,
                             zqbchwcx::reference::Language language, QWidget* parent)
    : QDialog(parent), meLanguage(language), moLast(new QComboBox(this)),
      moLive(new QRadioButton(tr("A &device on the network"), this)),
      moHost(new QLineEdit(QStringLiteral("127.0.0.1"), this)), moPort(new QSpinBox(this)), moUnit(new QSpinBox(this)),
      moRecording(new QRadioButton(tr("A &recording"), this)), moFile(new QLineEdit(this)),
      moSimulated(new QRadioButton(tr("A &simulated plant"), this)), moSeed(new QSpinBox(this)),
      moReason(new QLabel(this)), moButtons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    setWindowTitle(tr("Connect to a plant"));
    auto* column = new QVBoxLayout(this);
    if (!lastSources.isEmpty()) {
        auto* last = new QFormLayout;
        for (const QString& source : lastSources) moLast->addItem(PlainText(source), source);
        moLast->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        last->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        last->addRow(tr("&Used last:"), moLast);
        column->addLayout(last);
    } else {
        moLast->hide();
    }
    AddLive(*column);
    AddRecording(*column, folder);
    AddSimulation(*column);
    moReason->setWordWrap(true);
    column->addWidget(moReason);
    column->addStretch();
    column->addWidget(moButtons);
    moButtons->button(QDialogButtonBox::Ok)->setText(tr("Connect"));

    connect(moLast, &QComboBox::activated, this, [this] { Propose(moLast->currentData().toString()); });
    for (QLineEdit* line : {moHost, moFile}) connect(line, &QLineEdit::textChanged, this, &ConnectDialog::Update);
    for (QRadioButton* choice : {moLive, moRecording, moSimulated})
        connect(choice, &QRadioButton::toggled, this, &ConnectDialog::Update);
    connect(moButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(moButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    setMinimumWidth(TextSize(*this, WidthInCharacters, 1).width());
    moLive->setChecked(true);
    if (!lastSources.isEmpty()) Propose(lastSources.front());
    Update();
}

void ConnectDialog::AddLive(QVBoxLayout& column)
{
    moPort->setRange(1, std::numeric_limits<quint16>::max());
    moPort->setValue(DefaultModbusPort);
    moUnit->setRange(0, std::numeric_limits<quint8>::max());
    moUnit->setValue(1);
    QFormLayout* form = AddGroup(column, moLive, new QWidget(this));
    form->addRow(tr("&Host:"), moHost);
    form->addRow(tr("&Port:"), moPort);
    form->addRow(tr("&Unit:"), moUnit);
    auto* note = new QLabel(tr("Modbus TCP; the registers are those that “quillon-ed diagnose --map” prints."), this);
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    form->addRow(note);
}

void ConnectDialog::AddRecording(QVBoxLayout& column, const QString& folder)
{
    auto* choose = new QPushButton(tr("Choose…"), this);
    choose->setAutoDefault(false);
    auto* line = new QHBoxLayout;
    line->addWidget(moFile, 1);
    line->addWidget(choose);
    QFormLayout* form = AddGroup(column, moRecording, new QWidget(this));
    auto* label = new QLabel(tr("&File:"), this);
    label->setBuddy(moFile);
    form->addRow(label, line);
    connect(choose, &QPushButton::clicked, this, [this, folder] {
        const QString file =
            QFileDialog::getOpenFileName(this, tr("Open recording"), folder, tr("Recordings (*.jsonl);;All files (*)"));
        if (!file.isEmpty()) moFile->setText(file);
    });
}

void ConnectDialog::AddSimulation(QVBoxLayout& column)
{
    moSeed->setRange(0, std::numeric_limits<int>::max());
    moSeed->setValue(1);
    QFormLayout* form = AddGroup(column, moSimulated, new QWidget(this));
    form->addRow(tr("S&eed:"), moSeed);
    auto* note = new QLabel(tr("Modules fail and recover at random, the same way for each seed."), this);
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    form->addRow(note);
}

void ConnectDialog::Propose(const QString& source)
{
    const auto name = ParseSourceName(source);
    const auto* choice = std::get_if<SourceChoice>(&name);
    if (!choice) return;
    if (const auto* live = std::get_if<zqbchwcx::modbus::ModbusAddress>(choice)) {
        moLive->setChecked(true);
        moHost->setText(QString::fromStdString(live->host));
        moPort->setValue(live->port);
        moUnit->setValue(live->unit);
    } else if (const auto* recording = std::get_if<RecordingFile>(choice)) {
        moRecording->setChecked(true);
        moFile->setText(recording->fileName);
    } else {
        moSimulated->setChecked(true);
        moSeed->setValue(static_cast<int>(std::get<SimulatedPlant>(*choice).seed));
    }
}

QString ConnectDialog::Source() const
{
    if (moRecording->isChecked()) return SourceNameOf(RecordingFile{moFile->text().trimmed()});
    if (moSimulated->isChecked()) return SourceNameOf(SimulatedPlant{static_cast<quint32>(moSeed->value())});
    return SourceNameOf(zqbchwcx::modbus::ModbusAddress{moHost->text().trimmed().toStdString(),
                                                        static_cast<quint16>(moPort->value()),
                                                        static_cast<quint8>(moUnit->value())});
}

void ConnectDialog::Update()
{
    const auto name = ParseSourceName(Source());
    const auto* reason = std::get_if<zqbchwcx::reference::LocalizedText>(&name);
    moReason->setText(reason ? PlainText(*reason, meLanguage, LongestDescription) : QString());
    moButtons->button(QDialogButtonBox::Ok)->setEnabled(reason == nullptr);
}

} // namespace quillon_ed
