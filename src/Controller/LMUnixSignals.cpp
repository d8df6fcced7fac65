// SPDX-License-Identifier: MIT
#include "Controller/LMUnixSignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

sigset_t terminationSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&signals, number);
    return signals;
}

} // namespace

LMUnixSignals::LMUnixSignals(QObject* parent) : QObject(parent) {
    // A descriptor instead of a handler: nothing runs in signal context, and a signal that arrives
    // during a restore waits until the restore is done. Threads made later inherit the mask.
    // A closed standard error must cost a message, not the process.
    std::signal(SIGPIPE, SIG_IGN);
    const sigset_t signals = terminationSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    m_descriptor = signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
    if (m_descriptor < 0)
        pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

void LMUnixSignals::listen() {
    if (m_descriptor < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        signalfd_siginfo information{};
        while (read(m_descriptor, &information, sizeof information) == sizeof information)
            Q_EMIT terminationRequested(int(information.ssi_signo));
    });
}

LMUnixSignals::~LMUnixSignals() {
    m_notifier.reset();
    if (m_descriptor >= 0)
        close(m_descriptor);
    const sigset_t signals = terminationSignals();
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}
