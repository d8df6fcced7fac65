// SPDX-License-Identifier: MIT
#include "UserInterface/Editing/LMScriptEditor.h"

#include "Model/LMAction.h"
#include "Model/Store/LMObjectContext.h"
#include "Platform/LMScriptHost.h"
#include "Utilities/LMFormat.h"

#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStackedLayout>
#include <QTextBlock>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int ShortestEditor = 4; // lines
constexpr int Rest = 2000;        // milliseconds
constexpr int ShownPart = 2000;   // characters

/// Takes nothing that it could not be edited with.
class ScriptView final : public QPlainTextEdit {
public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void insertFromMimeData(const QMimeData* source) override {
        const QString text = source->text();
        const qsizetype present = document()->characterCount();
        if (present + text.size() <= LMScriptEditor::LongestText &&
            LMScriptEditor::canEdit(text, textCursor().block().length()))
            QPlainTextEdit::insertFromMimeData(source);
        else
            QApplication::beep();
    }
};

/// The text as it was set: what the widget itself hands out has plain blanks for fixed ones.
QString plainText(const QPlainTextEdit& editor) {
    QString text = editor.document()->toRawText();
    return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

/// The text as the widget keeps it.
QString withPlainLineBreaks(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return text.replace(u'\r', u'\n')
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}

} // namespace

LMScriptEditor::LMScriptEditor(LMObjectContext& context, LMScriptHost* scriptHost, QWidget* parent)
    : QWidget(parent), m_context(context), m_scriptHost(scriptHost),
      m_shellScriptEditor(makeTextView(LMLocalized("Shell script"))),
      m_appleScriptEditor(makeTextView(LMLocalized("AppleScript"))),
      m_lengthNotice(new QLabel(this)), m_placeholder(new QStackedLayout) {
    setFocusPolicy(Qt::ClickFocus); // On behalf of the text; without any no label leads here.
    makeLayout();
    m_restTimer.setSingleShot(true);
    connect(&m_restTimer, &QTimer::timeout, this, &LMScriptEditor::endEditing);
    updateActionEditorView(nullptr);
}

QPlainTextEdit* LMScriptEditor::makeTextView(const QString& name) {
    auto* editor = new ScriptView(this);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(editor->font().pointSizeF());
    editor->setFont(font);
    editor->setLineWrapMode(QPlainTextEdit::NoWrap);
    editor->setAccessibleName(name);
    editor->setAccessibleDescription(LMLocalized("Shift+Tab and Ctrl+Tab leave the text"));
    editor->setMinimumHeight(editor->fontMetrics().lineSpacing() * ShortestEditor);
    editor->setTabStopDistance(editor->fontMetrics().horizontalAdvance(u' ') * 4);
    // Source text reads from the left in every language.
    editor->setLayoutDirection(Qt::LeftToRight);
    editor->installEventFilter(this);
    connect(editor, &QPlainTextEdit::textChanged, this, [this, editor] { textChanged(editor); });
    return editor;
}

QWidget* LMScriptEditor::makeAppleScriptView() {
    auto* view = new QWidget(this);
    m_notice = new QLabel(view);
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->setWordWrap(true);
    m_notice->setText(m_scriptHost
                          ? QString()
                          : LMLocalized("This system cannot run AppleScripts. The text is kept."));
    m_compileButton = new QPushButton(LMLocalized("Comp&ile"), view);
    m_compileButton->setEnabled(m_scriptHost != nullptr);
    connect(m_compileButton, &QPushButton::clicked, this, &LMScriptEditor::compile);
    auto* row = new QHBoxLayout;
    row->addWidget(m_notice, 1);
    row->addWidget(m_compileButton);
    auto* layout = new QVBoxLayout(view);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_appleScriptEditor, 1);
    layout->addLayout(row);
    return view;
}

void LMScriptEditor::makeLayout() {
    m_lengthNotice->setTextFormat(Qt::PlainText);
    m_lengthNotice->setWordWrap(true);
    m_lengthNotice->setText(LMLocalized("This is the beginning of a script that is too long to be "
                                        "edited here. It runs as a whole."));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(m_placeholder, 1);
    layout->addWidget(m_lengthNotice);
    m_placeholder->addWidget(m_shellScriptEditor);
    m_placeholder->addWidget(makeAppleScriptView());
}

bool LMScriptEditor::canEdit(QStringView text, qsizetype lineBefore) {
    if (text.size() > LongestText)
        return false;
    qsizetype length = lineBefore;
    return std::all_of(text.begin(), text.end(), [&length](QChar character) {
        const bool isBreak = character == u'\n' || character == u'\r' ||
                             character == QChar::ParagraphSeparator ||
                             character == QChar::LineSeparator;
        length = isBreak ? 0 : length + 1;
        return length <= LongestLine;
    });
}

QWidget* LMScriptEditor::currentActionEditorView() const {
    return m_placeholder->currentWidget();
}

void LMScriptEditor::updateActionEditorView(const LMAction* action) {
    const bool isAppleScript = action && action->runAs() == QLatin1String("AppleScript");
    QPlainTextEdit* shown = isAppleScript ? m_appleScriptEditor : m_shellScriptEditor;
    m_placeholder->setCurrentIndex(isAppleScript ? 1 : 0);
    setFocusProxy(shown);
    m_compileButton->setVisible(isAppleScript);
    // Whoever types at it goes on.
    m_isWhole =
        !action || (m_isWhole && action->objectID() == m_action) || canEdit(action->script());
    m_lengthNotice->setVisible(!m_isWhole);
    show(nullptr, isAppleScript ? m_shellScriptEditor : m_appleScriptEditor);
    show(action, shown);
    m_action = action ? action->objectID() : LMObjectID();
}

void LMScriptEditor::show(const LMAction* action, QPlainTextEdit* editor) {
    const QScopedValueRollback loading(m_isLoading, true);
    const QString script = action ? action->script() : QString();
    const QString text = withPlainLineBreaks(m_isWhole ? script : script.left(ShownPart));
    const bool isSameAction = action && action->objectID() == m_action;
    const int position = isSameAction ? editor->textCursor().position() : 0;
    if (plainText(*editor) != text) {
        editor->setPlainText(text);
        QTextCursor cursor = editor->textCursor();
        cursor.setPosition(std::min(position, int(text.size())));
        editor->setTextCursor(cursor);
    }
    editor->setReadOnly(!action || !m_isWhole);
    editor->setEnabled(action != nullptr);
}

void LMScriptEditor::textChanged(const QPlainTextEdit* editor) {
    auto* action = static_cast<LMAction*>(m_context.existingObjectWithID(m_action));
    if (m_isLoading || !action)
        return;
    action->setScript(plainText(*editor));
    m_isChanged = true;
    m_restTimer.start(Rest);
    if (m_scriptHost && editor == m_appleScriptEditor)
        m_notice->clear();
}

void LMScriptEditor::compile() {
    m_notice->setText(m_scriptHost && m_scriptHost->canCompile(plainText(*m_appleScriptEditor))
                          ? LMLocalized("The script compiles.")
                          : LMLocalized("The script does not compile."));
}

// The tabulator belongs to the text, so others lead out of it.
bool LMScriptEditor::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isBack = key->key() == Qt::Key_Backtab;
        if (isBack || (key->key() == Qt::Key_Tab && key->modifiers() == Qt::ControlModifier))
            return focusNextPrevChild(!isBack);
    }
    if (event->type() == QEvent::FocusOut)
        endEditing();
    return QWidget::eventFilter(object, event);
}

void LMScriptEditor::endEditing() {
    m_restTimer.stop();
    if (std::exchange(m_isChanged, false))
        Q_EMIT editingEnded();
}
