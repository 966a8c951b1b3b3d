#include "app/document/GitRevisions.h"

#include "app/host/Strings.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <QByteArrayList>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

#include <filesystem>
#include <system_error>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

/// A name that begins with a colon would mean something to the toolkit, but is a file's as any other.
std::filesystem::path PathOf(const std::string& fileName)
{
    return std::filesystem::absolute(fileName);
}

QString NameAlone(const std::string& fileName)
{
    return ToQString(PathOf(fileName).filename().string());
}

/// Runs git in the file's folder and returns what it prints.
QByteArray Git(const std::string& fileName, const QStringList& arguments)
{
    const std::filesystem::path folder = PathOf(fileName).parent_path();
    std::error_code ignored;
    if (!std::filesystem::is_directory(folder, ignored))
        throw FileError(fileName, {}, "there is no such file", "die Datei fehlt");
    QProcess git;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Messages are shown to the user, and reading must leave no lock behind.
    environment.insert(QStringLiteral("GIT_OPTIONAL_LOCKS"), QStringLiteral("0"));
    environment.insert(QStringLiteral("GIT_TERMINAL_PROMPT"), QStringLiteral("0"));
    environment.insert(QStringLiteral("GIT_LITERAL_PATHSPECS"), QStringLiteral("1"));
    git.setProcessEnvironment(environment);
    git.setWorkingDirectory(ToQString(folder.string()));
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

/// No author and no message holds a zero.
const QString FourFields = QStringLiteral("--format=%H%x00%aI%x00%an%x00%s");
constexpr qsizetype FieldsWithName = 5;

Revision RevisionFrom(const QByteArrayList& fields)
{
    // The name stands in a line of its own.
    return {fields.value(0).toStdString(), fields.value(1).toStdString(), fields.value(2).toStdString(),
            fields.value(3).toStdString(), fields.value(4).mid(1).toStdString()};
}

} // namespace

std::vector<Revision> GitRevisions::Of(const std::string& fileName)
{
    // Of a merge, git names files only when it is told what to compare it with.
    const QByteArrayList fields =
        Git(fileName, {QStringLiteral("log"), QStringLiteral("--follow"), QStringLiteral("--name-only"),
                       QStringLiteral("--diff-merges=first-parent"), QStringLiteral("-z"), FourFields,
                       QStringLiteral("--"), NameAlone(fileName)})
            .split('\0');
    std::vector<Revision> revisions;
    for (qsizetype begin = 0; begin + FieldsWithName <= fields.size(); begin += FieldsWithName)
        revisions.push_back(RevisionFrom(fields.mid(begin, FieldsWithName)));
    return revisions;
}

Revision GitRevisions::Find(const std::string& fileName, const std::string& name)
{
    const QByteArray id = Git(fileName, {QStringLiteral("rev-parse"), QStringLiteral("--verify"),
                                         QStringLiteral("--end-of-options"), ToQString(name) + "^{commit}"})
                              .trimmed();
    Revision revision = RevisionFrom(Git(fileName, {QStringLiteral("log"), QStringLiteral("-1"), QStringLiteral("-z"),
                                                    FourFields, QString::fromLatin1(id), QStringLiteral("--")})
                                         .split('\0'));
    const QByteArray prefix = Git(fileName, {QStringLiteral("rev-parse"), QStringLiteral("--show-prefix")});
    revision.path = prefix.chopped(1).toStdString() + NameAlone(fileName).toStdString();
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
