// SPDX-License-Identifier: MIT
#include "Model/LMApplication.h"

#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Platform/LMKnownApplications.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMPropertyList.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <QPainter>

namespace {

constexpr int iconSize = 32;        // pixels
constexpr int blockedIconSize = 16; // pixels
constexpr double delayNotRead = -1.0;

QStringList readBlockedApplications(const LMEnvironment& environment) {
    QString error;
    const auto list = LMPropertyListFromFile(environment.blockedApplicationsPath, &error);
    if (!list) {
        environment.logger.error(QStringLiteral("Blocked applications not read: %@"), {error});
        return {};
    }
    return list->toStringList() +
           environment.userDefaults.stringArrayForKey(LMUserDefaultsKeys::ExcludedApplications);
}

QImage iconWithBlockedBadge(const QImage& icon) {
    const QImage badge(QStringLiteral(":/rook/BlockedApplicationIcon.png"));
    QImage result(blockedIconSize, blockedIconSize, QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(0, 0, 12, 12), icon);
    painter.drawImage(QPoint(8, blockedIconSize - badge.height()), badge);
    return result;
}

} // namespace

const QStringList& LMApplication::blockedApplications(LMEnvironment& environment) {
    if (!environment.blockedApplications)
        environment.blockedApplications = readBlockedApplications(environment);
    return *environment.blockedApplications;
}

bool LMApplication::isBlocked() const {
    return blockedApplications(environment()).contains(m_bundleIdentifier);
}

double LMApplication::floatingWindowActivationDelay(LMEnvironment& environment) {
    if (environment.floatingWindowActivationDelay == delayNotRead)
        environment.floatingWindowActivationDelay = environment.userDefaults.doubleForKey(
            LMUserDefaultsKeys::FloatingWindowActivationDelay);
    return environment.floatingWindowActivationDelay;
}

QImage LMApplication::icon() const {
    const bool isDesktop = environment().knownApplications.plays(LMKnownApplications::Role::Desktop,
                                                                 m_bundleIdentifier);
    QImage image =
        isDesktop
            ? QImage(QStringLiteral(":/rook/DesktopFolderIcon.png"))
            : environment().desktop.applications().iconForApplication(m_bundleIdentifier, iconSize);
    if (image.isNull())
        image = QImage(QStringLiteral(":/rook/GenericApplicationIcon.png"));
    return isBlocked() ? iconWithBlockedBadge(image) : image;
}
