// SPDX-License-Identifier: MIT
#include "UserInterface/LMPermissionPrompt.h"

#include "Platform/LMDesktop.h"
#include "UserInterface/LMAlertWindow.h"
#include "UserInterface/LMWindowPlacement.h"
#include "Utilities/LMFormat.h"

LMPermissionPrompt::LMPermissionPrompt(LMDesktop& desktop, std::chrono::milliseconds patience)
    : m_desktop(desktop) {
    m_patience.setInterval(patience);
    QObject::connect(&m_patience, &QTimer::timeout, &m_patience, [this] { look(); });
}

LMPermissionPrompt::~LMPermissionPrompt() = default;

const QWidget* LMPermissionPrompt::window() const {
    return m_window.get();
}

void LMPermissionPrompt::show(const QString& missing) {
    m_patience.stop();
    m_window.reset();
    if (!missing.isEmpty())
        m_patience.start();
}

void LMPermissionPrompt::look() {
    const LMPermission permission = m_desktop.checkPermission();
    if (permission.isTrusted)
        show({});
    else if (!m_window)
        open(permission.missing);
}

void LMPermissionPrompt::open(const QStringList& missing) {
    m_window = std::make_unique<LMAlertWindow>(
        LMAlert{LMLocalized("Rook cannot move windows on this desktop."),
                LMFormat(LMLocalized("%@\n\nUntil that changes, windows are neither stored nor "
                                     "restored."),
                         {missing.join(QLatin1Char('\n'))}),
                {}});
    m_window->setModal(false);
    QObject::connect(m_window.get(), &QDialog::finished, m_window.get(), [this] {
        m_patience.stop();
        m_window.release()->deleteLater();
    });
    m_window->adjustSize();
    LMCentreWindow(*m_window);
    LMBringToFront(*m_window, m_desktop);
    m_window->show();
}
