#include "app/catalogue/CataloguePanel.h"

#include "app/catalogue/CatalogueFilter.h"
#include "app/catalogue/CatalogueTree.h"
#include "app/catalogue/ModuleTypeCard.h"
#include "app/host/ScreenRoom.h"
#include "app/host/SvgIcon.h"
#include "zqbchwcx/foundation/model/Enumerations.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

constexpr double CardScale = 1.5;
constexpr int LeastCharacters = 30; ///< names are whole

} // namespace

CataloguePanel::CataloguePanel(const Catalogue& catalogue, ModulePictures& pictures, CatalogueModel::DragData dragData,
                               QWidget* parent)
    : QWidget(parent), moCatalogue(catalogue), moPictures(pictures),
      moModel(new CatalogueModel(catalogue, std::move(dragData), this)), moFilter(new CatalogueFilter(this)),
      moSearch(new QLineEdit(this)), moCount(new QLabel(this)),
      moTree(new CatalogueTree(
          [this](const QString& orderNumber) {
              const ModuleType* type = moCatalogue.Find(orderNumber.toStdString());
              return type ? moPictures.Picture(*type, 1.0, devicePixelRatioF()) : QPixmap();
          },
          this)),
      moCard(new ModuleTypeCard(this)), moInsert(new QPushButton(this))
{
    moFilter->setSourceModel(moModel);
    moTree->setModel(moFilter);
    moSearch->setClearButtonEnabled(true);
    moSearch->addAction(SvgIcon(QStringLiteral("search")), QLineEdit::LeadingPosition);
    moSearch->installEventFilter(this);
    moCount->setForegroundRole(QPalette::PlaceholderText);
    moInsert->setAutoDefault(false);
    setMinimumWidth(TextSize(*this, LeastCharacters, 1).width());

    auto* cardScroll = new QScrollArea(this);
    cardScroll->setWidgetResizable(true);
    cardScroll->setFrameShape(QFrame::NoFrame);
    cardScroll->setWidget(moCard);
    auto* splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(moTree);
    splitter->addWidget(cardScroll);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);
    splitter->setSizes({420, 220});
    splitter->setChildrenCollapsible(false);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(moSearch);
    column->addWidget(moCount);
    column->addWidget(splitter, 1);
    column->addWidget(moInsert);

    connect(moSearch, &QLineEdit::textChanged, this, &CataloguePanel::Search);
    connect(moTree->selectionModel(), &QItemSelectionModel::currentChanged, this, &CataloguePanel::ShowType);
    connect(moTree, &CatalogueTree::chosen, this, [this](const QString&) { Choose(); });
    connect(moInsert, &QPushButton::clicked, this, &CataloguePanel::Choose);
    RetranslateUi();
}

void CataloguePanel::RetranslateUi()
{
    moSearch->setPlaceholderText(tr("Search name, order number, description"));
    moSearch->setAccessibleName(tr("Search the catalogue"));
    moTree->setAccessibleName(tr("Module types"));
    moInsert->setText(tr("Insert at the focus"));
}

void CataloguePanel::Show(std::int32_t stationKind, Language language)
{
    if (mlStationKind == stationKind && meLanguage == language) return;
    mlStationKind = stationKind;
    meLanguage = language;
    const QString current = moTree->CurrentOrderNumber();
    moModel->Fill(stationKind, language);
    moTree->ShowAll();
    const auto found = moModel->match(moModel->index(0, 0), CatalogueModel::OrderNumberRole, current, 1,
                                      Qt::MatchExactly | Qt::MatchRecursive);
    if (!current.isEmpty() && !found.isEmpty()) moTree->setCurrentIndex(moFilter->mapFromSource(found.front()));
    ShowCount();
    ShowType();
}

void CataloguePanel::InsertEnabled(bool enabled)
{
    mbInsertEnabled = enabled;
    moInsert->setEnabled(enabled && !moTree->CurrentOrderNumber().isEmpty());
}

void CataloguePanel::FocusSearch()
{
    moSearch->setFocus(Qt::ShortcutFocusReason);
    moSearch->selectAll();
}

void CataloguePanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    RetranslateUi();
}

bool CataloguePanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == moSearch && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Down:
            moTree->setFocus();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Choose();
            return true;
        case Qt::Key_Escape:
            moSearch->clear();
            return true;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void CataloguePanel::Search()
{
    moFilter->Search(moSearch->text());
    moTree->ShowAll();
    // Enter takes what the search has found first.
    if (!moSearch->text().isEmpty()) moTree->setCurrentIndex(moFilter->FirstType());
    moTree->scrollTo(moTree->currentIndex());
    ShowCount();
}

void CataloguePanel::ShowCount()
{
    const int count = moFilter->TypeCount();
    moCount->setText(count == 0 ? tr("No module type matches") : tr("%n module type(s)", nullptr, count));
}

void CataloguePanel::ShowType()
{
    const ModuleType* type = moCatalogue.Find(moTree->CurrentOrderNumber().toStdString());
    if (type) moCard->Show(*type, moPictures.Picture(*type, CardScale, devicePixelRatioF()), meLanguage);
    else moCard->ShowHint(Hint());
    InsertEnabled(mbInsertEnabled);
}

QString CataloguePanel::Hint() const
{
    return tr("Drag a module onto a place, or double-click it to insert it at the focus.");
}

void CataloguePanel::Choose()
{
    const QString orderNumber = moTree->CurrentOrderNumber();
    if (!orderNumber.isEmpty()) emit insertRequested(orderNumber);
}

} // namespace quillon_ed
