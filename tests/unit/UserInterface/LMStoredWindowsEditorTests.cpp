// SPDX-License-Identifier: MIT
#include "Model/LMAction.h"
#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "unit/Files.h"
#include "unit/UserInterface/UserInterfaceTest.h"
#include "UserInterface/Editing/LMScriptEditor.h"
#include "UserInterface/Editing/LMStateMenu.h"
#include "UserInterface/Editing/LMStoredWindowsEditorWindow.h"
#include "UserInterface/Editing/LMStoredWindowsModel.h"
#include "UserInterface/Editing/LMTableView.h"
#include "UserInterface/LMAlertWindow.h"
#include "UserInterface/LMStoredWindowsEditor.h"

#include <QAction>
#include <QClipboard>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

/// The editor on a workspace with "browser" (one stored window), "Editor" (three), and no actions.
class StoredWindowsEditor : public UserInterfaceTest {
protected:
    using Model = LMStoredWindowsModel;

    StoredWindowsEditor() {
        store.setReloadTablesHandler([this] { editor.reloadTableViews(); });
        store.setCommitEditingHandler([this] { return editor.commitEditing(); });
        workspace = context().insertObject<LMWorkspace>();
        addApplication(u"Editor"_s, {u"a"_s, u"b"_s, u"c"_s});
        addApplication(u"browser"_s, {u"news"_s});
        store.saveWindows();
        editor.setWorkspace(workspace);
        editor.showWindow();
        // Without a window manager nobody else makes a window active.
        QApplication::setActiveWindow(editor.window());
        select(windows(), 0);
    }

    void addApplication(const QString& name, const QStringList& titles) {
        auto* added = context().insertObject<LMApplication>();
        added->setName(name);
        added->setBundleIdentifier(u"org."_s + name);
        workspace->addApplicationsObject(added);
        for (const QString& title : titles) {
            auto* window = context().insertObject<LMWindow>();
            window->setTitle(title);
            window->setSubrole(u"AXStandardWindow"_s);
            window->setChildren(QStringList());
            added->addWindowsObject(LMStoredWindow::storedWindowWithWindow(window));
        }
    }

    LMStoredWindowsEditorWindow& window() {
        return *static_cast<LMStoredWindowsEditorWindow*>(editor.window());
    }
    LMTableView& applications() { return *window().applicationsTableView(); }
    LMTableView& windows() { return *window().windowsTableView(); }
    LMTableView& actions() { return *window().actionsTableView(); }
    QPlainTextEdit& script() { return *window().scriptEditor()->shellScriptEditor(); }
    QLineEdit* cellEditor() { return window().findChild<QLineEdit*>(); }

    /// Types over the label or the pattern; null when there is nothing to type into.
    QLineEdit* edit(int row, int column, const QString& text) {
        select(windows(), row, column);
        QTest::keyClick(&windows(), Qt::Key_F2);
        if (cellEditor())
            QTest::keyClicks(cellEditor(), text);
        return cellEditor();
    }
    /// Return and its kin end an edit when the event loop runs again.
    void endEdit(Qt::Key key = Qt::Key_Return) {
        QTest::keyClick(cellEditor(), key);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void undo() { QTest::keyClick(&window(), Qt::Key_Z, Qt::ControlModifier); }
    void redo() { QTest::keyClick(&window(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

    static void select(LMTableView& table, int row, int column = 0) {
        table.setFocus();
        table.setCurrentIndex(table.model()->index(row, column));
    }
    QString texts(int column) { return this->column(windows(), column).join(u' '); }
    QString titles() { return texts(Model::Title); }
    const std::vector<LMAction*>& scripts() { return std::as_const(*workspace).actions(); }
    LMStoredWindow* stored(const QString& name, std::size_t index = 0) {
        return workspace->applicationForBundleIdentifier(u"org."_s + name)->orderedWindows()[index];
    }

    LMStoredWindowsEditor editor{environment, store};
    LMWorkspace* workspace = nullptr;
};

TEST_F(StoredWindowsEditor, ChangesStatesAndTakesThatBack) {
    LMStoredWindow* edited = stored(u"browser"_s);
    edited->setFrame({10, 20, 300, 200});
    edited->setStateString(QString());
    editor.reloadTableViews();
    auto& menu = *window().findChild<LMStateMenu*>();
    const std::pair<QString, QString> rows[] = {
        {u"Ma&ximized"_s, u"Maximized"_s},
        {u"Desktop 2 “Two”"_s, u"Maximized, on desktop 2 “Two”"_s},
        {u"&Above Others"_s, u"Maximized, above others, on desktop 2 “Two”"_s},
        {u"&Below Others"_s, u"Maximized, below others, on desktop 2 “Two”"_s},
        {u"On All Desktops"_s, u"Maximized, below others, on all desktops"_s},
        {u"Mi&nimized"_s, u"Maximized, minimized, below others, on all desktops"_s},
        {u"&Rolled Up"_s, u"Maximized, rolled up, below others, on all desktops"_s},
        {u"Ma&ximized"_s, u"Rolled up, below others, on all desktops"_s},
        {u"Frame &Only"_s, u"Frame only"_s},
    };
    for (const auto& [entry, expected] : rows) {
        Q_EMIT menu.aboutToShow();
        for (QAction* action : menu.actions()) {
            if (action->text() == entry)
                action->trigger();
        }
        EXPECT_EQ(texts(Model::State), expected);
        EXPECT_FALSE(context().hasChanges());
    }
    for (std::size_t row = std::size(rows) - 1; row > 0; --row) {
        undo();
        EXPECT_EQ(texts(Model::State), rows[row - 1].second);
        EXPECT_EQ(edited->state()->window.normalFrame.has_value(),
                  edited->state()->window.isMaximized());
    }
    undo();
    EXPECT_EQ(edited->state(), std::nullopt);
    EXPECT_EQ(edited->frame(), QRectF(10, 20, 300, 200));
}

TEST_F(StoredWindowsEditor, LeavesTitlesTheWidthThatNothingElseNeeds) {
    QHeaderView& header = *windows().horizontalHeader();
    const auto spare = [&] { return windows().viewport()->width() - header.length(); };
    const auto title = [&] { return header.sectionSize(Model::Title); };
    const QSize size = window().size() + QSize(200, 0);
    window().resize(size);
    const int usual = title();
    const auto showState = [&](const LMWindowState& state) {
        stored(u"browser"_s)->setState({state, {}});
        editor.reloadTableViews();
        EXPECT_EQ(spare(), 0);
        return header.sectionSize(Model::State);
    };
    const int narrow = showState({.isShaded = true});
    const int wide = showState({.isShaded = true, .isKeptAbove = true});
    const int most =
        showState({.isShaded = true, .desktop = 1, .desktopName = u"Mail "_s.repeated(9)});
    EXPECT_LT(narrow, wide);
    EXPECT_LT(most, 2 * wide) << "a long name would take all";
    window().resize(size.width() + 300, size.height());
    EXPECT_GT(title(), usual + 100);
    EXPECT_EQ(spare(), 0);
    window().resize(1, size.height());
    EXPECT_GT(title(), 100) << "rather scrolled";
    EXPECT_LT(spare(), 0);

    window().resize(size);
    header.resizeSection(Model::State, 77);
    EXPECT_EQ(showState({.isKeptAbove = true}), 77) << "that of the user";
    header.resizeSection(Model::Title, 88);
    window().resize(size.width() + 300, size.height());
    EXPECT_EQ(title(), 88);
}

TEST_F(StoredWindowsEditor, EditsLabelsAndPatternsWithTheKeyboard) {
    select(applications(), 1);
    const QString hostile = u"<b>\n"_s + QString(100'000, u'x');
    stored(u"Editor"_s, 1)->setLabel(hostile);
    const std::tuple<std::size_t, int, QString, Qt::Key, QString, QString> rows[] = {
        {0, Model::Label, u"Notes & more"_s, Qt::Key_Return, u"Notes & more"_s, {}},
        {0, Model::Label, u"other"_s, Qt::Key_Escape, u"Notes & more"_s, {}},
        {0, Model::Pattern, u"^(a"_s, Qt::Key_Tab, u"Notes & more"_s, u"^(a"_s},
        {1, Model::Label, {}, Qt::Key_Return, hostile, {}},
    };
    for (const auto& [row, column, typed, end, label, pattern] : rows) {
        ASSERT_NE(edit(int(row), column, typed), nullptr);
        endEdit(end);
        EXPECT_EQ(stored(u"Editor"_s, row)->label(), label);
        EXPECT_EQ(stored(u"Editor"_s, row)->titleRegularExpression(), pattern);
        EXPECT_FALSE(context().hasChanges());
        EXPECT_LT(texts(Model::Label).size(), 1200);
    }
    edit(2, Model::Pattern, {});
    for (const QString& key : {u"("_s, u"a"_s, u")"_s}) {
        QTest::keyClicks(cellEditor(), key);
        EXPECT_EQ(cellEditor()->font().italic(), key != u")"_s) << "as long as it is not valid";
    }
}

TEST_F(StoredWindowsEditor, KeepsWhatIsBeingTypedWhenTheStoreChanges) {
    select(applications(), 1);
    edit(1, Model::Label, u"half"_s);
    // A command of the bus: a row above goes, one comes, another application is stored.
    stored(u"Editor"_s)->application()->removeWindowsObject(stored(u"Editor"_s));
    addApplication(u"Another"_s, {u"x"_s});
    store.saveWindows();
    EXPECT_EQ(stored(u"Editor"_s)->label(), u"half"_s);
    EXPECT_EQ(titles(), u"b c"_s);
    EXPECT_EQ(applications().currentIndex().row(), 2);
    ASSERT_NE(cellEditor(), nullptr);
    QTest::keyClicks(cellEditor(), u" done"_s);
    endEdit();
    EXPECT_EQ(stored(u"Editor"_s)->label(), u"half done"_s);

    // The workspace itself is deleted while a label is typed.
    edit(0, Model::Label, u"lost"_s);
    context().deleteObject(workspace);
    store.saveWindows();
    for (const LMTableView* table : {&applications(), &windows(), &actions()})
        EXPECT_EQ(table->model()->rowCount(), 0);
    EXPECT_FALSE(window().addActionButton()->isEnabled());
    editor.addAction(2);
    editor.remove(&windows());
    EXPECT_TRUE(context().objects<LMWorkspace>().empty());
    editor.close();
    editor.close();
    EXPECT_EQ(editor.window(), nullptr);
}

TEST_F(StoredWindowsEditor, RemovesByKeyAndTakesItBack) {
    windows().clearSelection();
    QTest::keyClick(&windows(), Qt::Key_Delete);
    EXPECT_EQ(titles(), u"news"_s) << "nothing was selected";
    const std::tuple<LMTableView*, int, Qt::Key, QString> rows[] = {
        {&applications(), 0, Qt::Key_Delete, u"a b c"_s},
        {&windows(), 1, Qt::Key_Backspace, u"a c"_s},
        {&windows(), 0, Qt::Key_Delete, u"c"_s},
        {&windows(), 0, Qt::Key_Delete, {}},
    };
    QStringList before;
    for (const auto& [table, row, key, shown] : rows) {
        before.append(titles());
        select(*table, row);
        QTest::keyClick(table, key);
        EXPECT_EQ(titles(), shown);
    }
    EXPECT_TRUE(context().objects<LMWorkspace>().empty());
    while (!before.isEmpty()) {
        undo();
        EXPECT_EQ(titles(), before.takeLast()) << "what came back last is shown";
    }
    redo();
    EXPECT_EQ(context().objects<LMApplication>().size(), 1U) << "done again";

    // What belongs to another workspace cannot be taken back here.
    editor.setWorkspace(context().insertObject<LMWorkspace>());
    undo();
    EXPECT_EQ(context().objects<LMApplication>().size(), 1U);
}

TEST_F(StoredWindowsEditor, TakesBackNothingThatIsStoredAgain) {
    const std::tuple<LMTableView*, QStringList, QString, QString> rows[] = {
        {&windows(), {u"a"_s, u"b"_s, u"c"_s}, u"a b c"_s, u"a c"_s},
        {&windows(), {u"a"_s, u"c"_s}, u"a b c"_s, u"a c"_s},
        {&applications(), {u"a"_s, u"b"_s}, u"a b c"_s, {}},
        {&applications(), {u"a"_s, u"a"_s, u"b"_s, u"c"_s}, u"a a b c"_s, {}},
    };
    for (const auto& [table, storedAgain, undone, redone] : rows) {
        const auto storeAnew = [&](const QStringList& titles) {
            workspace = editor.workspace();
            workspace->removeAllWindows();
            addApplication(u"Editor"_s, titles);
            store.saveWindows();
        };
        storeAnew({u"a"_s, u"b"_s, u"c"_s});
        addApplication(u"browser"_s, {u"news"_s});
        store.saveWindows();
        select(applications(), 1);
        select(windows(), 1);
        QTest::keyClick(table, Qt::Key_Delete);
        storeAnew(storedAgain);
        undo();
        EXPECT_EQ(titles(), undone);
        redo();
        EXPECT_EQ(titles(), redone);
        undo(); // With its last application the workspace has gone.
    }
}

TEST_F(StoredWindowsEditor, ReordersByKey) {
    select(applications(), 1);
    select(windows(), 0);
    const std::pair<Qt::Key, QString> rows[] = {{Qt::Key_Down, u"b a c"_s},
                                                {Qt::Key_Down, u"b c a"_s},
                                                {Qt::Key_Down, u"b c a"_s},
                                                {Qt::Key_Up, u"b a c"_s}};
    for (const auto& [key, expected] : rows) {
        QTest::keyClick(&windows(), key, Qt::AltModifier);
        EXPECT_EQ(titles(), expected);
        EXPECT_FALSE(context().hasChanges());
    }
    EXPECT_EQ(windows().currentIndex().row(), 1);
}

TEST_F(StoredWindowsEditor, AddsActionsAndWritesTheirScriptsAsTheyAreTyped) {
    for (const int tag : {1, 2}) {
        editor.addAction(tag);
        ASSERT_NE(cellEditor(), nullptr);
        QTest::keyClicks(cellEditor(), u"label"_s);
        endEdit();
        EXPECT_EQ(scripts().back()->label(), u"label"_s);
        EXPECT_EQ(actions().selectedRecord(), scripts().back()->objectID());
    }
    select(actions(), 0);
    QTest::keyClicks(window().scriptEditor()->appleScriptEditor(), u"beep"_s);
    select(actions(), 1);
    script().setFocus();
    script().moveCursor(QTextCursor::End);
    QTest::keyClicks(&script(), u"echo\u00a0hi"_s);
    EXPECT_EQ(scripts()[0]->runAs() + scripts()[0]->script(), u"AppleScriptbeep"_s);
    EXPECT_EQ(scripts()[1]->script(), u"#!/bin/bash\n\necho\u00a0hi"_s);
    QTest::keyClick(&script(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_FALSE(context().hasChanges()) << "leaving the script ends its editing";
    select(actions(), 0);
    QTest::keyClick(&actions(), Qt::Key_Delete);
    select(actions(), 0, 2);
    QTest::keyClick(&actions(), Qt::Key_Space);
    EXPECT_TRUE(scripts()[0]->runOnDisplayChange());
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(StoredWindowsEditor, RunsActionsAndShowsWhatBecameOfTheirScripts) {
    editor.addAction(9);
    const QString file = test.path(u"ran"_s);
    script().setPlainText(u"echo yes > '%1'"_s.arg(file));
    editor.runAction();
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_EQ(script().toPlainText(), u"#!/bin/bash\n\necho yes > '%1'"_s.arg(file));
    EXPECT_FALSE(context().hasChanges());
}

TEST_F(StoredWindowsEditor, ShowsOnlyTheBeginningOfScriptsThatAreTooLongToEdit) {
    const QString line(LMScriptEditor::LongestLine, u'x');
    const std::pair<QString, bool> rows[] = {
        {line, true},
        {line + u"\n"_s + line, true},
        {line + u"y"_s, false},
        {QString(LMScriptEditor::LongestText + 1, u'\n'), false},
    };
    for (const auto& [text, isEdited] : rows) {
        editor.addAction(9);
        auto* action = scripts().back();
        action->setScript(text);
        select(actions(), 0);
        editor.reloadTableViews();
        select(actions(), int(scripts().size()) - 1);
        EXPECT_LE(script().toPlainText().size(), isEdited ? text.size() : 2000);
        script().moveCursor(QTextCursor::End);
        QTest::keyClicks(&script(), u"z"_s);
        QGuiApplication::clipboard()->setText(text);
        script().paste();
        EXPECT_EQ(action->script(), isEdited ? text + u"z"_s : text);
    }
}

TEST_F(StoredWindowsEditor, ImportsTextAndSaysWhatItCannotImport) {
    const QString notText = u"Could not import Shell Script"_s;
    const std::tuple<QString, QByteArray, QString> rows[] = {
        {u"Mount.all.sh"_s, "echo \xc3\xa4\n", u"Mount.all: echo ä\n"_s},
        {u".scpt"_s, "true", u".scpt: true"_s},
        {u"utf16"_s, QByteArray::fromHex("fffe6500e400"), u"utf16: eä"_s},
        {u"latin1.sh"_s, "echo \xe4", u"latin1: echo ä"_s},
        {u"Foo.SCPT"_s, "Fasd", u"Could not import AppleScript"_s},
        {u"picture.sh"_s, QByteArray("\x89PNG\0\0\1", 7), notText},
        {u"empty.sh"_s, "", notText},
    };
    for (const auto& [name, bytes, expected] : rows) {
        editor.importScript(LMWriteFile(test.path(name), bytes));
        const std::unique_ptr<LMAlertWindow> alert(window().findChild<LMAlertWindow*>());
        EXPECT_EQ(alert ? alert->findChild<QLabel*>(u"message"_s)->text()
                        : scripts().back()->label() + u": "_s + scripts().back()->script(),
                  expected);
    }
}
