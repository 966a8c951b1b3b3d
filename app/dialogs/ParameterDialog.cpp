#include "app/dialogs/ParameterDialog.h"

#include "app/host/PlainText.h"
#include "app/host/ScreenRoom.h"
#include "app/host/Strings.h"
#include "app/host/SvgIcon.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

constexpr int FormCharacters = 90;
constexpr int PagesCharacters = 28;
constexpr int LinesAroundForm = 11; // heading, buttons, margins
constexpr int MostLines = 50;

} // namespace

ParameterDialog::ParameterDialog(const ModuleData& module, const ParameterDialogContext& context, QWidget* parent)
    : QDialog(parent), mbReadOnly(context.readOnly), moPages(new QListWidget(this)), moStack(new QStackedWidget(this)),
      moReason(new QLabel(this)), moModuleCheck(context.moduleCheck)
{
    const ModuleType& type = *context.catalogue->Find(module.orderNumber);
    setWindowTitle(mbReadOnly ? tr("Parameters (read-only)") : tr("Parameters"));

    AddPage(module, type, context, tr("Module"), context.addressCheck);
    for (std::size_t index = 0; index < module.subModules.size(); ++index) {
        const ModuleData& subModule = module.subModules[index];
        const ModuleType* subType = context.catalogue->Find(subModule.orderNumber);
        if (!subType) continue;
        mcolSubModuleIndex.push_back(index);
        const QString name =
            subModule.name.empty() ? PlainText(subType->name, context.language) : PlainText(subModule.name);
        AddPage(subModule, *subType, context, QStringLiteral("%1 · %2").arg(index + 1).arg(name), context.addressCheck);
    }
    moPages->setVisible(mcolForms.size() > 1);
    moPages->setAccessibleName(tr("Module and sub-modules"));
    moPages->setMaximumWidth(TextSize(*this, PagesCharacters, 1).width());
    moPages->setWordWrap(true);
    moPages->setCurrentRow(0);
    connect(moPages, &QListWidget::currentRowChanged, moStack, &QStackedWidget::setCurrentIndex);

    // After the pages, so that the Tab key comes to them last.
    moButtons = new QDialogButtonBox(mbReadOnly ? QDialogButtonBox::Close
                                                : QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                                      QDialogButtonBox::RestoreDefaults,
                                     this);
    auto* middle = new QHBoxLayout;
    middle->addWidget(moPages);
    middle->addWidget(moStack, 1);
    auto* column = new QVBoxLayout(this);
    column->addWidget(MakeHeading(type, context));
    column->addLayout(middle, 1);
    moReason->setWordWrap(true);
    moReason->hide();
    column->addWidget(moReason);
    column->addWidget(moButtons);

    connect(moButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(moButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    if (QPushButton* reset = moButtons->button(QDialogButtonBox::RestoreDefaults)) {
        connect(reset, &QPushButton::clicked, this, [this] {
            for (ModuleForm* form : mcolForms) form->Reset();
        });
    }
    Update();
    const int characters = FormCharacters + (mcolForms.size() > 1 ? PagesCharacters : 0);
    const QSize most = TextSize(*this, characters, MostLines);
    const int height = mcolForms.front()->sizeHint().height() + TextSize(*this, 0, LinesAroundForm).height();
    resize(WithinScreen(*this, {most.width(), std::min(height, most.height())}));
    mcolForms.front()->setFocus();
}

bool ParameterDialog::CanEdit(const ModuleData& module, const Catalogue& catalogue)
{
    return catalogue.Find(module.orderNumber) != nullptr;
}

QWidget* ParameterDialog::MakeHeading(const ModuleType& type, const ParameterDialogContext& context)
{
    auto* heading = new QWidget(this);
    auto* picture = new QLabel(heading);
    picture->setPixmap(context.picture);
    picture->setVisible(!context.picture.isNull());

    auto* name = new QLabel(PlainText(type.name, context.language), heading);
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * 1.25);
    font.setBold(true);
    name->setFont(font);
    name->setWordWrap(true);
    auto* order =
        new QLabel(context.place.isEmpty() ? PlainText(type.orderNumber)
                                           : QStringLiteral("%1 · %2").arg(PlainText(type.orderNumber), context.place),
                   heading);
    order->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* description = new QLabel(PlainText(type.description, context.language, LongestDescription), heading);
    description->setWordWrap(true);
    description->setForegroundRole(QPalette::PlaceholderText);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(name);
    texts->addWidget(order);
    texts->addWidget(description);
    texts->addStretch();
    auto* line = new QHBoxLayout(heading);
    line->setContentsMargins(0, 0, 0, 4);
    line->setSpacing(12);
    line->addWidget(picture, 0, Qt::AlignTop);
    line->addLayout(texts, 1);
    return heading;
}

void ParameterDialog::AddPage(const ModuleData& module, const ModuleType& type, const ParameterDialogContext& context,
                              const QString& title, AddressCheck addressCheck)
{
    auto* form = new ModuleForm(type, module, context.language, std::move(addressCheck), nullptr);
    form->setEnabled(!mbReadOnly);
    connect(form, &ModuleForm::changed, this, &ParameterDialog::Update);
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(form);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumWidth(form->minimumSizeHint().width() + scroll->verticalScrollBar()->sizeHint().width());
    moStack->addWidget(scroll);
    moPages->addItem(title);
    mcolForms.push_back(form);
}

void ParameterDialog::Update()
{
    bool allValid = true;
    for (std::size_t index = 0; index < mcolForms.size(); ++index) {
        const bool valid = mcolForms[index]->IsValid();
        allValid = allValid && valid;
        QListWidgetItem* item = moPages->item(static_cast<int>(index));
        item->setIcon(valid ? QIcon() : SvgIcon(QStringLiteral("warning")));
        item->setToolTip(valid ? QString() : tr("Something here is not valid"));
    }
    const QString reason = allValid && moModuleCheck && !mbReadOnly ? moModuleCheck(Result()) : QString();
    moReason->setText(PlainText(reason, LongestDescription));
    moReason->setVisible(!reason.isEmpty());
    if (QPushButton* ok = moButtons->button(QDialogButtonBox::Ok)) ok->setEnabled(allValid && reason.isEmpty());
    if (QPushButton* reset = moButtons->button(QDialogButtonBox::RestoreDefaults)) {
        reset->setEnabled(!std::all_of(mcolForms.begin(), mcolForms.end(),
                                       [](const ModuleForm* form) { return form->HasDefaults(); }));
    }
}

ModuleData ParameterDialog::Result() const
{
    ModuleData result = mcolForms.front()->Result();
    for (std::size_t form = 1; form < mcolForms.size(); ++form) {
        result.subModules[mcolSubModuleIndex[form - 1]] = mcolForms[form]->Result();
    }
    return result;
}

} // namespace quillon_ed
