// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

/// Turns SIGTERM, SIGINT and SIGHUP into a Qt signal, so that a session manager or Ctrl+C quits the
/// way the menu does; SIGPIPE is ignored. One at a time per process.
///
/// Made before any thread, so that all of them inherit the mask, and so before the application
/// object: what arrives is kept until listen() is called.
class LMUnixSignals : public QObject {
    Q_OBJECT
public:
    explicit LMUnixSignals(QObject* parent = nullptr);
    ~LMUnixSignals() override;

    /// From here on signals are reported, from the event loop. Needs the application object.
    void listen();

Q_SIGNALS:
    void terminationRequested(int signalNumber);

private:
    int m_descriptor = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
