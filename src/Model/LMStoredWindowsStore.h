// SPDX-License-Identifier: MIT
#pragma once

#include "Utilities/LMResult.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class LMObjectContext;
class LMObjectModel;
class LMPersistentStore;
struct LMEnvironment;

/// Why the stored windows cannot be had.
enum class LMStoreFailure {
    StoreCannotBeAdded,  ///< The store file is damaged, foreign, newer, locked or not writable.
    FoldersCannotBeMade, ///< The application's folder is not there and cannot be made.
    ModelMissing,        ///< The object model is not usable.
};

struct LMStoreError {
    LMStoreFailure failure = LMStoreFailure::StoreCannotBeAdded;
    QString detail; ///< For the log and for people at a terminal: what exactly is wrong.

    /// For the alert under storeFailureMessageText; localized.
    QString informativeText() const;
};

/// What looking at the version of the stored windows has led to.
enum class LMBackupResult {
    FirstLaunch,  ///< No version was recorded; now this one is.
    BackedUp,     ///< An older version wrote the store: copied, if that was possible.
    SameVersion,  ///< Nothing to do.
    NewerVersion, ///< A newer version wrote the store: show the mismatch alert and quit.
};

/// Owner of the object model, the store and the one shared object context, each made on first use
/// and kept for the life of the process. Saves, cleans and backs up. Main thread only.
class LMStoredWindowsStore {
public:
    /// version: of this program, as recorded under "RookVersion". model: nothing for one that could
    /// not be loaded. The environment outlives the store.
    explicit LMStoredWindowsStore(LMEnvironment& environment, QString version = programVersion());
    LMStoredWindowsStore(LMEnvironment& environment, QString version,
                         std::unique_ptr<LMObjectModel> model);
    ~LMStoredWindowsStore();
    Q_DISABLE_COPY_MOVE(LMStoredWindowsStore)

    static QString programVersion();

    // --- alerts; localized ---------------------------------------------------------------------
    static QString storeFailureMessageText();
    static QString versionMismatchMessageText();
    static QString versionMismatchInformativeText();
    static QString quitButtonText();

    // --- opening -------------------------------------------------------------------------------
    /// Opens the store if that was not tried yet. Failure is logged once and final.
    LMResult<void, LMStoreError> open();
    const std::optional<LMStoreError>& failure() const { return m_failure; }

    /// None when there is no usable model.
    const LMObjectModel* managedObjectModel() const { return m_model.get(); }
    /// None when the store cannot be opened.
    LMPersistentStore* persistentStoreCoordinator();
    /// The shared context. When the store cannot be opened it is an empty one in memory, whose
    /// saves fail; look at failure() before relying on it.
    LMObjectContext& managedObjectContext();

    // --- saving and cleaning -------------------------------------------------------------------
    /// Deletes what is unattached and saves. Failure is logged, and the changes stay for the next
    /// save; the tables are reloaded either way. Pointers to records that nothing owns are invalid
    /// afterwards.
    void saveWindows();
    /// Why the latest save failed; empty when it succeeded.
    const QString& saveFailure() const { return m_saveFailure; }
    /// Before the last save of a process: deletes workspaces without applications and actions, and
    /// the screenshots nothing needs (all of them when screenshots are switched off).
    void cleanWindows();
    /// Once, at launch, after the store was opened.
    LMBackupResult backupStoredWindowsIfNecessary();

    /// Asked before each save, and whenever what is being typed is needed, to write it into the
    /// records; answers false when a window refuses. May save in turn.
    void setCommitEditingHandler(std::function<bool()> handler);
    /// Writes what is being typed in open windows into the records.
    void commitEditing();
    /// Called after each save, whether or not it succeeded.
    void setReloadTablesHandler(std::function<void()> handler);

private:
    std::optional<LMStoreError> openStore();
    void deleteUnattachedObjects();

    LMEnvironment& m_environment;
    QString m_version;
    std::unique_ptr<LMObjectModel> m_model;
    std::unique_ptr<LMPersistentStore> m_store;
    std::unique_ptr<LMObjectContext> m_context;
    std::optional<LMStoreError> m_failure;
    QString m_saveFailure;
    std::function<bool()> m_commitEditing;
    std::function<void()> m_reloadTables;
};
