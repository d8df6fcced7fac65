// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

/// Turns SIGTERM, SIGINT and SIGHUP into a Qt signal, so that a session manager or Ctrl+C quits the
/// way the menu does; SIGPIPE is ignored. One at a time per process.
class LMUnixSignals : public QObject {
    Q_OBJECT
public:
    explicit LMUnixSignals(QObject* parent = nullptr);
    ~LMUnixSignals() override;

Q_SIGNALS:
    void terminationRequested(int signalNumber);

private:
    int m_descriptor = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
