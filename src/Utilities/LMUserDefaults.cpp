// SPDX-License-Identifier: MIT
#include "Utilities/LMUserDefaults.h"

#include "Utilities/LMBaseDirectories.h"
#include "Utilities/LMDefaultsValue.h"
#include "Utilities/LMLogger.h"

#include <utility>

LMUserDefaults::LMUserDefaults(QString filePath, const LMLogger& logger)
    : m_logger(&logger), m_file(std::move(filePath), logger), m_values(m_file.load()) {}

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

void LMUserDefaults::save() {
    // The file may have been edited since it was read.
    m_values = m_file.load();
    for (auto change = m_unsaved.constBegin(); change != m_unsaved.constEnd(); ++change) {
        if (change->isValid())
            m_values.insert(change.key(), *change);
        else
            m_values.remove(change.key());
    }
    if (const LMResult<void> saved = m_file.save(m_values)) {
        m_unsaved.clear();
    } else {
        m_logger->error(QStringLiteral("Unable to write settings file \"%@\": %@"),
                        {m_file.path(), saved.error()});
    }
}
