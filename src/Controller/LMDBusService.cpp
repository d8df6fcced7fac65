// SPDX-License-Identifier: MIT
#include "Controller/LMDBusService.h"

#include "Controller/LMCommandFrame.h"
#include "Controller/LMReports.h"
#include "Controller/LMStatusItemController.h"
#include "Controller/LMUserCommands.h"
#include "Controller/LMUserInterface.h"
#include "Platform/LMEnvironment.h"
#include "rook1adaptor.h"
#include "Utilities/LMLogger.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QJsonDocument>

#include <algorithm>

namespace {

/// More callers than ask at the same time.
constexpr qsizetype MostRefusals = 256;

QString asText(const QJsonObject& report) {
    return QString::fromUtf8(QJsonDocument(report).toJson(QJsonDocument::Compact));
}

} // namespace

LMDBusService::LMDBusService(LMScriptingSupport& scriptingSupport, LMUserCommands& userCommands,
                             LMStatusItemController& statusItem, const LMHotKeyCenter& hotKeyCenter,
                             const LMCommandParts& parts)
    : m_scriptingSupport(scriptingSupport), m_userCommands(userCommands), m_statusItem(statusItem),
      m_hotKeyCenter(hotKeyCenter), m_parts(parts), m_bus(QString()) {
    new LMRook1Adaptor(this); // A child of the service, found by the bus through it.
}

void LMDBusService::registerOn(const QDBusConnection& bus) {
    m_bus = bus;
    m_bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                  QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"),
                  this, SIGNAL(disconnected()));
    if (!m_bus.registerObject(ObjectPath, this))
        m_parts.environment.logger.error(QStringLiteral("D-Bus object not registered: %@"),
                                         {m_bus.lastError().message()});
}

void LMDBusService::unregister() {
    m_bus.unregisterService(ServiceName);
    m_bus.unregisterObject(ObjectPath);
}

QString LMDBusService::version() const {
    return QCoreApplication::applicationVersion();
}

bool LMDBusService::perform(quint32 eventCode, const QVariantMap& arguments) {
    const LMScriptCommand command{LMFourCharCode("Rook"), eventCode, arguments};
    if (const auto result = m_scriptingSupport.performDefaultImplementation(command))
        return answer(*result);
    return answer(LMRefusal::whileOccupied(m_parts).value_or(
        LMCommandResult::refused(LMRefusal::noActiveApplication())));
}

bool LMDBusService::perform(LMMenuCommand command) {
    if (!m_parts.userInterface.canShowWindows())
        return answer(LMCommandResult::refused(LMRefusal::noWindows()));
    return answer(m_userCommands.perform(command));
}

bool LMDBusService::answer(const LMCommandResult& result) {
    m_lastRefusal = result.refusal;
    const QString caller = calledFromDBus() ? message().service() : QString();
    m_refusals.removeIf([&](const auto& refusal) { return refusal.first == caller; });
    if (!result.refusal.isEmpty())
        m_refusals.append({caller, result.refusal});
    if (m_refusals.size() > MostRefusals)
        m_refusals.removeFirst();
    return result.isDone;
}

QString LMDBusService::Refusal() {
    const QString caller = calledFromDBus() ? message().service() : QString();
    const auto found = std::ranges::find(m_refusals, caller, &std::pair<QString, QString>::first);
    return found == m_refusals.end() ? QString() : found->second;
}

bool LMDBusService::RestoreAll() {
    return perform(LMFourCharCode("RAll"));
}

bool LMDBusService::RestoreActiveApplication() {
    return perform(LMFourCharCode("RApp"));
}

bool LMDBusService::RestoreApplication(const QString& application) {
    return perform(LMFourCharCode("RNam"), {{QStringLiteral("Application"), application}});
}

bool LMDBusService::StoreActiveApplication(bool overwrite) {
    return perform(LMFourCharCode("SApp"), {{QStringLiteral("Overwrite"), overwrite}});
}

bool LMDBusService::StoreActiveWindow(bool overwrite) {
    return perform(LMFourCharCode("SWin"), {{QStringLiteral("Overwrite"), overwrite}});
}

bool LMDBusService::StoreAll(bool overwrite) {
    return perform(LMFourCharCode("SAll"), {{QStringLiteral("Overwrite"), overwrite}});
}

bool LMDBusService::AskToStoreAll() {
    return perform(LMMenuCommand::StoreAllWindows);
}

bool LMDBusService::ShowMenu() {
    return answer(m_statusItem.displayMenuAtCursor());
}

bool LMDBusService::LinkActiveWindow() {
    return perform(LMMenuCommand::LinkActiveWindow);
}

bool LMDBusService::ShowStoredWindows() {
    return perform(LMMenuCommand::ShowStoredWindowsEditor);
}

bool LMDBusService::ShowPreferences() {
    return perform(LMMenuCommand::ShowPreferencesWindow);
}

bool LMDBusService::ShowAbout() {
    return perform(LMMenuCommand::ShowAboutPanel);
}

bool LMDBusService::CheckForUpdates() {
    return perform(LMMenuCommand::CheckForUpdates);
}

QString LMDBusService::Status() {
    return asText(LMReports::status(m_parts, m_hotKeyCenter));
}

QString LMDBusService::List() {
    return asText(LMReports::list(m_parts));
}

QString LMDBusService::Windows() {
    return asText(LMReports::windows(m_parts));
}

QString LMDBusService::Plan(const QString& application) {
    return asText(LMReports::plan(m_parts, application));
}

void LMDBusService::Activate() {
    Q_EMIT activated();
}

void LMDBusService::Quit() {
    Q_EMIT quitRequested();
}
