// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMHotKeys.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class LMUserDefaults;
struct LMEnvironment;

/// When a hot key acts.
enum class LMHotKeyMoment {
    Pressed,
    Released, ///< For what grabs the keyboard itself, as menus do: it is not free before.
};

/// One line of the table of hot keys.
struct LMHotKeyBinding {
    QString key;                ///< Under which the user defaults hold the shortcut.
    std::function<bool()> test; ///< Asked before acting; none: acts always.
    std::function<void()> action;
    LMHotKeyMoment moment = LMHotKeyMoment::Pressed;
};

/// How one hot key is doing, for reports and preferences.
struct LMHotKeyReport {
    enum class State { Empty, Registered, Refused };

    QString key;
    std::optional<LMShortcut> shortcut; ///< None when the user set none, or nothing readable.
    State state = State::Empty;
    QString reason; ///< Why it is refused or cannot be read; else empty. For people.
};

/// Registers global shortcuts by the user-defaults key that holds them, and follows the key: the
/// hot key works with what the user sets, here or in the settings file, as soon as it is set. A key
/// without a shortcut is followed all the same.
class LMHotKeyCenter final : public QObject {
    Q_OBJECT
public:
    /// The environment must outlive the center.
    explicit LMHotKeyCenter(LMEnvironment& environment);
    ~LMHotKeyCenter() override;

    /// Registers the hot keys of a table. Each runs its test, if any, and then its action, as long
    /// as the context lives.
    void setUpHotKeys(const QList<LMHotKeyBinding>& bindings, QObject* context);

    /// Calls the handler when the shortcut under the key is pressed, as long as the context lives.
    /// While a handler runs, in an event loop of its own, too, it is not called again. A key that
    /// is registered already gets the new handler.
    void registerShortcut(const QString& key, QObject* context, std::function<void()> handler,
                          LMHotKeyMoment moment = LMHotKeyMoment::Pressed);

    /// In the order of registration.
    QList<LMHotKeyReport> hotKeys() const;

    /// While it lives, no hot key is taken from the keyboard: a shortcut is being recorded, and any
    /// may be pressed. What is set meanwhile holds afterwards. May outlive the center.
    class Suspension {
    public:
        explicit Suspension(LMHotKeyCenter& center);
        ~Suspension();
        Q_DISABLE_COPY_MOVE(Suspension)

    private:
        QPointer<LMHotKeyCenter> m_center;
    };

Q_SIGNALS:
    /// The report of the key may have changed.
    void hotKeyChanged(const QString& key);

private:
    struct HotKey;

    HotKey* find(const QString& key) const;
    void follow(HotKey& hotKey);
    void note(HotKey& hotKey, const LMHotKeyStatus& status);
    void fire(const QString& key, LMHotKeyMoment moment);

    void setSuspended(bool isSuspended);

    LMEnvironment& m_environment;
    LMHotKeys& m_hotKeys;
    std::vector<std::shared_ptr<HotKey>> m_entries; ///< Shared: a handler may replace its own.
    int m_suspensions = 0;
};
