#include "app/dialogs/FormField.h"

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

constexpr int EditorWidth = 220;
constexpr int NoteWidth = 160;

/// Readable on light and on dark backgrounds.
QColor ReasonColor(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128 ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x2a, 0x1e);
}

} // namespace

FormField::FormField(QWidget* editor, const QString& note, QWidget* parent)
    : QWidget(parent), moEditor(editor), moReason(new QLabel(this)), moReset(new QToolButton(this))
{
    moEditor->setParent(this);
    moEditor->setMinimumWidth(EditorWidth);
    setFocusProxy(moEditor);

    auto* noteLabel = new QLabel(note, this);
    noteLabel->setMinimumWidth(NoteWidth);
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
    moReason->setText(reason);
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
