// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

class LMX11Connection;

/// A setting of the user's desktop session that is a text, as its settings daemon publishes it to
/// all clients (XSETTINGS 0.5), for example "Net/IconThemeName". Null when no daemon runs or knows
/// the setting. Three round trips.
QString LMX11StringSetting(LMX11Connection& connection, const QString& name);

/// The same from the content of the daemon's property. Null for malformed content.
QString LMX11StringSettingInBytes(QByteArrayView bytes, const QString& name);

/// Whether a compositing manager runs: it owns the selection that EWMH sets aside for it. Two round
/// trips.
bool LMX11IsComposited(LMX11Connection& connection);
