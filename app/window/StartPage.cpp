#include "app/window/StartPage.h"

#include "app/host/SvgIcon.h"

#include <QAction>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillon_ed {

namespace {

constexpr int ContentWidth = 720;

QLabel* MakeHeading(QWidget* parent)
{
    auto* label = new QLabel(parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

QListWidget* MakeList(QWidget* parent)
{
    auto* list = new QListWidget(parent);
    list->setFrameShape(QFrame::NoFrame);
    list->viewport()->setAutoFillBackground(false);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setSpacing(2);
    list->setMinimumHeight(260);
    return list;
}

QToolButton* MakeButton(QAction& action, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setDefaultAction(&action);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setIconSize({24, 24});
    button->setMinimumSize(180, 44);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

StartPage::StartPage(QAction& actionNew, QAction& actionOpen, QWidget* parent)
    : QWidget(parent), moHeading(new QLabel(this)), moHint(new QLabel(this)), moRecentHeading(MakeHeading(this)),
      moRecent(MakeList(this)), moExamplesHeading(MakeHeading(this)), moExamples(MakeList(this))
{
    auto* picture = new QLabel(this);
    picture->setPixmap(SvgIcon(QStringLiteral("quillon-ed")).pixmap(56, 56));
    QFont large = moHeading->font();
    large.setPointSizeF(large.pointSizeF() * 1.7);
    moHeading->setFont(large);
    moHint->setForegroundRole(QPalette::PlaceholderText);

    auto* content = new QWidget(this);
    content->setFixedWidth(ContentWidth);
    auto* grid = new QGridLayout(content);
    grid->setHorizontalSpacing(32);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    auto* title = new QHBoxLayout;
    title->setSpacing(16);
    title->addWidget(picture);
    auto* titleTexts = new QVBoxLayout;
    titleTexts->setSpacing(2);
    titleTexts->addStretch();
    titleTexts->addWidget(moHeading);
    titleTexts->addWidget(moHint);
    titleTexts->addStretch();
    title->addLayout(titleTexts, 1);
    grid->addLayout(title, 0, 0, 1, 2);
    grid->setRowMinimumHeight(1, 16);
    grid->addWidget(MakeButton(actionNew, this), 2, 0);
    grid->addWidget(MakeButton(actionOpen, this), 2, 1);
    grid->setRowMinimumHeight(3, 16);
    // Without recent files the examples have the whole width.
    auto* lists = new QHBoxLayout;
    lists->setSpacing(32);
    for (const auto& [heading, list] :
         {std::pair{moRecentHeading, moRecent}, std::pair{moExamplesHeading, moExamples}}) {
        auto* part = new QVBoxLayout;
        part->addWidget(heading);
        part->addWidget(list);
        lists->addLayout(part, 1);
    }
    grid->addLayout(lists, 4, 0, 1, 2);

    auto* column = new QVBoxLayout(this);
    column->addStretch(2);
    column->addWidget(content, 0, Qt::AlignHCenter);
    column->addStretch(3);

    const auto connectList = [this](QListWidget* list, void (StartPage::*chosen)(const QString&)) {
        connect(list, &QListWidget::itemActivated, this, [this, chosen](QListWidgetItem* item) {
            const QString target = item->data(Qt::UserRole).toString();
            if (!target.isEmpty()) (this->*chosen)(target);
        });
    };
    connectList(moRecent, &StartPage::fileChosen);
    connectList(moExamples, &StartPage::exampleChosen);
    RetranslateUi();
}

void StartPage::RetranslateUi()
{
    moHeading->setText(QStringLiteral("Quillon Ed"));
    moHint->setText(tr("Begin a station, open one, or drop a station file on this window."));
    moRecentHeading->setText(tr("Opened last"));
    moExamplesHeading->setText(tr("Examples"));
    moRecent->setAccessibleName(moRecentHeading->text());
    moExamples->setAccessibleName(moExamplesHeading->text());
}

void StartPage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) RetranslateUi();
}

void StartPage::RecentFiles(const QStringList& files)
{
    moRecent->clear();
    for (const QString& file : files) {
        const QFileInfo info(file);
        auto* item = new QListWidgetItem(info.fileName(), moRecent);
        item->setToolTip(info.absoluteFilePath());
        item->setData(Qt::UserRole, file);
    }
    const bool any = !files.isEmpty();
    moRecent->setVisible(any);
    moRecentHeading->setVisible(any);
}

void StartPage::Examples(const QList<std::pair<QString, QString>>& examples)
{
    moExamples->clear();
    for (const auto& [name, resource] : examples) {
        auto* item = new QListWidgetItem(name, moExamples);
        item->setData(Qt::UserRole, resource);
    }
}

} // namespace quillon_ed
