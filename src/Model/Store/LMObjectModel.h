// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMEntityDescription.h"
#include "Model/Store/LMObjectID.h"

#include <QString>
#include <QStringView>

#include <vector>

/// A named question to the object graph: the living objects of an entity that nothing owns.
struct LMFetchTemplate {
    QString name;
    QString entity;
};

/// The entities of an object graph and the fetch templates over them. Immutable.
class LMObjectModel {
public:
    /// version: counts up with every change of the entities; kept in the store file.
    LMObjectModel(QString name, int version, std::vector<LMEntityDescription> entities,
                  std::vector<LMFetchTemplate> fetchTemplates);
    // Objects point at their entity.
    Q_DISABLE_COPY_MOVE(LMObjectModel)

    const QString& name() const { return m_name; }
    int version() const { return m_version; }
    const std::vector<LMEntityDescription>& entities() const { return m_entities; }
    const std::vector<LMFetchTemplate>& fetchTemplates() const { return m_fetchTemplates; }

    /// None when there is no entity of the name.
    const LMEntityDescription* entityNamed(QStringView name) const;
    const LMFetchTemplate* fetchTemplateNamed(QStringView name) const;

    /// Whether names are unique and every entity and template that is named exists.
    bool isValid() const;

    /// "rook://StoredWindow/17"
    QString uriRepresentation(const LMObjectID& id) const;
    /// A null identifier for text that is not such a URI of this model's entities.
    LMObjectID objectIDForURIRepresentation(QStringView uri) const;

private:
    QString m_name;
    int m_version;
    std::vector<LMEntityDescription> m_entities;
    std::vector<LMFetchTemplate> m_fetchTemplates;
};
