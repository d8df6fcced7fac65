// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMUserInterface.h"
#include "Utilities/LMTranslations.h"

#include <QCoreApplication>

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class LMStoredWindowsStore;
class LMSystemClock;
struct LMEnvironment;

/// The application object, the texts in the user's language and the user interface: what differs
/// between a build with widgets (LMWidgetFrontEnd.cpp) and one without (LMWindowlessFrontEnd.cpp).
class LMFrontEnd {
public:
    /// Makes the application object, for windows or without them. A build without widgets never
    /// shows any.
    LMFrontEnd(int argc, char** argv, bool showsWindows);
    ~LMFrontEnd();
    Q_DISABLE_COPY_MOVE(LMFrontEnd)

    /// The clock is the environment's, which can be observed while it sleeps. All three outlive
    /// the user interface.
    std::unique_ptr<LMUserInterface> makeUserInterface(LMEnvironment& environment,
                                                       LMStoredWindowsStore& store,
                                                       LMSystemClock& clock);

    /// The session manager asks for everything to be saved, since the session may end now.
    void setCommitDataHandler(std::function<void()> handler);

    /// Called whenever the last of the program's own windows has closed.
    void setLastWindowClosedHandler(std::function<void()> handler);

private:
    int m_argumentCount = 0;
    // The application object refers to them as long as it lives.
    std::array<std::string, 2> m_platformOption{"-platform", "xcb"};
    std::vector<char*> m_arguments;
    std::unique_ptr<QCoreApplication> m_application;
    std::unique_ptr<LMTranslations> m_translations;
    bool m_showsWindows = false;
};
