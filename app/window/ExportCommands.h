#pragma once

class QWidget;

namespace quillon_ed {

class AppServices;
class Document;

/// Export and printing of an open station: the dialogs, and the telling of what failed.
void ExportPicture(AppServices& services, const Document& document, QWidget* parent);
void ExportList(AppServices& services, const Document& document, QWidget* parent);
void Print(AppServices& services, const Document& document, QWidget* parent);

} // namespace quillon_ed
