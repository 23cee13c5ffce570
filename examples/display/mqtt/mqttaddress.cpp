// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "mqttaddress.h"

#include <QUrl>

namespace {

constexpr int plainPort = 1883;
constexpr int encryptedPort = 8883;

} // namespace

MqttAddress parseMqttAddress(const QString &text, QString *problem)
{
    const QString form = QStringLiteral("mqtt://host[:port] or mqtts://host[:port]");
    if (text.isEmpty()) {
        *problem = QStringLiteral("it is empty, and should be %1").arg(form);
        return {};
    }
    const QUrl url(text, QUrl::StrictMode);
    // Also in what is no URL: nothing of it may be repeated.
    if (text.contains(QLatin1Char('@'))) {
        *problem = QStringLiteral("user and password do not belong there; credentials come from a "
                                  "file");
        return {};
    }
    const bool isPlain = url.scheme() == QLatin1String("mqtt");
    const bool isEncrypted = url.scheme() == QLatin1String("mqtts");
    if (!url.isValid() || !(isPlain || isEncrypted) || url.host().isEmpty()) {
        *problem = QStringLiteral("'%1' is not %2").arg(text, form);
        return {};
    }
    const bool hasPath = !url.path().isEmpty() && url.path() != QLatin1String("/");
    if (hasPath || url.hasQuery() || url.hasFragment()) {
        *problem = QStringLiteral("'%1' goes on after host and port; topics come from a mapping")
                       .arg(text);
        return {};
    }
    const int port = url.port(isEncrypted ? encryptedPort : plainPort);
    if (port == 0) {
        *problem = QStringLiteral("'%1' has no port from 1 to 65535").arg(text);
        return {};
    }
    return {url.host(), quint16(port), isEncrypted};
}
