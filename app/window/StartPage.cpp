#include "app/window/StartPage.h"

#include "app/host/PlainText.h"
#include "app/host/ScreenRoom.h"
#include "app/host/SvgIcon.h"

#include <QAction>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillon_ed {

namespace {

constexpr int ContentCharacters = 100;
constexpr int LeastRows = 3;
constexpr int ComfortableRows = 18;

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

/// Stations to choose from, under a heading.
class StartPage::TitledList : public QWidget {
public:
    explicit TitledList(QWidget* parent) : QWidget(parent), moHeading(new QLabel(this)), moList(new QListWidget(this))
    {
        QFont bold = moHeading->font();
        bold.setBold(true);
        moHeading->setFont(bold);
        moList->setFrameShape(QFrame::NoFrame);
        moList->viewport()->setAutoFillBackground(false);
        moList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        moList->setTextElideMode(Qt::ElideMiddle);
        moList->setSpacing(2);
        moList->setMinimumHeight(TextSize(*moList, 0, LeastRows).height());

        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(moHeading);
        column->addWidget(moList, 1);
    }

    void SetTitle(const QString& title)
    {
        moHeading->setText(title);
        moList->setAccessibleName(title);
    }

    void Clear() { moList->clear(); }

    QSize sizeHint() const override
    {
        return QWidget::sizeHint().expandedTo({0, TextSize(*this, 0, ComfortableRows).height()});
    }

    void Add(const QString& text, const QString& target, const QString& toolTip = {})
    {
        auto* item = new QListWidgetItem(PlainText(text), moList);
        item->setToolTip(ToolTipText(toolTip));
        item->setData(Qt::UserRole, target);
    }

    /// Calls with the target that the user chooses.
    template <class Chosen>
    void OnChosen(Chosen chosen)
    {
        connect(moList, &QListWidget::itemActivated, this,
                [chosen](const QListWidgetItem* item) { chosen(item->data(Qt::UserRole).toString()); });
    }

private:
    QLabel* moHeading;
    QListWidget* moList;
};

StartPage::StartPage(QAction& actionNew, QAction& actionOpen, QWidget* parent)
    : QScrollArea(parent), moHeading(new QLabel(this)), moHint(new QLabel(this)), moRecent(new TitledList(this)),
      moExamples(new TitledList(this))
{
    auto* picture = new QLabel(this);
    picture->setPixmap(SvgIcon(QStringLiteral("quillon-ed")).pixmap(56, 56));
    QFont large = moHeading->font();
    large.setPointSizeF(large.pointSizeF() * 1.7);
    moHeading->setFont(large);
    moHint->setWordWrap(true);
    moHint->setForegroundRole(QPalette::PlaceholderText);

    auto* content = new QWidget(this);
    const int contentWidth = TextSize(*this, ContentCharacters, 1).width();
    content->setMaximumWidth(contentWidth);
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
    lists->addWidget(moRecent, 1);
    lists->addWidget(moExamples, 1);
    grid->addLayout(lists, 4, 0, 1, 2);

    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    column->addStretch(2);
    auto* middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addWidget(content, contentWidth); // far more than the margins get, up to its maximum
    middle->addStretch(1);
    column->addLayout(middle);
    column->addStretch(3);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setWidget(page);

    moRecent->OnChosen([this](const QString& file) { emit fileChosen(file); });
    moExamples->OnChosen([this](const QString& resource) { emit exampleChosen(resource); });
    RetranslateUi();
}

void StartPage::RetranslateUi()
{
    moHeading->setText(QStringLiteral("Quillon Ed"));
    moHint->setText(tr("Begin a station, open one, or drop a station file on this window."));
    moRecent->SetTitle(tr("Opened last"));
    moExamples->SetTitle(tr("Examples"));
}

/// Scrolls down at most, never sideways.
QSize StartPage::minimumSizeHint() const
{
    const int width = widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width();
    return {width, QScrollArea::minimumSizeHint().height()};
}

void StartPage::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) RetranslateUi();
}

void StartPage::RecentFiles(const QStringList& files)
{
    moRecent->Clear();
    for (const QString& file : files) {
        const QFileInfo info(file);
        moRecent->Add(info.fileName(), file, info.absoluteFilePath());
    }
    moRecent->setVisible(!files.isEmpty());
}

void StartPage::Examples(const QList<std::pair<QString, QString>>& examples)
{
    moExamples->Clear();
    for (const auto& [name, resource] : examples) moExamples->Add(name, resource);
}

} // namespace quillon_ed
