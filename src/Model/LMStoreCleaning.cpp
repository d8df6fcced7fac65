// SPDX-License-Identifier: MIT
#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMObjectModel.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFolders.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

void deleteEmptyWorkspaces(LMObjectContext& context) {
    for (LMWorkspace* workspace : context.objects<LMWorkspace>()) {
        if (workspace->applications().isEmpty() && workspace->actions().isEmpty())
            context.deleteObject(workspace);
    }
}

QSet<QString> screenshotFilenames(const LMObjectContext& context) {
    QSet<QString> filenames;
    for (const LMWorkspace* workspace : context.objects<LMWorkspace>()) {
        for (const LMApplication* application : workspace->applications()) {
            for (const LMStoredWindow* window : application->windows())
                filenames.unite(window->screenshotFilenames());
        }
    }
    return filenames;
}

void removeScreenshotsExcept(const QSet<QString>& keep, const QString& folder,
                             const LMLogger& logger) {
    const QFileInfoList entries =
        QDir(folder).entryInfoList(QDir::Files | QDir::System | QDir::Hidden);
    for (const QFileInfo& entry : entries) {
        if (entry.suffix() != QLatin1String("png") || keep.contains(entry.fileName()))
            continue;
        QFile file(entry.filePath());
        if (!file.remove())
            logger.error(QStringLiteral("Unable to remove screenshot %@: %@"),
                         {entry.filePath(), file.errorString()});
    }
}

} // namespace

// Deleting an owner leaves what it owned unattached, so it goes on until nothing is left.
void LMStoredWindowsStore::deleteUnattachedObjects() {
    LMObjectContext& context = managedObjectContext();
    std::vector<LMManagedObject*> unattached;
    do {
        unattached.clear();
        for (const LMFetchTemplate& fetch : context.model().fetchTemplates()) {
            const auto found = context.executeFetchTemplate(fetch.name);
            unattached.insert(unattached.end(), found.begin(), found.end());
        }
        for (LMManagedObject* object : unattached)
            context.deleteObject(object);
    } while (!unattached.empty());
}

void LMStoredWindowsStore::cleanWindows() {
    // A store that could not be read says nothing about which screenshots it needs.
    if (!open())
        return;
    LMObjectContext& context = managedObjectContext();
    deleteEmptyWorkspaces(context);
    const QString folder = m_environment.folders.screenshotsDirectoryURL();
    if (folder.isNull())
        return;
    const bool keepsScreenshots = m_environment.userDefaults.boolForKey(
        LMUserDefaultsKeys::CreateScreenshotsWhenStoringWindows);
    removeScreenshotsExcept(keepsScreenshots ? screenshotFilenames(context) : QSet<QString>(),
                            folder, m_environment.logger);
}
