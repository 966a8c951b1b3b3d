#include "adapters/modbus/ModbusAddress.h"

#include <QHostAddress>
#include <QUrl>
#include <QUrlQuery>

namespace zqbchwcx::modbus {

using reference::LocalizedText;

namespace {

constexpr uint LargestUnit = 255;

QString ToQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QUrl ToUrl(const QString& text)
{
    QUrl url(text, QUrl::StrictMode);
    return url.isValid() && !url.host().isEmpty() && url.port() >= 0 && url.userInfo().isEmpty() &&
                   url.path().isEmpty() && !url.hasFragment()
               ? url
               : QUrl();
}

} // namespace

std::string HostText(const ModbusAddress& address)
{
    return address.host.find(':') == std::string::npos ? address.host : "[" + address.host + "]";
}

std::variant<ModbusAddress, LocalizedText> ParseModbusAddress(std::string_view text)
{
    const std::string quoted = "'" + std::string(text) + "'";
    const LocalizedText wrong{quoted + " is no address such as modbus-tcp://192.168.0.5:502?unit=1",
                              quoted + " ist keine Adresse wie modbus-tcp://192.168.0.5:502?unit=1"};
    const QUrl url = ToUrl(ToQString(text));
    if (url.scheme() != ToQString(ModbusScheme) || url.port() == 0) return wrong;
    ModbusAddress address{url.host().toStdString(), static_cast<std::uint16_t>(url.port()), 1};
    for (const auto& [name, value] : QUrlQuery(url).queryItems()) {
        bool isNumber = false;
        const uint unit = value.toUInt(&isNumber);
        if (name != QStringLiteral("unit")) return wrong;
        if (!isNumber || unit > LargestUnit)
            return LocalizedText{"the unit in " + quoted + " is not a number from 0 to 255",
                                 "die Einheit in " + quoted + " ist keine Zahl von 0 bis 255"};
        address.unit = static_cast<std::uint8_t>(unit);
    }
    return address;
}

std::variant<ModbusAddress, LocalizedText> ParseListenAddress(std::string_view text)
{
    const QUrl url = ToUrl(QStringLiteral("tcp://") + ToQString(text));
    QHostAddress host(url.host());
    if (url.host() == QStringLiteral("localhost")) host = QHostAddress(QHostAddress::LocalHost);
    if (host.isNull() || url.hasQuery()) {
        const std::string quoted = "'" + std::string(text) + "'";
        return LocalizedText{quoted + " is no address of this computer such as 127.0.0.1:5020",
                             quoted + " ist keine Adresse dieses Rechners wie 127.0.0.1:5020"};
    }
    return ModbusAddress{host.toString().toStdString(), static_cast<std::uint16_t>(url.port()), 1};
}

} // namespace zqbchwcx::modbus
