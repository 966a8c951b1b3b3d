#include "app/window/ExportCommands.h"

#include "app/document/Document.h"
#include "app/document/LastFolder.h"
#include "app/document/ProposedName.h"
#include "app/export/ExportModuleList.h"
#include "app/export/ExportViews.h"
#include "app/export/PrintStation.h"
#include "app/export/WriteBytes.h"
#include "app/host/AppServices.h"
#include "app/host/PlainText.h"
#include "app/host/Strings.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr double PictureScale = 2.0;

struct ExportTexts {
    Q_DECLARE_TR_FUNCTIONS(quillon_ed::ExportCommands)
};

PageHeader HeaderOf(const Document& document)
{
    return {PlainText(document.Station()->Data().name), QDate::currentDate(), QLocale()};
}

/// Of a filter such as "Picture (*.png)".
QString SuffixOf(const QString& filter)
{
    return filter.section(QStringLiteral("*."), 1).section(u')', 0, 0);
}

/// Beside the station, under its name. Empty when the user changed their mind.
QString AskFileName(const Document& document, AppServices& services, const QString& title, const QStringList& filters,
                    QWidget* parent)
{
    const QFileInfo proposed(ProposedName(document, LastFolder(services.Settings())));
    QFileDialog dialog(parent, title, proposed.absolutePath());
    dialog.setNameFilters(filters);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(SuffixOf(filters.front()));
    dialog.selectFile(proposed.fileName() + u'.' + dialog.defaultSuffix());
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        const QString former = u'.' + dialog.defaultSuffix();
        QString name = QFileInfo(dialog.selectedFiles().value(0)).fileName();
        if (name.endsWith(former)) name.chop(former.size());
        dialog.setDefaultSuffix(SuffixOf(filter));
        dialog.selectFile(name + u'.' + dialog.defaultSuffix());
    });
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void Fail(const QString& failure, const QString& reason, QWidget* parent)
{
    QMessageBox box(QMessageBox::Critical, ExportTexts::tr("Quillon Ed"), failure, QMessageBox::Close, parent);
    box.setInformativeText(reason);
    box.exec();
}

template <class Step>
QString Export(const QString& file, AppServices& services, QWidget* parent, const QString& failure, Step step)
{
    if (file.isEmpty()) return {};
    try {
        step();
        RememberFolderOf(file, services.Settings());
        return ExportTexts::tr("“%1” was written.").arg(QDir::toNativeSeparators(file));
    } catch (const reference::FileError& error) {
        Fail(failure, ToQString(error.Message(services.CurrentLanguage())), parent);
    }
    return {};
}

} // namespace

QString ExportPicture(AppServices& services, const Document& document, const PictureContent& content, QWidget* parent)
{
    const QString file = AskFileName(document, services, ExportTexts::tr("Export picture"),
                                     {ExportTexts::tr("Page (*.pdf)"), ExportTexts::tr("Picture (*.png)"),
                                      ExportTexts::tr("Vector picture (*.svg)")},
                                     parent);
    return Export(file, services, parent, ExportTexts::tr("The picture cannot be exported."),
                  [&] { ExportViews(document.Station(), content, HeaderOf(document), PictureScale, file); });
}

QString ExportList(AppServices& services, const Document& document, QWidget* parent)
{
    const QString file =
        AskFileName(document, services, ExportTexts::tr("Export module list"),
                    {ExportTexts::tr("Comma-separated values (*.csv)"), ExportTexts::tr("Markdown (*.md)")}, parent);
    return Export(file, services, parent, ExportTexts::tr("The module list cannot be exported."), [&] {
        ExportModuleList(document.Station()->Data(), services.Catalogue(), services.CurrentLanguage(), file);
    });
}

QString ExportText(AppServices& services, const Document& document, const QByteArray& csv, QWidget* parent)
{
    const QString file = AskFileName(document, services, ExportTexts::tr("Save as CSV"),
                                     {ExportTexts::tr("Comma-separated values (*.csv)")}, parent);
    return Export(file, services, parent, ExportTexts::tr("The file cannot be written."),
                  [&] { WriteBytes(file, csv); });
}

QString Print(AppServices& services, const Document& document, QWidget* parent)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(document.Title());
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted) return {};
    const QString failure = ExportTexts::tr("The station cannot be printed.");
    try {
        if (PrintStation(document.Station(), HeaderOf(document), printer))
            return ExportTexts::tr("The station was printed.");
        Fail(failure, ExportTexts::tr("The printer cannot be used."), parent);
    } catch (const reference::FileError& error) {
        Fail(failure, ToQString(error.Message(services.CurrentLanguage())), parent);
    }
    return {};
}

} // namespace quillon_ed
