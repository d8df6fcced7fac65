// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMMenuItem.h"
#include "Controller/LMScriptingSupport.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QList>
#include <QObject>

#include <utility>

class LMHotKeyCenter;
class LMStatusItemController;
class LMUserCommands;
struct LMCommandParts;

/// The session bus face of the resident process: service org.rook.Rook, object /org/rook/Rook,
/// interface org.rook.Rook1. The generated adaptor calls the slots below.
class LMDBusService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_PROPERTY(QString LastRefusal READ lastRefusal)
    Q_PROPERTY(QString Version READ version)
public:
    static constexpr QLatin1String ServiceName{"org.rook.Rook"};
    static constexpr QLatin1String ObjectPath{"/org/rook/Rook"};

    /// All of them outlive the service.
    LMDBusService(LMScriptingSupport& scriptingSupport, LMUserCommands& userCommands,
                  LMStatusItemController& statusItem, const LMHotKeyCenter& hotKeyCenter,
                  const LMCommandParts& parts);

    /// Serves calls from here on; they arrive through the event loop. The connection owns the
    /// service's name already: it is what makes this the one resident process of the session.
    void registerOn(const QDBusConnection& bus);
    void unregister();

    QString lastRefusal() const { return m_lastRefusal; }
    QString version() const;

public Q_SLOTS:
    bool RestoreAll();
    bool RestoreActiveApplication();
    bool RestoreApplication(const QString& application);
    bool StoreActiveApplication(bool overwrite);
    bool StoreActiveWindow(bool overwrite);
    bool StoreAll(bool overwrite);
    bool AskToStoreAll();
    bool ShowMenu();
    bool LinkActiveWindow();
    bool ShowStoredWindows();
    bool ShowPreferences();
    bool ShowAbout();
    bool CheckForUpdates();
    QString Refusal();
    QString Status();
    QString List();
    QString Windows();
    QString Plan(const QString& application);
    void Activate();
    void Quit();

Q_SIGNALS:
    void activated();
    void quitRequested();
    /// The session bus is gone, and with it every caller.
    void disconnected();

private:
    bool perform(quint32 eventCode, const QVariantMap& arguments = {});
    bool perform(LMMenuCommand command);
    bool answer(const LMCommandResult& result);

    LMScriptingSupport& m_scriptingSupport;
    LMUserCommands& m_userCommands;
    LMStatusItemController& m_statusItem;
    const LMHotKeyCenter& m_hotKeyCenter;
    const LMCommandParts& m_parts;
    QDBusConnection m_bus;
    QString m_lastRefusal;
    QList<std::pair<QString, QString>> m_refusals; ///< By caller, of its latest command.
};
