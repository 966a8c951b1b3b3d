#include "app/dialogs/RecoveryDialog.h"

#include "app/host/PlainText.h"
#include "app/host/ScreenRoom.h"
#include "app/host/Strings.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace quillon_ed {

using namespace zqbchwcx::reference;

RecoveryDialog::RecoveryDialog(std::vector<RecoverableJournal> journals, QWidget* parent)
    : QDialog(parent), mcolJournals(std::move(journals)), moList(new QTreeWidget(this)),
      moRecover(new QPushButton(tr("&Recover"), this)), moDiscard(new QPushButton(tr("&Discard"), this))
{
    setWindowTitle(tr("Recover unsaved stations"));
    auto* text = new QLabel(tr("Quillon Ed ended before these stations were saved."), this);
    text->setWordWrap(true);
    moList->setRootIsDecorated(false);
    moList->setAccessibleName(tr("Unsaved stations"));
    moList->setHeaderLabels({tr("Station"), tr("Last change"), tr("State")});
    const QLocale locale;
    for (const RecoverableJournal& journal : mcolJournals) {
        const QString file = ToQString(journal.origin.stationFile);
        auto* item = new QTreeWidgetItem(moList);
        item->setText(0, file.isEmpty() ? tr("never saved") : PlainText(QFileInfo(file).fileName()));
        item->setToolTip(0, ToolTipText(file.isEmpty() ? ToQString(journal.journalFile) : file));
        const auto when = QDateTime::fromMSecsSinceEpoch(journal.writtenNanoseconds / 1'000'000);
        item->setText(1, locale.toString(when, QLocale::ShortFormat));
        item->setText(2, journal.damage ? tr("damaged") : tr("can be recovered"));
        if (journal.damage) item->setToolTip(2, ToolTipText(ToQString(*journal.damage)));
    }
    moList->setCurrentItem(moList->topLevelItem(0));
    moList->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    moList->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    moList->header()->setStretchLastSection(false);

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(moRecover, QDialogButtonBox::ActionRole);
    buttons->addButton(moDiscard, QDialogButtonBox::DestructiveRole);
    QPushButton* later = buttons->addButton(tr("&Later"), QDialogButtonBox::RejectRole);
    later->setToolTip(tr("Keeps them; they are offered again at the next start"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(text);
    column->addWidget(moList, 1);
    column->addWidget(buttons);
    resize(WithinScreen(*this, TextSize(*this, 80, 18)));
    moRecover->setDefault(true);

    connect(moList, &QTreeWidget::currentItemChanged, this, &RecoveryDialog::UpdateButtons);
    connect(later, &QPushButton::clicked, this, &QDialog::reject);
    connect(moRecover, &QPushButton::clicked, this, [this] {
        emit recoverRequested(mcolJournals[static_cast<std::size_t>(CurrentIndex())]);
        Settle();
    });
    connect(moDiscard, &QPushButton::clicked, this, [this] {
        const auto answer = QMessageBox::question(this, windowTitle(), tr("Discard these changes for good?"),
                                                  QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel);
        if (answer != QMessageBox::Discard) return;
        emit discardRequested(mcolJournals[static_cast<std::size_t>(CurrentIndex())]);
        Settle();
    });
    UpdateButtons();
}

int RecoveryDialog::CurrentIndex() const
{
    return moList->indexOfTopLevelItem(moList->currentItem());
}

void RecoveryDialog::UpdateButtons()
{
    const int index = CurrentIndex();
    moRecover->setEnabled(index >= 0 && !mcolJournals[static_cast<std::size_t>(index)].damage);
    moDiscard->setEnabled(index >= 0);
}

void RecoveryDialog::Settle()
{
    const int index = CurrentIndex();
    mcolJournals.erase(mcolJournals.begin() + index);
    delete moList->takeTopLevelItem(index);
    if (mcolJournals.empty()) accept();
    else UpdateButtons();
}

} // namespace quillon_ed
