// SPDX-License-Identifier: MIT
#include "Model/Store/LMObjectModel.h"

#include <algorithm>
#include <utility>

namespace {

constexpr QLatin1String uriScheme{"rook://"};

template <class Named>
const Named* findNamed(const std::vector<Named>& all, QStringView name) {
    const auto found =
        std::find_if(all.begin(), all.end(), [name](const Named& one) { return one.name == name; });
    return found == all.end() ? nullptr : &*found;
}

template <class Named>
bool namesAreUnique(const std::vector<Named>& all) {
    return std::all_of(all.begin(), all.end(), [&all](const Named& one) {
        return !one.name.isEmpty() && findNamed(all, one.name) == &one;
    });
}

/// One key has one text, so that texts can be compared: no sign, blank or leading zero.
qint64 keyFromText(QStringView text) {
    const bool isPlain =
        !text.isEmpty() && text.front() != u'0' &&
        std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    bool isNumber = false;
    const qint64 key = isPlain ? text.toLongLong(&isNumber) : 0;
    return isNumber ? key : 0;
}

} // namespace

LMObjectModel::LMObjectModel(QString name, int version, std::vector<LMEntityDescription> entities,
                             std::vector<LMFetchTemplate> fetchTemplates)
    : m_name(std::move(name)), m_version(version), m_entities(std::move(entities)),
      m_fetchTemplates(std::move(fetchTemplates)) {
    for (std::size_t i = 0; i < m_entities.size(); ++i)
        m_entities[i].index = static_cast<quint16>(i);
    for (LMEntityDescription& entity : m_entities) {
        if (const LMEntityDescription* owner = entityNamed(entity.ownerEntity))
            entity.ownerIndex = owner->index;
    }
}

const LMEntityDescription* LMObjectModel::entityNamed(QStringView name) const {
    return findNamed(m_entities, name);
}

const LMFetchTemplate* LMObjectModel::fetchTemplateNamed(QStringView name) const {
    return findNamed(m_fetchTemplates, name);
}

bool LMObjectModel::isValid() const {
    const bool entitiesAreSound =
        std::all_of(m_entities.begin(), m_entities.end(), [this](const auto& entity) {
            return entity.create && namesAreUnique(entity.attributes) &&
                   (!entity.hasOwner() || entityNamed(entity.ownerEntity));
        });
    const bool templatesAreSound =
        std::all_of(m_fetchTemplates.begin(), m_fetchTemplates.end(), [this](const auto& fetch) {
            const LMEntityDescription* entity = entityNamed(fetch.entity);
            return entity && entity->hasOwner();
        });
    return !m_entities.empty() && namesAreUnique(m_entities) && namesAreUnique(m_fetchTemplates) &&
           entitiesAreSound && templatesAreSound;
}

QString LMObjectModel::uriRepresentation(const LMObjectID& id) const {
    if (id.isNull() || id.entity >= m_entities.size())
        return {};
    return uriScheme + m_entities[id.entity].name + u'/' + QString::number(id.key);
}

LMObjectID LMObjectModel::objectIDForURIRepresentation(QStringView uri) const {
    if (!uri.startsWith(uriScheme))
        return {};
    const QStringView path = uri.mid(uriScheme.size());
    const qsizetype slash = path.indexOf(u'/');
    const LMEntityDescription* entity = slash < 0 ? nullptr : entityNamed(path.left(slash));
    if (!entity)
        return {};
    const qint64 key = keyFromText(path.mid(slash + 1));
    return key == 0 ? LMObjectID{} : LMObjectID{entity->index, key};
}
