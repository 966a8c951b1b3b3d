#pragma once

#include <QScrollArea>

class QAction;
class QLabel;

namespace quillon_ed {

/// What the window shows while no station is open: the ways to get one.
class StartPage : public QScrollArea {
    Q_OBJECT

public:
    StartPage(QAction& actionNew, QAction& actionOpen, QWidget* parent);

    void RecentFiles(const QStringList& files);
    /// Pairs of a name to show and the resource to open.
    void Examples(const QList<std::pair<QString, QString>>& examples);

    QSize minimumSizeHint() const override;

signals:
    void fileChosen(const QString& fileName);
    void exampleChosen(const QString& resource);

protected:
    void changeEvent(QEvent* event) override;

private:
    class TitledList;

    void RetranslateUi();

    QLabel* moHeading;
    QLabel* moHint;
    TitledList* moRecent;
    TitledList* moExamples;
};

} // namespace quillon_ed
