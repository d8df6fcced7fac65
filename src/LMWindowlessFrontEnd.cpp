// SPDX-License-Identifier: MIT
#include "LMFrontEnd.h"

#include "Controller/LMWindowlessUserInterface.h"
#include "Platform/LMEnvironment.h"

LMFrontEnd::LMFrontEnd(int argc, char** argv, bool)
    : m_argumentCount(argc), m_arguments(argv, argv + argc + 1),
      m_application(std::make_unique<QCoreApplication>(m_argumentCount, m_arguments.data())),
      m_translations(std::make_unique<LMTranslations>(LMTranslations::Scope::Program)) {}

LMFrontEnd::~LMFrontEnd() = default;

std::unique_ptr<LMUserInterface>
LMFrontEnd::makeUserInterface(LMEnvironment& environment, LMStoredWindowsStore&, LMSystemClock&) {
    return std::make_unique<LMWindowlessUserInterface>(environment.logger);
}

// Handlers come by value for the build that keeps them.
// NOLINTBEGIN(performance-unnecessary-value-param)
void LMFrontEnd::setCommitDataHandler(std::function<void()>) {}

void LMFrontEnd::setLastWindowClosedHandler(std::function<void()>) {}
// NOLINTEND(performance-unnecessary-value-param)
