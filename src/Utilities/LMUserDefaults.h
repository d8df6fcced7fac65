// SPDX-License-Identifier: MIT
#pragma once

#include "Utilities/LMSettingsFile.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <vector>

class LMLogger;
class LMSettingsWatch;

/// The user's settings, kept in one INI file, above a registration domain that answers for keys
/// the user never set.
///
/// The file may have been edited by hand. A value that cannot be read as the type asked for counts
/// as not set: the reader answers with the registered value, else with false, 0 or null. Every
/// change goes to the file at once, together with what others changed in it meanwhile; when that
/// fails it is logged, the value holds for the life of the object, and the next change tries again.
class LMUserDefaults {
public:
    using Observer = std::function<void()>;
    /// Keeps an observer registered for as long as it lives. It may outlive the user defaults.
    using Observation = std::shared_ptr<const void>;

    /// The logger must outlive this object. The file need not exist.
    LMUserDefaults(QString filePath, const LMLogger& logger);
    ~LMUserDefaults();
    Q_DISABLE_COPY_MOVE(LMUserDefaults)

    /// The settings file of the user who runs the program, below $XDG_CONFIG_HOME; null without a
    /// home directory, and then nothing is kept.
    static QString defaultFilePath();

    QString filePath() const { return m_file.path(); }

    /// Adds to the registration domain; a later registration of a key replaces an earlier one.
    void registerDefaults(const QVariantMap& defaults);

    /// "true", "yes", "on", non-zero numbers and their opposites, in any case.
    bool boolForKey(const QString& key) const;
    /// Always finite.
    double doubleForKey(const QString& key) const;
    QString stringForKey(const QString& key) const;
    /// A single string counts as an array of one.
    QStringList stringArrayForKey(const QString& key) const;
    QByteArray dataForKey(const QString& key) const;
    QVariantMap dictionaryForKey(const QString& key) const;
    /// The value as it is kept, which for one read from the file is mostly a string; the registered
    /// value, else an invalid one, when the key is not set.
    QVariant objectForKey(const QString& key) const;

    /// True when the user set the key or it is registered.
    bool hasObject(const QString& key) const;

    /// Booleans, numbers, strings, string lists and byte arrays are kept as such; maps and other
    /// lists as JSON text. An invalid value removes the key.
    void setObject(const QString& key, const QVariant& value);
    void removeObject(const QString& key);

    /// Calls the observer whenever the user's value of the key has changed: set or removed here, or
    /// found changed in the file. By then the new value can be read. It may be called when only the
    /// form has changed (a number has become text).
    [[nodiscard]] Observation addObserver(const QString& key, Observer observer);

    /// Takes over what others have changed in the file.
    void reload();

    /// Takes over what others change in the file as soon as they do, while the thread runs its
    /// event loop. Costs nothing while nobody changes it.
    void followFile();

private:
    struct ObservedKey {
        QString key;
        Observer observer;
    };

    QVariantMap valuesOfFile();
    void take(const QVariantMap& values);
    void save();
    template <class Value, class Read>
    Value read(const QString& key, Read readValue) const;

    const LMLogger* m_logger;
    LMSettingsFile m_file;
    QVariantMap m_values;  ///< The user's, as in the file or just set.
    QVariantMap m_unsaved; ///< Changes that no write took yet; invalid for a removed key.
    QVariantMap m_registered;
    std::vector<std::weak_ptr<const ObservedKey>> m_observers;
    std::unique_ptr<LMSettingsWatch> m_watch;
};
