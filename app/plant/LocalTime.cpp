#include "app/plant/LocalTime.h"

#include <QDateTime>
#include <QRegularExpression>

#include <chrono>

namespace quillon_ed {

using namespace zqbchwcx::reference;

Time SystemTime()
{
    return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
}

QString LocalTime(Time time)
{
    return QDateTime::fromMSecsSinceEpoch(time.time_since_epoch().count())
        .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
}

QString WithLocalTime(QString text)
{
    static const QRegularExpression utc(QStringLiteral(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3}Z)"));
    const auto found = utc.match(text);
    if (!found.hasMatch()) return text;
    const auto time = ParseTime(found.captured().toStdString());
    return time ? text.replace(found.captured(), LocalTime(*time).chopped(4)) : text;
}

} // namespace quillon_ed
