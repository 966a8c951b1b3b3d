#include "app/dialogs/ShortcutsDialog.h"

#include "app/host/ScreenRoom.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace quillon_ed {

namespace {

struct ShortcutTexts {
    Q_DECLARE_TR_FUNCTIONS(quillon_ed::ShortcutsDialog)
};

QList<QStringList> Shortcuts()
{
    return {
        {ShortcutTexts::tr("Arrow keys"), ShortcutTexts::tr("Move the focus over places and gaps, and between racks")},
        {ShortcutTexts::tr("Shift + arrow keys"), ShortcutTexts::tr("Select a range of places")},
        {ShortcutTexts::tr("Ctrl + arrow keys"), ShortcutTexts::tr("Move the focus and leave the selection")},
        {ShortcutTexts::tr("Space"), ShortcutTexts::tr("Select the focused place, with Ctrl in addition")},
        {ShortcutTexts::tr("Enter"), ShortcutTexts::tr("Edit the parameters of the module")},
        {ShortcutTexts::tr("Del"), ShortcutTexts::tr("Delete the selected modules")},
        {ShortcutTexts::tr("Ctrl + X, C, V"), ShortcutTexts::tr("Cut, copy, paste, also between two windows")},
        {ShortcutTexts::tr("Ctrl + Z, Ctrl + Y"), ShortcutTexts::tr("Undo, redo")},
        {ShortcutTexts::tr("Ctrl + A"), ShortcutTexts::tr("Select all places of the rack")},
        {ShortcutTexts::tr("Ctrl + F"), ShortcutTexts::tr("Find a module type; Enter inserts it at the focus")},
        {ShortcutTexts::tr("Ctrl + 1, Ctrl + 2"), ShortcutTexts::tr("Configuration, diagnostics")},
        {ShortcutTexts::tr("F5"), ShortcutTexts::tr("Read the state of the plant anew")},
        {ShortcutTexts::tr("Menu key, Shift + F10"), ShortcutTexts::tr("Menu of the focused place")},
        {ShortcutTexts::tr("Drag a module"),
         ShortcutTexts::tr("Move it to a place or a gap; Ctrl on the way copies it")},
        {ShortcutTexts::tr("Drag on empty ground"), ShortcutTexts::tr("Select the places in the frame")},
    };
}

} // namespace

void ShowShortcuts(QWidget* parent)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(ShortcutTexts::tr("Keyboard and mouse"));
    const QList<QStringList> shortcuts = Shortcuts();
    auto* list = new QTableWidget(static_cast<int>(shortcuts.size()), 2, &dialog);
    list->setHorizontalHeaderLabels({ShortcutTexts::tr("Key"), ShortcutTexts::tr("What it does")});
    list->setAccessibleName(dialog.windowTitle());
    for (int row = 0; row < list->rowCount(); ++row)
        for (int column : {0, 1}) list->setItem(row, column, new QTableWidgetItem(shortcuts[row][column]));
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setTabKeyNavigation(false);
    list->setShowGrid(false);
    list->verticalHeader()->hide();
    list->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    list->horizontalHeader()->setHighlightSections(false);
    list->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    list->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    // As high as its text needs in the width that it gets.
    list->verticalHeader()->setMinimumSectionSize(list->fontMetrics().height());
    list->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    auto* column = new QVBoxLayout(&dialog);
    column->addWidget(list);
    column->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    dialog.resize(WithinScreen(dialog, TextSize(dialog, 92, 25)));
    dialog.exec();
}

} // namespace quillon_ed
