#include "app/window/ExportCommands.h"

#include "app/document/Document.h"
#include "app/export/ExportModuleList.h"
#include "app/export/ExportOverview.h"
#include "app/export/PrintStation.h"
#include "app/host/AppServices.h"
#include "app/host/Strings.h"
#include "reference/json/FileError.h"

#include <QCoreApplication>
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
    return {ToQString(document.Station()->Data().name), QDate::currentDate(), QLocale()};
}

/// Beside the station, under its name. Empty when the user changed their mind.
QString AskFileName(const Document& document, const QString& title, const QStringList& filters, QWidget* parent)
{
    const QString suffix = filters.front().section(QStringLiteral("*."), 1).section(u')', 0, 0);
    const QFileInfo station(document.FileName());
    const QString base = document.FileName().isEmpty() ? document.Title() : station.baseName();
    QFileDialog dialog(parent, title, station.absolutePath());
    dialog.setNameFilters(filters);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile(base + u'.' + suffix);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        const QString chosen = filter.section(QStringLiteral("*."), 1).section(u')', 0, 0);
        dialog.setDefaultSuffix(chosen);
        dialog.selectFile(base + u'.' + chosen);
    });
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

template <class Step>
void TellFailure(AppServices& services, QWidget* parent, const QString& what, Step step)
{
    try {
        step();
    } catch (const reference::FileError& error) {
        QMessageBox box(QMessageBox::Critical, ExportTexts::tr("Quillon Ed"), what, QMessageBox::Close, parent);
        box.setInformativeText(ToQString(error.Message(services.CurrentLanguage())));
        box.exec();
    }
}

} // namespace

void ExportPicture(AppServices& services, const Document& document, QWidget* parent)
{
    const QString file = AskFileName(document, ExportTexts::tr("Export picture"),
                                     {ExportTexts::tr("Page (*.pdf)"), ExportTexts::tr("Picture (*.png)"),
                                      ExportTexts::tr("Vector picture (*.svg)")},
                                     parent);
    if (file.isEmpty()) return;
    TellFailure(services, parent, ExportTexts::tr("The picture cannot be exported."),
                [&] { ExportOverview(document.Station(), HeaderOf(document), PictureScale, file); });
}

void ExportList(AppServices& services, const Document& document, QWidget* parent)
{
    const QString file =
        AskFileName(document, ExportTexts::tr("Export module list"),
                    {ExportTexts::tr("Comma-separated values (*.csv)"), ExportTexts::tr("Markdown (*.md)")}, parent);
    if (file.isEmpty()) return;
    TellFailure(services, parent, ExportTexts::tr("The module list cannot be exported."), [&] {
        ExportModuleList(document.Station()->Data(), services.Catalogue(), services.CurrentLanguage(), file);
    });
}

void Print(AppServices&, const Document& document, QWidget* parent)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(document.Title());
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted) return;
    if (PrintStation(document.Station(), HeaderOf(document), printer)) return;
    QMessageBox::critical(parent, ExportTexts::tr("Quillon Ed"), ExportTexts::tr("The printer cannot be used."));
}

} // namespace quillon_ed
