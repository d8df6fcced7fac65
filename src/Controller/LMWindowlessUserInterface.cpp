// SPDX-License-Identifier: MIT
#include "Controller/LMWindowlessUserInterface.h"

#include "Utilities/LMLogger.h"

#include <algorithm>

LMWindowlessUserInterface::LMWindowlessUserInterface(const LMLogger& logger)
    : m_logger(logger), m_progress(logger) {}

void LMWindowlessUserInterface::Progress::showWindow() {
    m_logger.info(QStringLiteral("%@"), {m_label});
}

LMAlertAnswer LMWindowlessUserInterface::runModal(const LMAlert& alert) {
    const int last = std::max(0, int(alert.buttons.size()) - 1);
    m_logger.info(QStringLiteral("%@ %@ [%@]"), {alert.message, alert.informativeText,
                                                 alert.buttons.value(last, QStringLiteral("OK"))});
    return {LMAlertAnswer::FirstButton + last, false};
}
