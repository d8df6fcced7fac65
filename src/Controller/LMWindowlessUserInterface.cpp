// SPDX-License-Identifier: MIT
#include "Controller/LMWindowlessUserInterface.h"

#include "Utilities/LMLogger.h"
#include "Utilities/LMUserDefaults.h"

LMWindowlessUserInterface::LMWindowlessUserInterface(const LMUserDefaults& userDefaults,
                                                     const LMLogger& logger)
    : m_userDefaults(userDefaults), m_logger(logger), m_progress(logger) {}

void LMWindowlessUserInterface::Progress::showWindow() {
    m_logger.info(QStringLiteral("%@"), {m_label});
}

bool LMWindowlessUserInterface::confirmReplacement(const QString& suppressionKey,
                                                   const QString& message, const QString&) {
    if (m_userDefaults.boolForKey(suppressionKey))
        return true;
    m_logger.info(QStringLiteral("Not replaced, because nobody can be asked: %@"), {message});
    return false;
}

void LMWindowlessUserInterface::reportSuccess(const QString& suppressionKey, const QString&,
                                              const QString& informativeText) {
    if (m_userDefaults.boolForKey(suppressionKey))
        return;
    m_logger.info(QStringLiteral("%@"), {informativeText});
}
