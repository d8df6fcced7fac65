// SPDX-License-Identifier: MIT
#include "Platform/LMDesktopFactory.h"

#include "Utilities/LMLogger.h"

std::unique_ptr<LMDesktop> LMCreateDesktop(const std::vector<LMBackend>& backends,
                                           const QProcessEnvironment& environment, LMLogger& logger,
                                           QString* reason) {
    QStringList refusals;
    for (const LMBackend& backend : backends) {
        QString refusal;
        if (backend.isAvailable(environment, &refusal)) {
            if (auto desktop = backend.create(logger, &refusal)) {
                logger.debug(QStringLiteral("Using the desktop back end %@"), {backend.name});
                return desktop;
            }
        }
        refusals.append(refusal);
    }
    if (reason)
        *reason = refusals.join(QLatin1Char(' '));
    return nullptr;
}
