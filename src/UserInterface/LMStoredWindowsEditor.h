// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectID.h"

#include <QObject>

#include <memory>

class LMStoredWindowsStore;
class LMWorkspace;
class QWidget;
struct LMEnvironment;

/// The window in which the user inspects and prunes one workspace. Edits go straight to the records
/// and are saved by asking for it with LMNotification::SaveWindows.
///
/// Records may vanish with every save, so it knows them by their identifiers alone.
class LMStoredWindowsEditor : public QObject {
    Q_OBJECT
public:
    /// The environment and the store outlive the editor.
    LMStoredWindowsEditor(LMEnvironment& environment, LMStoredWindowsStore& store);
    ~LMStoredWindowsEditor() override;

    /// None: the lists are blank.
    void setWorkspace(LMWorkspace* workspace);
    /// The workspace being edited; none when it was deleted.
    LMWorkspace* workspace() const;

    /// Shows the window in front of all applications.
    void showWindow();
    /// Does nothing when the window is not open.
    void close();
    /// The store has changed: reads again whatever is shown and keeps the selection.
    void reloadTableViews();
    /// Null before the window was shown.
    QWidget* window();

private:
    LMEnvironment& m_environment;
    LMStoredWindowsStore& m_store;
    LMObjectID m_workspace;
    std::unique_ptr<QWidget> m_window;
};
