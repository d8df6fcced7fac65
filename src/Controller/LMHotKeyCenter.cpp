// SPDX-License-Identifier: MIT
#include "Controller/LMHotKeyCenter.h"

#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMUserDefaults.h"

#include <QPointer>
#include <QScopedValueRollback>

#include <algorithm>

struct LMHotKeyCenter::HotKey {
    LMHotKeyReport report;
    LMHotKeyMoment moment = LMHotKeyMoment::Pressed;
    QPointer<QObject> context;
    std::function<void()> handler;
    bool isRunning = false;
    LMUserDefaults::Observation observation;
};

LMHotKeyCenter::LMHotKeyCenter(LMEnvironment& environment)
    : m_environment(environment), m_hotKeys(environment.desktop.hotKeys()) {
    connect(&m_hotKeys, &LMHotKeys::hotKeyPressed, this,
            [this](const QString& key) { fire(key, LMHotKeyMoment::Pressed); });
    connect(&m_hotKeys, &LMHotKeys::hotKeyReleased, this,
            [this](const QString& key) { fire(key, LMHotKeyMoment::Released); });
    connect(&m_hotKeys, &LMHotKeys::hotKeyStateChanged, this,
            [this](const QString& key, const LMHotKeyStatus& status) {
                if (HotKey* hotKey = find(key); hotKey && m_suspensions == 0)
                    note(*hotKey, status);
            });
    m_environment.userDefaults.followFile();
}

LMHotKeyCenter::~LMHotKeyCenter() {
    for (const auto& hotKey : m_entries)
        m_hotKeys.unregisterHotKey(hotKey->report.key);
}

void LMHotKeyCenter::setUpHotKeys(const QList<LMHotKeyBinding>& bindings, QObject* context) {
    for (const LMHotKeyBinding& binding : bindings) {
        const auto handler = [test = binding.test, action = binding.action] {
            if (!test || test())
                action();
        };
        registerShortcut(binding.key, context, handler, binding.moment);
    }
}

void LMHotKeyCenter::registerShortcut(const QString& key, QObject* context,
                                      std::function<void()> handler, LMHotKeyMoment moment) {
    std::erase_if(m_entries, [&](const auto& hotKey) { return hotKey->report.key == key; });
    const auto hotKey = std::make_shared<HotKey>();
    hotKey->report.key = key;
    hotKey->moment = moment;
    hotKey->context = context;
    hotKey->handler = std::move(handler);
    hotKey->observation = m_environment.userDefaults.addObserver(key, [this, key] {
        if (HotKey* changed = find(key))
            follow(*changed);
    });
    m_entries.push_back(hotKey);
    follow(*hotKey);
}

QList<LMHotKeyReport> LMHotKeyCenter::hotKeys() const {
    QList<LMHotKeyReport> reports;
    for (const auto& hotKey : m_entries)
        reports.append(hotKey->report);
    return reports;
}

LMHotKeyCenter::HotKey* LMHotKeyCenter::find(const QString& key) const {
    const auto found = std::ranges::find_if(
        m_entries, [&](const auto& hotKey) { return hotKey->report.key == key; });
    return found == m_entries.end() ? nullptr : found->get();
}

LMHotKeyCenter::Suspension::Suspension(LMHotKeyCenter& center) : m_center(&center) {
    if (center.m_suspensions++ == 0)
        center.setSuspended(true);
}

LMHotKeyCenter::Suspension::~Suspension() {
    if (m_center && --m_center->m_suspensions == 0)
        m_center->setSuspended(false);
}

/// Those that worked come back first, so that none loses its shortcut to another.
void LMHotKeyCenter::setSuspended(bool isSuspended) {
    std::vector<std::shared_ptr<HotKey>> hotKeys = m_entries;
    std::stable_partition(hotKeys.begin(), hotKeys.end(), [](const auto& hotKey) {
        return hotKey->report.state == LMHotKeyReport::State::Registered;
    });
    for (const auto& hotKey : hotKeys) {
        if (isSuspended)
            m_hotKeys.unregisterHotKey(hotKey->report.key);
        else
            follow(*hotKey);
    }
}

/// Makes the hot key what the user defaults say.
void LMHotKeyCenter::follow(HotKey& hotKey) {
    if (m_suspensions > 0)
        return;
    LMHotKeyReport& report = hotKey.report;
    const LMUserDefaults& userDefaults = m_environment.userDefaults;
    report.shortcut = LMShortcut::fromData(userDefaults.dataForKey(report.key));
    if (report.shortcut) {
        note(hotKey, m_hotKeys.registerHotKey(report.key, *report.shortcut));
        return;
    }
    m_hotKeys.unregisterHotKey(report.key);
    const QVariant value = userDefaults.objectForKey(report.key);
    const bool isUnset = !value.isValid() || value.toString().isEmpty();
    report.state = LMHotKeyReport::State::Empty;
    report.reason = isUnset ? QString() : LMLocalized("The setting is no shortcut.");
    if (!isUnset)
        m_environment.logger.warning(QStringLiteral("Hot key \"%@\": %@"),
                                     {report.key, report.reason});
    Q_EMIT hotKeyChanged(report.key);
}

void LMHotKeyCenter::note(HotKey& hotKey, const LMHotKeyStatus& status) {
    LMHotKeyReport& report = hotKey.report;
    if (!report.shortcut)
        return;
    report.state = status ? LMHotKeyReport::State::Registered : LMHotKeyReport::State::Refused;
    report.reason = status ? QString() : LMHotKeyRefusalText(status.error(), *report.shortcut);
    if (status)
        m_environment.logger.debug(QStringLiteral("Hot key \"%@\" is %@"),
                                   {report.key, report.shortcut->description()});
    else
        m_environment.logger.warning(QStringLiteral("Hot key \"%@\" is refused: %@"),
                                     {report.key, report.reason});
    Q_EMIT hotKeyChanged(report.key);
}

void LMHotKeyCenter::fire(const QString& key, LMHotKeyMoment moment) {
    const auto found = std::ranges::find_if(
        m_entries, [&](const auto& entry) { return entry->report.key == key; });
    if (found == m_entries.end())
        return;
    const std::shared_ptr<HotKey> hotKey = *found;
    if (hotKey->moment != moment || hotKey->isRunning || !hotKey->context)
        return;
    const QScopedValueRollback running(hotKey->isRunning, true);
    hotKey->handler();
}
