// SPDX-License-Identifier: MIT
#include "Model/LMStoredWindowsStore.h"

#include "Model/LMRookModel.h"
#include "Model/Store/LMObjectContext.h"
#include "Model/Store/LMObjectModel.h"
#include "Model/Store/LMPersistentStore.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMFolders.h"
#include "Utilities/LMFormat.h"
#include "Utilities/LMLogger.h"

#include <utility>

// --- texts ---------------------------------------------------------------------------------

QString LMStoreError::informativeText() const {
    switch (failure) {
    case LMStoreFailure::StoreCannotBeAdded:
        return LMLocalized("There may be a problem with your Stored Windows.sqlite file. Please "
                           "remove the current file and re-launch Rook.");
    case LMStoreFailure::FoldersCannotBeMade:
        return LMLocalized("Rook is unable to create some folders required for it to run.");
    case LMStoreFailure::ModelMissing:
        break;
    }
    return LMLocalized(
        "Rook seems to be missing some required components and may need to be re-installed.");
}

QString LMStoredWindowsStore::storeFailureMessageText() {
    return LMLocalized("Unable to load stored windows.");
}

QString LMStoredWindowsStore::versionMismatchMessageText() {
    return LMLocalized("Stored Windows Version Mismatch.");
}

QString LMStoredWindowsStore::versionMismatchInformativeText() {
    return LMLocalized("Your Stored Windows were created with a newer version of Rook.\n\nPlease "
                       "visit the Rook web site and download the latest version of Rook.");
}

QString LMStoredWindowsStore::quitButtonText() {
    return LMLocalized("Quit");
}

QString LMStoredWindowsStore::programVersion() {
    return QStringLiteral(ROOK_VERSION);
}

// --- opening -------------------------------------------------------------------------------

LMStoredWindowsStore::LMStoredWindowsStore(LMEnvironment& environment, QString version)
    : LMStoredWindowsStore(environment, std::move(version), LMRookModel()) {}

LMStoredWindowsStore::LMStoredWindowsStore(LMEnvironment& environment, QString version,
                                           std::unique_ptr<LMObjectModel> model)
    : m_environment(environment), m_version(std::move(version)), m_model(std::move(model)) {}

LMStoredWindowsStore::~LMStoredWindowsStore() = default;

LMResult<void, LMStoreError> LMStoredWindowsStore::open() {
    if (!m_context && !m_failure) {
        m_failure = openStore();
        if (m_failure)
            m_environment.logger.error(QStringLiteral("Unable to load stored windows: %@"),
                                       {m_failure->detail});
    }
    return m_failure ? LMResult<void, LMStoreError>::failure(*m_failure)
                     : LMResult<void, LMStoreError>::success();
}

std::optional<LMStoreError> LMStoredWindowsStore::openStore() {
    if (!m_model || !m_model->isValid())
        return LMStoreError{LMStoreFailure::ModelMissing,
                            LMLocalized("The object model is missing or contradicts itself.")};
    const QString path = m_environment.folders.storedWindowsURL();
    if (path.isNull())
        return LMStoreError{LMStoreFailure::FoldersCannotBeMade,
                            LMLocalized("There is no application support directory.")};
    auto store = LMPersistentStore::open(path, *m_model, m_environment.logger);
    if (!store)
        return LMStoreError{LMStoreFailure::StoreCannotBeAdded, store.error()};
    auto context = std::make_unique<LMObjectContext>(*m_model, m_environment, store->get());
    if (context->loadFailure())
        return LMStoreError{LMStoreFailure::StoreCannotBeAdded, *context->loadFailure()};
    m_store = std::move(store).value();
    m_context = std::move(context);
    return std::nullopt;
}

LMPersistentStore* LMStoredWindowsStore::persistentStoreCoordinator() {
    (void)open();
    return m_store.get();
}

LMObjectContext& LMStoredWindowsStore::managedObjectContext() {
    (void)open();
    if (!m_context) {
        if (!m_model || !m_model->isValid())
            m_model = LMRookModel();
        m_context = std::make_unique<LMObjectContext>(*m_model, m_environment);
    }
    return *m_context;
}

void LMStoredWindowsStore::saveWindows() {
    deleteUnattachedObjects();
    const LMLogger& logger = m_environment.logger;
    commitEditing();
    const auto saved = managedObjectContext().save();
    m_saveFailure = saved ? QString() : saved.error();
    if (!saved)
        logger.error(QStringLiteral("Save failed: %@"), {m_saveFailure});
    if (m_reloadTables)
        m_reloadTables();
}

void LMStoredWindowsStore::commitEditing() {
    if (m_commitEditing && !m_commitEditing())
        m_environment.logger.error(QStringLiteral("Commit editing failed."));
}

void LMStoredWindowsStore::setCommitEditingHandler(std::function<bool()> handler) {
    m_commitEditing = std::move(handler);
}

void LMStoredWindowsStore::setReloadTablesHandler(std::function<void()> handler) {
    m_reloadTables = std::move(handler);
}
