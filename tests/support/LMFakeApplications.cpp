// SPDX-License-Identifier: MIT
#include "support/LMFakeServices.h"

#include <algorithm>
#include <utility>

namespace {

class LMFakeApplications final : public LMApplications {
public:
    explicit LMFakeApplications(LMFakeWorld& world) : m_world(world) {}

    QList<LMRunningApplication> runningApplications() override {
        QList<LMRunningApplication> result;
        for (const LMFakeApplication& application : std::as_const(m_world.applications)) {
            const QList<quint32> windows = m_world.windowsOf(application);
            if (!windows.isEmpty())
                result.append({.bundleIdentifier = application.bundleIdentifier,
                               .localizedName = application.localizedName,
                               .processIdentifier = application.processIdentifier,
                               .activationPolicy = application.activationPolicy,
                               .isActive = windows.contains(m_world.focusedWindow.value_or(0)),
                               .isHidden = std::ranges::all_of(windows, [this](quint32 number) {
                                   return m_world.windows[number].state.isMinimized;
                               })});
        }
        return result;
    }
    bool activate(qint64 processIdentifier) override {
        const LMFakeApplication* application = reach(processIdentifier, u"activate"_qs);
        if (!application)
            return false;
        for (const quint32 number : m_world.windowsOf(*application)) {
            if (m_world.windows[number].state.isMinimized)
                continue;
            m_world.raise(number);
            m_world.focusedWindow = number;
            return true;
        }
        return false;
    }
    bool activateOwnWindow(quint64) override { return true; }
    bool hide(qint64 processIdentifier) override {
        LMFakeApplication* application = reach(processIdentifier, u"hide"_qs);
        if (!application)
            return false;
        for (const quint32 number : m_world.windowsOf(*application)) {
            LMFakeWindow& window = m_world.windows[number];
            if (!std::exchange(window.state.isMinimized, true))
                application->minimizedByHiding.append(number);
        }
        m_world.keepFocusInSight();
        return true;
    }
    bool unhide(qint64 processIdentifier) override {
        LMFakeApplication* application = reach(processIdentifier, u"unhide"_qs);
        if (!application)
            return false;
        for (const quint32 number : std::exchange(application->minimizedByHiding, {})) {
            if (m_world.windows.contains(number))
                m_world.windows[number].state.isMinimized = false;
        }
        return true;
    }
    QImage iconForApplication(const QString&, int) override { return QImage(); }
    QString fileManagerIdentifier() override { return m_world.fileManagerIdentifier; }

private:
    /// The application with windows that the process identifier stands for, or null; logs what is
    /// asked of it.
    LMFakeApplication* reach(qint64 processIdentifier, const QString& what) {
        LMFakeApplication* application = m_world.application(processIdentifier);
        if (!application || m_world.windowsOf(*application).isEmpty())
            return nullptr;
        m_world.log.append(what + u' ' + application->bundleIdentifier);
        return application;
    }

    LMFakeWorld& m_world;
};

} // namespace

std::unique_ptr<LMApplications> LMMakeFakeApplications(LMFakeWorld& world) {
    return std::make_unique<LMFakeApplications>(world);
}
