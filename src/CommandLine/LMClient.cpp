// SPDX-License-Identifier: MIT
#include "CommandLine/LMClient.h"

#include "CommandLine/LMTables.h"
#include "Utilities/LMBaseDirectories.h"
#include "Utilities/LMFormat.h"

#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <chrono>
#include <limits>
#include <thread>
#include <unistd.h>

namespace {

constexpr QLatin1String Service{"org.rook.Rook"};
constexpr QLatin1String Path{"/org/rook/Rook"};
constexpr QLatin1String Interface{"org.rook.Rook1"};
constexpr std::chrono::seconds QuitDeadline{30};
constexpr std::chrono::milliseconds StartDeadline{10000};
constexpr std::chrono::milliseconds StartPollInterval{20};
constexpr std::chrono::milliseconds NoticeableDelay{2000};
/// Restoring takes as long as it takes: scripts may run before it.
constexpr int NoTimeout = std::numeric_limits<int>::max();

/// Whether this process runs on behalf of that one (proc(5), the fourth field).
bool isAncestor(qint64 process) {
    qint64 ancestor = getppid();
    while (ancestor != process && ancestor > 1) {
        QFile file(QStringLiteral("/proc/%1/stat").arg(ancestor));
        if (!file.open(QIODevice::ReadOnly))
            return false;
        // The name in parentheses may hold anything.
        const QByteArray text = file.readAll();
        ancestor = text.mid(text.lastIndexOf(')') + 4).split(' ').value(0).toLongLong();
    }
    return ancestor == process;
}

} // namespace

LMClient::LMClient(const QDBusConnection& bus, std::FILE* output, std::FILE* errors)
    : m_bus(bus), m_output(output), m_errors(errors) {}

int LMClient::run(const LMInvocation& invocation) {
    if (!m_bus.isConnected()) {
        print(m_errors, LMLocalized("rook: there is no session bus to reach Rook through"));
        return LMExitCode::NotRunning;
    }
    if (!isResidentRunning()) {
        // A report would tell about a process that was made for it, and nothing is there to end.
        if (invocation.kind != LMInvocation::Kind::Command)
            return notRunning();
        if (const int exitCode = startResident(); exitCode != LMExitCode::Done)
            return exitCode;
    }
    if (const QString activity = activityOfCaller(); !activity.isEmpty())
        return failed(
            LMFormat(LMLocalized("Rook waits for the script that calls it. %@"), {activity}));
    switch (invocation.kind) {
    case LMInvocation::Kind::Command:
        return command(invocation);
    case LMInvocation::Kind::Report:
        return report(invocation);
    case LMInvocation::Kind::Quit:
        return quit(invocation);
    default:
        return LMExitCode::Usage;
    }
}

int LMClient::command(const LMInvocation& invocation) {
    const QDBusMessage reply = call(invocation);
    if (reply.type() != QDBusMessage::ReplyMessage)
        return failed(whyNoReply(reply));
    const QString why = refusal();
    if (reply.arguments().value(0).toBool()) {
        if (!why.isEmpty())
            failed(why);
        return LMExitCode::Done;
    }
    return failed(why.isEmpty() ? LMLocalized("the command could not run") : why);
}

int LMClient::report(const LMInvocation& invocation) {
    const QDBusMessage reply = call(invocation);
    if (reply.type() != QDBusMessage::ReplyMessage)
        return failed(whyNoReply(reply));
    const QJsonDocument document =
        QJsonDocument::fromJson(reply.arguments().value(0).toString().toUtf8());
    if (invocation.wantsJson)
        print(m_output, QString::fromUtf8(document.toJson(QJsonDocument::Indented)).trimmed());
    else if (const QString text = LMTables::forReport(invocation.method, document.object());
             !text.isEmpty())
        print(m_output, text);
    if (std::fflush(m_output) != 0 || std::ferror(m_output) != 0)
        return failed(LMLocalized("the output could not be written"));
    const QJsonValue error = document.object().value(QLatin1String("error"));
    return error.isString() ? failed(error.toString()) : LMExitCode::Done;
}

int LMClient::quit(const LMInvocation& invocation) {
    // The process saves after it has answered: wait until its name is gone, so that a script may
    // copy the store or start another version.
    QDBusServiceWatcher watcher(Service, m_bus, QDBusServiceWatcher::WatchForUnregistration);
    QEventLoop loop;
    QObject::connect(&watcher, &QDBusServiceWatcher::serviceUnregistered, &loop, &QEventLoop::quit);
    QTimer deadline;
    QObject::connect(&deadline, &QTimer::timeout, &loop, [&loop] { loop.exit(1); });
    const QDBusMessage reply = call(invocation);
    if (reply.type() != QDBusMessage::ReplyMessage && isResidentRunning())
        return failed(reply.errorMessage());
    deadline.start(QuitDeadline);
    if (isResidentRunning() && loop.exec() != 0)
        return failed(LMLocalized("Rook has not ended yet"));
    return LMExitCode::Done;
}

bool LMClient::isResidentRunning() const {
    const QDBusReply<bool> reply = m_bus.interface()->isServiceRegistered(Service);
    return reply.isValid() && reply.value();
}

/// Has the bus start Rook, if it knows how: where Rook is installed, a file tells it.
int LMClient::startResident() const {
    const QDBusReply<void> reply = m_bus.interface()->startService(Service);
    if (reply.isValid())
        return LMExitCode::Done;
    if (reply.error().type() == QDBusError::ServiceUnknown)
        return notRunning();
    return failed(
        LMFormat(LMLocalized("Rook could not be started. %@"), {reply.error().message()}));
}

QDBusMessage LMClient::call(const LMInvocation& invocation) const {
    QDBusMessage message =
        QDBusMessage::createMethodCall(Service, Path, Interface, invocation.method);
    message.setArguments(invocation.arguments);
    message.setAutoStartService(false); // One that has just ended would be started again.
    QElapsedTimer sinceStart;
    sinceStart.start();
    while (true) {
        // Storing and restoring may take long; what takes a moment only is noticed when it does
        // not.
        const QDBusMessage reply = ask(message, invocation.kind != LMInvocation::Kind::Command);
        // Rook has its name before it has opened its store: it will serve in a moment.
        const bool isStarting =
            reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.UnknownObject");
        if (!isStarting || sinceStart.hasExpired(StartDeadline.count()))
            return reply;
        std::this_thread::sleep_for(StartPollInterval);
    }
}

/// A call that blocks the event loop would never learn that the bus is gone.
QDBusMessage LMClient::ask(const QDBusMessage& message, bool notesDelay) const {
    const QDBusPendingCallWatcher watcher(m_bus.asyncCall(message, NoTimeout));
    QEventLoop loop;
    QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
    // A process that is held by a script cannot answer, but it has left a note.
    QTimer delay;
    delay.setSingleShot(true);
    QObject::connect(&delay, &QTimer::timeout, &loop, [this] {
        const QString note = LMFormat(LMLocalized("rook: Rook is busy and answers later. %@"),
                                      {LMTables::printable(activity())});
        print(m_errors, note.trimmed()); // One that was stopped while idle has no activity.
    });
    if (notesDelay)
        delay.start(NoticeableDelay);
    if (!watcher.isFinished())
        loop.exec();
    return watcher.reply();
}

/// 0 when nobody knows.
qint64 LMClient::residentProcess() const {
    return m_bus.interface()->servicePid(Service).value();
}

QString LMClient::activity() const {
    QFile file(LMActivityFilePath(residentProcess()));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonArray current =
        QJsonDocument::fromJson(file.readAll())[QLatin1String("current")].toArray();
    return current.isEmpty() ? QString() : LMTables::activity(current.last().toObject());
}

/// What Rook is doing if it is Rook that runs this command, through a script: it waits for the
/// script, so the script must not wait for it.
QString LMClient::activityOfCaller() const {
    const qint64 resident = residentProcess();
    return resident != 0 && isAncestor(resident) ? activity() : QString();
}

QString LMClient::refusal() const {
    QDBusMessage message =
        QDBusMessage::createMethodCall(Service, Path, Interface, QStringLiteral("Refusal"));
    message.setAutoStartService(false);
    return QDBusReply<QString>(m_bus.call(message)).value();
}

QString LMClient::whyNoReply(const QDBusMessage& reply) const {
    return isResidentRunning()
               ? reply.errorMessage()
               : LMLocalized("Rook has ended without an answer; start it with “rook” to see why");
}

int LMClient::notRunning() const {
    print(m_errors, LMLocalized("rook: Rook is not running; start it with “rook”"));
    return LMExitCode::NotRunning;
}

int LMClient::failed(const QString& why) const {
    print(m_errors, LMFormat(QStringLiteral("rook: %@"), {LMTables::printable(why)}));
    return LMExitCode::Refused;
}

void LMClient::print(std::FILE* stream, const QString& text) const {
    const QByteArray bytes = text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
}
