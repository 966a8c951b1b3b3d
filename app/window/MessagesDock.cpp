#include "app/window/MessagesDock.h"

#include "app/host/PlainText.h"
#include "app/host/ScreenRoom.h"
#include "app/host/Strings.h"
#include "app/host/SvgIcon.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTime>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr int WhereCharacters = 22;
constexpr int LeastLines = 3; ///< with the headings

} // namespace

MessagesDock::MessagesDock(reference::ErrorLog& log, QWidget* parent)
    : QDockWidget(parent), moLog(log), moList(new QTreeWidget(this)), moClear(new QPushButton(this))
{
    setObjectName(QStringLiteral("messagesDock"));
    moList->setRootIsDecorated(false);
    moList->setColumnCount(3);
    moList->setUniformRowHeights(true);
    moList->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    moList->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    moList->header()->setStretchLastSection(false);
    moList->header()->resizeSection(2, TextSize(*this, WhereCharacters, 1).width());
    moList->setMinimumHeight(TextSize(*this, 0, LeastLines).height());
    moClear->setAutoDefault(false);

    auto* content = new QWidget(this);
    auto* line = new QHBoxLayout(content);
    line->setContentsMargins(6, 4, 6, 6);
    line->addWidget(moList, 1);
    line->addWidget(moClear, 0, Qt::AlignTop);
    setWidget(content);
    setVisible(false);

    connect(moClear, &QPushButton::clicked, this, &MessagesDock::Clear);
    moEntryAdded = moLog.EntryAdded.Connect([this](const reference::ErrorEntry& entry) {
        Add(ToQString(entry.description), QStringLiteral("%1 (%2)").arg(ToQString(entry.source)).arg(entry.number));
    });
    RetranslateUi();
}

void MessagesDock::RetranslateUi()
{
    setWindowTitle(tr("Messages"));
    toggleViewAction()->setText(tr("&Messages"));
    moList->setAccessibleName(windowTitle());
    moList->setHeaderLabels({tr("Time"), tr("Message"), tr("Where")});
    moClear->setText(tr("Clear"));
}

void MessagesDock::changeEvent(QEvent* event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) RetranslateUi();
}

void MessagesDock::Add(const QString& text, const QString& source)
{
    auto* item = new QTreeWidgetItem(moList, {QTime::currentTime().toString(QStringLiteral("HH:mm:ss")),
                                              PlainText(text, LongestDescription), PlainText(source)});
    item->setIcon(1, SvgIcon(QStringLiteral("warning")));
    item->setToolTip(1, ToolTipText(text));
    item->setToolTip(2, ToolTipText(source));
    if (moList->topLevelItemCount() > static_cast<int>(reference::ErrorLog::MostEntries)) {
        delete moList->takeTopLevelItem(0);
    }
    moList->scrollToItem(item);
    show();
}

void MessagesDock::Clear()
{
    moLog.Clear();
    moList->clear();
    hide();
}

} // namespace quillon_ed
