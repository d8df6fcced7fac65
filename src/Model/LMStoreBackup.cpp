// SPDX-License-Identifier: MIT
#include "Model/LMStoredWindowsStore.h"
#include "Platform/LMClock.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFolders.h"
#include "Utilities/LMLogger.h"
#include "Utilities/LMStringAdditions.h"
#include "Utilities/LMUserDefaults.h"
#include "Utilities/LMUserDefaultsKeys.h"

#include <QFile>

namespace {

// Between saves a rollback journal leaves nothing beside the file, so one copy is the whole store.
void copyStore(const LMEnvironment& environment, const QString& storedVersion) {
    const LMFolders& folders = environment.folders;
    const QString source = folders.storedWindowsURL();
    const QString backup = folders.currentBackupURL(storedVersion, environment.clock.now().date());
    if (source.isNull() || backup.isNull() || !QFile::copy(source, backup))
        environment.logger.warning(
            QStringLiteral("The stored windows of version %@ were not backed up."),
            {storedVersion});
}

} // namespace

LMBackupResult LMStoredWindowsStore::backupStoredWindowsIfNecessary() {
    const QString key = LMUserDefaultsKeys::RookVersion;
    LMUserDefaults& defaults = m_environment.userDefaults;
    const QString stored = defaults.stringForKey(key);
    if (stored.isNull()) {
        defaults.setObject(key, m_version);
        return LMBackupResult::FirstLaunch;
    }
    switch (versionNumberCompare(stored, m_version)) {
    case LMOrdering::Same:
        return LMBackupResult::SameVersion;
    case LMOrdering::Descending:
        return LMBackupResult::NewerVersion;
    case LMOrdering::Ascending:
        break;
    }
    copyStore(m_environment, stored);
    defaults.setObject(key, m_version);
    return LMBackupResult::BackedUp;
}
