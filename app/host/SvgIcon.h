#pragma once

#include <QIcon>
#include <QString>

namespace quillon_ed {

/// The icon of that name in the icon resource: drawn afresh at every size, its ink in the palette's text colour.
QIcon SvgIcon(const QString& name);

} // namespace quillon_ed
