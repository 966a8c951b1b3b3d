#include "app/dialogs/FormField.h"

#include "app/host/PlainText.h"
#include "app/host/ReadableColors.h"
#include "app/host/ScreenRoom.h"
#include "app/host/SvgIcon.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace quillon_ed {

namespace {

constexpr int EditorCharacters = 18;
constexpr int NoteCharacters = 14;
constexpr QRgb Red = 0xB02A1E;

QColor ReasonColor(const QPalette& palette)
{
    return ReadableColor(Red, palette.color(QPalette::WindowText),
                         {palette.color(QPalette::Window), palette.color(QPalette::Base)});
}

} // namespace

FormField::FormField(QWidget* editor, const QString& note, QWidget* parent)
    : QWidget(parent), moEditor(editor), moReason(new QLabel(this)), moReset(new QToolButton(this))
{
    moEditor->setParent(this);
    moEditor->setMinimumWidth(TextSize(*this, EditorCharacters, 1).width());
    setFocusProxy(moEditor);

    auto* noteLabel = new QLabel(note, this);
    noteLabel->setMinimumWidth(TextSize(*this, NoteCharacters, 1).width());
    noteLabel->setWordWrap(true);
    noteLabel->setForegroundRole(QPalette::PlaceholderText);

    moReset->setIcon(SvgIcon(QStringLiteral("reset")));
    moReset->setAutoRaise(true);
    moReset->setToolTip(tr("Back to the default"));
    moReset->setAccessibleName(tr("Back to the default"));
    connect(moReset, &QToolButton::clicked, this, &FormField::resetRequested);
    QSizePolicy keepsItsRoom = moReset->sizePolicy();
    keepsItsRoom.setRetainSizeWhenHidden(true);
    moReset->setSizePolicy(keepsItsRoom);
    moReset->hide();

    moReason->setWordWrap(true);
    moReason->hide();

    auto* line = new QHBoxLayout;
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(8);
    line->addWidget(moEditor, 1);
    line->addWidget(noteLabel);
    line->addWidget(moReset);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(1);
    column->addLayout(line);
    column->addWidget(moReason);
}

void FormField::ShowReason(const QString& reason)
{
    const bool invalid = !reason.isEmpty();
    moReason->setText(PlainText(reason, LongestDescription));
    moReason->setVisible(invalid);
    const QColor color = ReasonColor(palette());
    QPalette reasonPalette = moReason->palette();
    reasonPalette.setColor(QPalette::WindowText, color);
    moReason->setPalette(reasonPalette);
    moEditor->setAccessibleDescription(reason);
    if (qobject_cast<QLineEdit*>(moEditor)) {
        QPalette editorPalette = palette();
        if (invalid) editorPalette.setColor(QPalette::Text, color);
        moEditor->setPalette(editorPalette);
    }
}

void FormField::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) ShowReason(moReason->text());
}

void FormField::ShowResettable(bool resettable)
{
    moReset->setVisible(resettable);
}

} // namespace quillon_ed
