#include "app/dialogs/AboutDialog.h"

#include "app/host/SvgIcon.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace quillon_ed {

namespace {

struct AboutTexts {
    Q_DECLARE_TR_FUNCTIONS(quillon_ed::AboutDialog)
};

} // namespace

void ShowAbout(QWidget* parent)
{
    QMessageBox box(parent);
    box.setWindowTitle(AboutTexts::tr("About Quillon Ed"));
    box.setIconPixmap(SvgIcon(QStringLiteral("quillon-ed")).pixmap(64, 64));
    box.setTextFormat(Qt::RichText);
    box.setText(QStringLiteral("<b>Quillon Ed %1</b>").arg(QStringLiteral(QUILLON_VERSION)));
    box.setInformativeText(AboutTexts::tr("Hardware configuration of programmable-controller stations.") +
                           QStringLiteral("<br><br>") + AboutTexts::tr("Licence: Apache-2.0") + QStringLiteral("<br>") +
                           AboutTexts::tr("Made with Qt %1").arg(QLatin1String(qVersion())));
    box.setStandardButtons(QMessageBox::Close);
    box.exec();
}

} // namespace quillon_ed
