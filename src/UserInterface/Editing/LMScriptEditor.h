// SPDX-License-Identifier: MIT
#pragma once

#include "Model/Store/LMObjectID.h"

#include <QTimer>
#include <QWidget>

class LMAction;
class LMObjectContext;
class LMScriptHost;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QStackedLayout;

/// The editor of one action's script. The text reaches the action with every change of it.
///
/// The toolkit lays out a line as a whole with every key, which takes seconds for a line of
/// megabytes. Of a script that is too long for that only the beginning is shown, and what is too
/// long is not pasted.
class LMScriptEditor final : public QWidget {
    Q_OBJECT
public:
    /// scriptHost: none where no AppleScript can be compiled. Both outlive the editor.
    LMScriptEditor(LMObjectContext& context, LMScriptHost* scriptHost, QWidget* parent = nullptr);

    /// Shows the script in the editor for its kind; without an action nothing can be typed. A text
    /// that is shown already is left alone, and with it the cursor.
    void updateActionEditorView(const LMAction* action);

    QPlainTextEdit* shellScriptEditor() const { return m_shellScriptEditor; }
    QPlainTextEdit* appleScriptEditor() const { return m_appleScriptEditor; }
    QPushButton* appleScriptCompileButton() const { return m_compileButton; }
    QWidget* currentActionEditorView() const;

    static constexpr int LongestText = 1'000'000; ///< Characters.
    static constexpr int LongestLine = 20'000;
    /// Whether a text of that kind can be edited here, behind what stands in the line already.
    static bool canEdit(QStringView text, qsizetype lineBefore = 0);

    bool eventFilter(QObject* object, QEvent* event) override;

Q_SIGNALS:
    /// The keyboard has left a text that was changed, or rests for a while.
    void editingEnded();

private:
    QPlainTextEdit* makeTextView(const QString& name);
    QWidget* makeAppleScriptView();
    void makeLayout();
    void show(const LMAction* action, QPlainTextEdit* editor);
    void textChanged(const QPlainTextEdit* editor);
    void compile();
    void endEditing();

    LMObjectContext& m_context;
    LMScriptHost* m_scriptHost;
    LMObjectID m_action; ///< Whose script is shown.
    bool m_isWhole = true;
    bool m_isLoading = false;
    bool m_isChanged = false;
    QTimer m_restTimer;
    QPlainTextEdit* m_shellScriptEditor;
    QPlainTextEdit* m_appleScriptEditor;
    QPushButton* m_compileButton = nullptr;
    QLabel* m_notice = nullptr;
    QLabel* m_lengthNotice = nullptr;
    QStackedLayout* m_placeholder;
};
