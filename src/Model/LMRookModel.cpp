// SPDX-License-Identifier: MIT
#include "Model/LMRookModel.h"

#include "Model/LMAction.h"
#include "Model/LMApplication.h"
#include "Model/LMDisplay.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectModel.h"

namespace {

// 2: stored windows and snapshots have a state.
constexpr int modelVersion = 2;

} // namespace

std::unique_ptr<LMObjectModel> LMRookModel() {
    std::vector<LMEntityDescription> entities;
    entities.push_back(LMWorkspace::entityDescription());
    entities.push_back(LMApplication::entityDescription());
    entities.push_back(LMStoredWindow::entityDescription());
    entities.push_back(LMWindow::entityDescription());
    entities.push_back(LMDisplay::entityDescription());
    entities.push_back(LMAction::entityDescription());
    return std::make_unique<LMObjectModel>(
        QStringLiteral("Rook"), modelVersion, std::move(entities),
        std::vector<LMFetchTemplate>{
            {QStringLiteral("unattachedWindows"), LMWindow::entityName()},
            {QStringLiteral("unattachedStoredWindows"), LMStoredWindow::entityName()},
            {QStringLiteral("unattachedApplications"), LMApplication::entityName()},
            {QStringLiteral("unattachedDisplays"), LMDisplay::entityName()},
            {QStringLiteral("unattachedActions"), LMAction::entityName()}});
}
