// SPDX-License-Identifier: MIT
#pragma once

#include "UserInterface/LMPreferencesViewController.h"
#include "UserInterface/LMPresentableText.h"

#include <QLabel>
#include <QPointer>

class LMHotKeyCenter;
class LMShortcutRecorder;
class QGridLayout;
struct LMEnvironment;

/// The pane of the seven hot keys. What is recorded works at once; where it does not, the pane says
/// who is in the way.
class LMHotKeysPreferencesViewController final : public LMPreferencesViewController {
    Q_OBJECT
public:
    /// The environment outlives the pane. The hot keys are asked while the view is in use.
    LMHotKeysPreferencesViewController(LMEnvironment& environment, LMHotKeyCenter& hotKeys);

    QString identifier() const override;
    QIcon toolbarItemImage() const override;
    QString toolbarItemLabel() const override;
    QWidget* loadView() override;
    void viewWillAppear() override;
    /// Stops recording.
    void viewDidDisappear() override;

private:
    struct Row {
        QString key;
        QString caption; ///< With a mark for the mnemonic.
        QPointer<LMShortcutRecorder> recorder = {};
        QPointer<QLabel> message = {};

        QString title() const { return LMWithoutMnemonic(caption); }
    };

    void addRow(QGridLayout& grid, Row& row);
    void showConflicts();
    QString conflict(const Row& row) const;

    LMEnvironment& m_environment;
    LMHotKeyCenter& m_hotKeys;
    QList<Row> m_rows;
};
