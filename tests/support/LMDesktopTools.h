// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <stdexcept>

/// Handles events until the condition holds; false when it does not within ten seconds.
inline bool LMWaitUntil(const std::function<bool()>& condition) {
    const QDeadlineTimer deadline(10'000);
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

/// A line of what "xrandr --listmonitors" says, root coordinates.
struct LMListedMonitor {
    QString name;
    QRectF frame;
    bool isMain;
};

inline QList<LMListedMonitor> LMListMonitors() {
    static const QRegularExpression pattern(
        u": \\+?(\\*?)(\\S+) (\\d+)/\\d+x(\\d+)/\\d+([+-]\\d+)([+-]\\d+)"_qs);
    const QString text = LMRunTool(u"xrandr --listmonitors"_qs);
    QList<LMListedMonitor> monitors;
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        const auto each = match.next();
        const auto number = [&each](int group) { return each.captured(group).toDouble(); };
        monitors.append({each.captured(2),
                         {number(5), number(6), number(3), number(4)},
                         !each.captured(1).isEmpty()});
    }
    return monitors;
}

/// The windows that the window manager knows, in hexadecimal.
inline QString LMListedWindows() {
    return LMRunTool(u"xprop -root _NET_CLIENT_LIST"_qs);
}

/// For the window manager to forget the windows of clients that have ended.
inline bool LMWaitUntilNoWindowIsListed() {
    return LMWaitUntil([] { return !LMListedWindows().contains(u"0x"_qs); });
}

/// A client of the X server in a process of its own, which ends with the object.
class LMWindowClient {
public:
    LMWindowClient() {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(qEnvironmentVariable("ROOK_WINDOW_SPAWNER"), QStringList());
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
