#pragma once

#include "app/export/PictureContent.h"

#include <QString>

class QWidget;

namespace quillon_ed {

class AppServices;
class Document;

/// Export and printing of an open station: the dialogs, and the telling of what failed. Each returns what to tell when
/// it is done; nothing when the user changed their mind, or has read why it failed.
QString ExportPicture(AppServices& services, const Document& document, const PictureContent& content, QWidget* parent);
QString ExportList(AppServices& services, const Document& document, QWidget* parent);
/// A text in the form of a list, such as a log.
QString ExportText(AppServices& services, const Document& document, const QByteArray& csv, QWidget* parent);
QString Print(AppServices& services, const Document& document, QWidget* parent);

} // namespace quillon_ed
