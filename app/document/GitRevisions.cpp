#include "app/document/GitRevisions.h"

#include "app/host/Strings.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <QByteArrayList>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

/// What separates the fields of a revision, and begins one: neither stands in what git prints of an author or message.
constexpr char FieldEnd = '\x1f';
constexpr char RevisionBegin = '\x1e';

QString Unfollowed(const QString& fileName)
{
    return QFileInfo(fileName).fileName();
}

/// Runs git in the file's folder and returns what it prints.
QByteArray Git(const std::string& fileName, const QStringList& arguments)
{
    QProcess git;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Messages are shown to the user, and reading must leave no lock behind.
    environment.insert(QStringLiteral("GIT_OPTIONAL_LOCKS"), QStringLiteral("0"));
    environment.insert(QStringLiteral("GIT_TERMINAL_PROMPT"), QStringLiteral("0"));
    environment.insert(QStringLiteral("GIT_LITERAL_PATHSPECS"), QStringLiteral("1"));
    git.setProcessEnvironment(environment);
    git.setWorkingDirectory(QFileInfo(ToQString(fileName)).absolutePath());
    git.setStandardInputFile(QProcess::nullDevice());
    git.start(QStringLiteral("git"), QStringList{QStringLiteral("--no-pager")} + arguments);
    if (!git.waitForStarted())
        throw FileError(fileName, {}, "the program git cannot be run", "das Programm git lässt sich nicht ausführen");
    constexpr int WithoutLimit = -1;
    git.waitForFinished(WithoutLimit);
    if (git.exitStatus() == QProcess::NormalExit && git.exitCode() == 0) return git.readAllStandardOutput();
    const std::string said = git.readAllStandardError().trimmed().toStdString();
    throw FileError(fileName, {}, said.empty() ? "git failed" : "git: " + said,
                    said.empty() ? "git ist gescheitert" : "git: " + said);
}

/// "<begin>id<end>date<end>author<end>message", and with a name behind a line end and a zero.
Revision RevisionFrom(const QByteArray& record)
{
    const QByteArrayList parts = record.split('\0');
    const QByteArrayList fields = parts.value(0).split(FieldEnd);
    return {fields.value(0).toStdString(), fields.value(1).toStdString(), fields.value(2).toStdString(),
            fields.value(3).trimmed().toStdString(), parts.value(1).trimmed().toStdString()};
}

const QString Format = QStringLiteral("--format=%x1e%H%x1f%aI%x1f%an%x1f%s");

} // namespace

std::vector<Revision> GitRevisions::Of(const std::string& fileName)
{
    const QByteArray log =
        Git(fileName, {QStringLiteral("log"), QStringLiteral("--follow"), QStringLiteral("--name-only"),
                       QStringLiteral("-z"), Format, QStringLiteral("--"), Unfollowed(ToQString(fileName))});
    std::vector<Revision> revisions;
    for (const QByteArray& record : log.split(RevisionBegin))
        if (!record.trimmed().isEmpty() && record != QByteArray(1, '\0')) revisions.push_back(RevisionFrom(record));
    return revisions;
}

Revision GitRevisions::Find(const std::string& fileName, const std::string& name)
{
    const QByteArray id = Git(fileName, {QStringLiteral("rev-parse"), QStringLiteral("--verify"),
                                         QStringLiteral("--end-of-options"), ToQString(name) + "^{commit}"})
                              .trimmed();
    const QByteArray record = Git(
        fileName, {QStringLiteral("log"), QStringLiteral("-1"), Format, QString::fromLatin1(id), QStringLiteral("--")});
    Revision revision = RevisionFrom(record.mid(record.indexOf(RevisionBegin) + 1));
    const QByteArray prefix = Git(fileName, {QStringLiteral("rev-parse"), QStringLiteral("--show-prefix")});
    revision.path = prefix.trimmed().toStdString() + Unfollowed(ToQString(fileName)).toStdString();
    return revision;
}

std::string GitRevisions::Content(const std::string& fileName, const Revision& revision)
{
    const QString object = ToQString(revision.id + ":" + revision.path);
    const QByteArray bytes = Git(fileName, {QStringLiteral("cat-file"), QStringLiteral("-s"), object}).trimmed();
    if (bytes.toULongLong() > LargestStationFile)
        throw FileError(fileName, {}, "the revision is larger than any station file",
                        "die Revision ist größer als jede Stationsdatei");
    return Git(fileName, {QStringLiteral("cat-file"), QStringLiteral("blob"), object}).toStdString();
}

} // namespace quillon_ed
