// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <stdexcept>

/// Handles events until the condition holds; false when it does not within five seconds.
inline bool LMWaitUntil(const std::function<bool()>& condition) {
    const QDeadlineTimer deadline(5000);
    QTimer wakeUp; // X events are handed on when the event loop is about to wait for some.
    wakeUp.start(5);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

/// What a tool prints; the command's words are separated by spaces.
inline QString LMRunTool(const QString& command) {
    QStringList words = command.split(u' ', Qt::SkipEmptyParts);
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(words.takeFirst(), words);
    if (!process.waitForFinished(10000))
        throw std::runtime_error("no answer from " + command.toStdString());
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// A client of the X server in a process of its own, which ends with the object.
class LMWindowClient {
public:
    explicit LMWindowClient(const QString& program) {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(program, QStringList());
    }
    ~LMWindowClient() {
        m_process.closeWriteChannel(); // It ends with its standard input.
        if (!m_process.waitForFinished(5000))
            m_process.kill();
    }
    QByteArray ask(const QByteArray& command) {
        m_process.write(command + '\n');
        while (!m_process.canReadLine()) {
            if (!m_process.waitForReadyRead(5000))
                throw std::runtime_error("no answer from the window client");
        }
        const QByteArray answer = m_process.readLine().trimmed();
        if (answer.startsWith("error"))
            throw std::runtime_error(answer.toStdString());
        return answer;
    }
    /// The windows' identifiers, as the tools take them.
    QStringList create(const QByteArray& options) {
        return QString::fromLatin1(ask("create " + options)).split(u' ').mid(1);
    }
    qint64 process() const { return m_process.processId(); }

private:
    QProcess m_process;
};
