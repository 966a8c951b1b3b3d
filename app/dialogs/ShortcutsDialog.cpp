#include "app/dialogs/ShortcutsDialog.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QTreeWidget>
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
    auto* list = new QTreeWidget(&dialog);
    list->setRootIsDecorated(false);
    list->setHeaderLabels({ShortcutTexts::tr("Key"), ShortcutTexts::tr("What it does")});
    list->setAccessibleName(dialog.windowTitle());
    for (const QStringList& line : Shortcuts()) new QTreeWidgetItem(list, line);
    list->resizeColumnToContents(0);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    auto* column = new QVBoxLayout(&dialog);
    column->addWidget(list);
    column->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    dialog.resize(620, 380);
    dialog.exec();
}

} // namespace quillon_ed
