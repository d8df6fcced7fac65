// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMApplicationsModel.h"

#include "Model/LMApplication.h"
#include "Model/LMWorkspace.h"
#include "UserInterface/LMPresentableText.h"
#include "Utilities/LMFormat.h"

#include <QCollator>
#include <QPixmap>

#include <algorithm>

LMApplicationsModel::LMApplicationsModel(LMObjectContext& context, QObject* parent)
    : LMRecordTableModel(context, {LMLocalized("Name")}, parent) {}

void LMApplicationsModel::setWorkspace(const LMWorkspace* workspace) {
    std::vector<LMApplication*> applications;
    if (workspace)
        applications = workspace->applications();
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(applications.begin(), applications.end(), [&](const auto* a, const auto* b) {
        return collator.compare(a->name(), b->name()) < 0;
    });
    setRecords(LMIdentifiersOfObjects(applications));
}

QVariant LMApplicationsModel::data(const QModelIndex& index, int role) const {
    const auto* application = record<LMApplication>(index);
    if (!application)
        return {};
    const QString name = application->name();
    switch (role) {
    case Qt::DisplayRole:
        return LMPresentableLine(name.isEmpty() ? application->bundleIdentifier() : name);
    case Qt::DecorationRole:
        return icon(*application);
    case Qt::ToolTipRole:
        return LMPresentableToolTip(application->bundleIdentifier());
    default:
        return {};
    }
}

const QIcon& LMApplicationsModel::icon(const LMApplication& application) const {
    QIcon& icon = m_icons[application.bundleIdentifier()];
    if (icon.isNull())
        icon = QIcon(QPixmap::fromImage(application.icon()));
    return icon;
}
