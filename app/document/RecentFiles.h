#pragma once

#include <QObject>
#include <QStringList>

class QSettings;

namespace quillon_ed {

/// The station files opened last, the latest first, kept from run to run.
class RecentFiles : public QObject {
    Q_OBJECT

public:
    /// The settings outlive the object.
    RecentFiles(QSettings& settings, QObject* parent);

    QStringList Files() const;
    void Add(const QString& fileName);
    void Remove(const QString& fileName);
    void Clear();

    static constexpr int Capacity = 10;

signals:
    void changed();
    /// The list will not outlive this run. Told once.
    void notKept();

private:
    void Store(const QStringList& files);

    QSettings& moSettings;
    bool mbNotKept = false;
};

} // namespace quillon_ed
