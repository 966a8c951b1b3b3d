#include "app/document/RecentFiles.h"

#include <QFileInfo>
#include <QSettings>

#include <utility>

namespace quillon_ed {

namespace {

const QString Key = QStringLiteral("RecentFiles");
constexpr qsizetype LongestPath = 4096; ///< no file has a longer one

} // namespace

RecentFiles::RecentFiles(QSettings& settings, QObject* parent) : QObject(parent), moSettings(settings) {}

QStringList RecentFiles::Files() const
{
    // Other programs add to the list too.
    moSettings.sync();
    QStringList files;
    for (const QString& file : moSettings.value(Key).toStringList())
        if (files.size() < Capacity && file.size() <= LongestPath) files << file;
    return files;
}

void RecentFiles::Add(const QString& fileName)
{
    const QString path = QFileInfo(fileName).absoluteFilePath();
    QStringList files = Files();
    files.removeAll(path);
    files.prepend(path);
    Store(files.mid(0, Capacity));
}

void RecentFiles::Remove(const QString& fileName)
{
    QStringList files = Files();
    if (files.removeAll(QFileInfo(fileName).absoluteFilePath()) > 0) Store(files);
}

void RecentFiles::Clear()
{
    Store({});
}

void RecentFiles::Store(const QStringList& files)
{
    moSettings.setValue(Key, files);
    moSettings.sync();
    if (moSettings.status() == QSettings::AccessError && !std::exchange(mbNotKept, true)) emit notKept();
    emit changed();
}

} // namespace quillon_ed
