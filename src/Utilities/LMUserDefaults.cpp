// SPDX-License-Identifier: MIT
#include "Utilities/LMUserDefaults.h"

#include "Utilities/LMBaseDirectories.h"
#include "Utilities/LMDefaultsValue.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMSettingsWatch.h"

#include <QAbstractEventDispatcher>

#include <utility>

LMUserDefaults::LMUserDefaults(QString filePath, const LMLogger& logger)
    : m_logger(&logger), m_file(std::move(filePath), logger), m_values(m_file.load()) {}

LMUserDefaults::~LMUserDefaults() = default;

QString LMUserDefaults::defaultFilePath() {
    const QString directory = LMConfigHomeDirectory();
    return directory.isNull() ? QString() : directory + QLatin1String("/Rook/settings.ini");
}

void LMUserDefaults::registerDefaults(const QVariantMap& defaults) {
    m_registered.insert(defaults);
}

template <class Value, class Read>
Value LMUserDefaults::read(const QString& key, Read readValue) const {
    for (const QVariantMap* domain : {&m_values, &m_registered}) {
        const auto found = domain->constFind(key);
        if (found == domain->constEnd())
            continue;
        if (std::optional<Value> value = readValue(*found))
            return *std::move(value);
    }
    return Value();
}

bool LMUserDefaults::boolForKey(const QString& key) const {
    return read<bool>(key, LMDefaultsValue::toBool);
}

double LMUserDefaults::doubleForKey(const QString& key) const {
    return read<double>(key, LMDefaultsValue::toDouble);
}

QString LMUserDefaults::stringForKey(const QString& key) const {
    return read<QString>(key, LMDefaultsValue::toString);
}

QStringList LMUserDefaults::stringArrayForKey(const QString& key) const {
    return read<QStringList>(key, LMDefaultsValue::toStringArray);
}

QByteArray LMUserDefaults::dataForKey(const QString& key) const {
    return read<QByteArray>(key, LMDefaultsValue::toData);
}

QVariantMap LMUserDefaults::dictionaryForKey(const QString& key) const {
    return read<QVariantMap>(key, LMDefaultsValue::toDictionary);
}

QVariant LMUserDefaults::objectForKey(const QString& key) const {
    return m_values.value(key, m_registered.value(key));
}

bool LMUserDefaults::hasObject(const QString& key) const {
    return m_values.contains(key) || m_registered.contains(key);
}

void LMUserDefaults::setObject(const QString& key, const QVariant& value) {
    if (!value.isValid())
        return removeObject(key);
    m_unsaved.insert(key, LMDefaultsValue::keptForm(value));
    save();
}

void LMUserDefaults::removeObject(const QString& key) {
    if (!m_values.contains(key))
        return;
    m_unsaved.insert(key, QVariant());
    save();
}

LMUserDefaults::Observation LMUserDefaults::addObserver(const QString& key, Observer observer) {
    auto observed = std::make_shared<const ObservedKey>(ObservedKey{key, std::move(observer)});
    m_observers.push_back(observed);
    return observed;
}

void LMUserDefaults::reload() {
    take(valuesOfFile());
}

void LMUserDefaults::followFile() {
    if (!m_watch && QAbstractEventDispatcher::instance() != nullptr)
        m_watch = std::make_unique<LMSettingsWatch>(m_file.path(), [this] { reload(); });
}

/// What the file says now, and what it should say but could not be told.
QVariantMap LMUserDefaults::valuesOfFile() {
    QVariantMap values = m_file.load();
    for (auto change = m_unsaved.constBegin(); change != m_unsaved.constEnd(); ++change) {
        if (change->isValid())
            values.insert(change.key(), *change);
        else
            values.remove(change.key());
    }
    return values;
}

/// Tells the observers what is new. They may set values, and add and drop observers, in turn.
void LMUserDefaults::take(const QVariantMap& values) {
    const QVariantMap before = std::exchange(m_values, values);
    std::erase_if(m_observers, [](const auto& observer) { return observer.expired(); });
    const auto called = m_observers;
    for (const auto& observer : called) {
        const auto observed = observer.lock();
        if (observed && before.value(observed->key) != values.value(observed->key))
            observed->observer();
    }
}

void LMUserDefaults::save() {
    // The file may have been edited since it was read.
    const QVariantMap values = valuesOfFile();
    if (const LMResult<void> saved = m_file.save(values)) {
        m_unsaved.clear();
        if (m_watch)
            m_watch->renew();
    } else {
        m_logger->error(QStringLiteral("Unable to write settings file \"%@\": %@"),
                        {m_file.path(), saved.error()});
    }
    take(values);
}
