#pragma once

#include <QStatusBar>

class QLabel;

namespace quillon_ed {

class Document;
class Notice;
class StationView;

/// What has the focus, how much is selected, and in what state the station is.
class StatusLine : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent);

    /// Both null while no station is open.
    void Show(const Document* document, const StationView* view);
    /// Empty for none.
    void ShowConnection(const QString& state);
    /// Tells something for some seconds in place of the focus.
    void Tell(const QString& text);
    /// What was told does not apply any more.
    void EndTelling();

private:
    struct States {
        QString focus;
        QString selection;
        QString readOnly;
        QString mode;
    };

    /// Throws what the station throws.
    static States StatesOf(const Document& document, const StationView& view);

    QLabel* moFocus;
    Notice* moTold; ///< in place of the focus
    QLabel* moConnection;
    QLabel* moSelection;
    QLabel* moReadOnly;
    QLabel* moMode;
};

} // namespace quillon_ed
