// SPDX-License-Identifier: MIT
#include "Model/LMAction.h"
#include "Model/LMApplication.h"
#include "Model/LMDisplay.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "unit/DesktopTest.h"
#include "UserInterface/Editing/LMRecordTableModel.h"
#include "UserInterface/Editing/LMRegularExpressionValidationFormatter.h"
#include "UserInterface/Editing/LMScreenshotView.h"
#include "UserInterface/Editing/LMScriptEditor.h"
#include "UserInterface/Editing/LMStateMenu.h"
#include "UserInterface/Editing/LMStoredWindowsEditorWindow.h"
#include "UserInterface/Editing/LMStoredWindowsModel.h"
#include "UserInterface/Editing/LMTableView.h"
#include "UserInterface/LMAlertWindow.h"
#include "UserInterface/LMStoredWindowsEditor.h"
#include "Utilities/LMNotificationCenter.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

/// The editor on a workspace with "browser" (one stored window), "Editor" (three), and no actions.
class StoredWindowsEditor : public DesktopTest {
protected:
    StoredWindowsEditor() {
        environment.notificationCenter.addObserver(LMNotification::SaveWindows, &receiver, [this] {
            ++saves;
            store.saveWindows();
        });
        store.setReloadTablesHandler([this] { editor.reloadTableViews(); });
        store.setCommitEditingHandler([this] { return editor.commitEditing(); });
        workspace = context.insertObject<LMWorkspace>();
        addApplication(u"Editor"_s, {u"a"_s, u"b"_s, u"c"_s});
        addApplication(u"browser"_s, {u"news"_s});
        store.saveWindows();
        editor.setWorkspace(workspace);
        editor.showWindow();
        // Without a window manager nobody else makes a window active.
        QApplication::setActiveWindow(editor.window());
        select(windows(), 0);
    }

    LMApplication* addApplication(const QString& name, const QStringList& titles) {
        auto* application = context.insertObject<LMApplication>();
        application->setName(name);
        application->setBundleIdentifier(u"org."_s + name);
        workspace->addApplicationsObject(application);
        for (const QString& title : titles) {
            auto* window = context.insertObject<LMWindow>();
            window->setTitle(title);
            window->setSubrole(u"AXStandardWindow"_s);
            window->setChildren(QStringList());
            application->addWindowsObject(LMStoredWindow::storedWindowWithWindow(window));
        }
        return application;
    }

    LMStoredWindowsEditorWindow& window() {
        return *static_cast<LMStoredWindowsEditorWindow*>(editor.window());
    }
    LMTableView& applications() { return *window().applicationsTableView(); }
    LMTableView& windows() { return *window().windowsTableView(); }
    LMTableView& actions() { return *window().actionsTableView(); }
    QPlainTextEdit& script() { return *window().scriptEditor()->shellScriptEditor(); }
    QLineEdit* cellEditor() { return window().findChild<QLineEdit*>(); }

    /// Return and its kin end an edit when the event loop runs again.
    void endEdit(Qt::Key key = Qt::Key_Return) {
        QTest::keyClick(cellEditor(), key);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    static void select(LMTableView& table, int row, int column = 0) {
        table.setFocus();
        table.setCurrentIndex(table.model()->index(row, column));
    }
    static QStringList column(const LMTableView& table, int column) {
        QStringList texts;
        for (int row = 0; row < table.model()->rowCount(); ++row)
            texts.append(table.model()->index(row, column).data().toString());
        return texts;
    }
    QString titles() { return column(windows(), LMStoredWindowsModel::Title).join(u' '); }
    const std::vector<LMAction*>& scripts() { return std::as_const(*workspace).actions(); }
    LMApplication* stored(const QString& name) {
        return workspace->applicationForBundleIdentifier(u"org."_s + name);
    }

    int argumentCount = 1;
    char programName[5] = "rook";
    char* arguments[2] = {programName, nullptr};
    QApplication qtApplication{argumentCount, arguments};
    QObject receiver;
    LMStoredWindowsStore store{environment};
    LMObjectContext& context = store.managedObjectContext();
    LMStoredWindowsEditor editor{environment, store};
    LMWorkspace* workspace = nullptr;
    int saves = 0;
};

TEST_F(StoredWindowsEditor, ChangesStatesAndTakesThatBack) {
    LMStoredWindow* edited = stored(u"browser"_s)->orderedWindows()[0];
    edited->setFrame({10, 20, 300, 200});
    edited->setStateString(QString());
    editor.reloadTableViews();
    auto& menu = *window().findChild<LMStateMenu*>();
    const auto shown = [&] { return column(windows(), LMStoredWindowsModel::State).front(); };
    const auto choose = [&](const QString& text) {
        Q_EMIT menu.aboutToShow();
        const QList<QAction*> entries = menu.actions();
        const auto entry = std::ranges::find(entries, text, &QAction::text);
        ASSERT_NE(entry, entries.end()) << text.toStdString();
        (*entry)->trigger();
    };
    EXPECT_EQ(shown(), u"Frame only"_s);
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
        choose(entry);
        EXPECT_EQ(shown(), expected);
        EXPECT_FALSE(context.hasChanges());
    }
    for (std::size_t row = std::size(rows) - 1; row > 0; --row) {
        QTest::keyClick(&window(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(shown(), rows[row - 1].second);
        EXPECT_EQ(edited->state()->window.normalFrame.has_value(), shown().startsWith(u"Max"_s));
    }
    QTest::keyClick(&window(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(edited->state(), std::nullopt);
    EXPECT_EQ(edited->frame(), QRectF(10, 20, 300, 200));
}

TEST_F(StoredWindowsEditor, EditsLabelsAndPatternsWithTheKeyboard) {
    EXPECT_EQ(column(applications(), 0), (QStringList{u"browser"_s, u"Editor"_s}));
    EXPECT_EQ(titles(), u"news"_s);
    select(applications(), 1);
    EXPECT_EQ(titles(), u"a b c"_s);
    const QString hostile = u"<b>\n"_s + QString(100'000, u'x');
    stored(u"Editor"_s)->orderedWindows()[1]->setLabel(hostile);
    const struct {
        int row, column;
        QString typed;
        Qt::Key end;
        QString label, pattern;
    } rows[] = {
        {0, LMStoredWindowsModel::Label, u"Notes & more"_s, Qt::Key_Return, u"Notes & more"_s, {}},
        {0, LMStoredWindowsModel::Label, u"other"_s, Qt::Key_Escape, u"Notes & more"_s, {}},
        {0, LMStoredWindowsModel::Pattern, u"^(a"_s, Qt::Key_Tab, u"Notes & more"_s, u"^(a"_s},
        {1, LMStoredWindowsModel::Label, {}, Qt::Key_Return, hostile, {}},
    };
    for (const auto& row : rows) {
        select(windows(), row.row, row.column);
        const int before = saves;
        QTest::keyClick(&windows(), Qt::Key_F2);
        ASSERT_NE(cellEditor(), nullptr);
        QTest::keyClicks(cellEditor(), row.typed);
        endEdit(row.end);
        EXPECT_GT(saves, before);
        const LMStoredWindow* window = stored(u"Editor"_s)->orderedWindows()[std::size_t(row.row)];
        EXPECT_EQ(window->label(), row.label);
        EXPECT_EQ(window->titleRegularExpression(), row.pattern);
        EXPECT_FALSE(context.hasChanges());
        EXPECT_LT(column(windows(), LMStoredWindowsModel::Label).join(u' ').size(), 1200);
    }
}

TEST_F(StoredWindowsEditor, KeepsWhatIsBeingTypedWhenTheStoreChanges) {
    select(applications(), 1);
    select(windows(), 1, LMStoredWindowsModel::Label);
    QTest::keyClick(&windows(), Qt::Key_F2);
    QTest::keyClicks(cellEditor(), u"half"_s);
    // A command of the bus: a row above goes, one comes, another application is stored.
    LMApplication* edited = stored(u"Editor"_s);
    edited->removeWindowsObject(edited->orderedWindows()[0]);
    addApplication(u"Another"_s, {u"x"_s});
    store.saveWindows();
    EXPECT_EQ(stored(u"Editor"_s)->orderedWindows()[0]->label(), u"half"_s);
    EXPECT_EQ(titles(), u"b c"_s);
    EXPECT_EQ(applications().currentIndex().row(), 2);
    ASSERT_NE(cellEditor(), nullptr);
    QTest::keyClicks(cellEditor(), u" done"_s);
    endEdit();
    EXPECT_EQ(stored(u"Editor"_s)->orderedWindows()[0]->label(), u"half done"_s);

    // The workspace itself is deleted while a label is typed.
    QTest::keyClick(&windows(), Qt::Key_F2);
    QTest::keyClicks(cellEditor(), u"lost"_s);
    context.deleteObject(workspace);
    store.saveWindows();
    EXPECT_EQ(editor.workspace(), nullptr);
    for (const LMTableView* table : {&applications(), &windows(), &actions()})
        EXPECT_EQ(table->model()->rowCount(), 0);
    EXPECT_FALSE(window().addActionButton()->isEnabled());
    editor.addAction(2);
    editor.remove(&windows());
    EXPECT_TRUE(context.objects<LMWorkspace>().empty());
    editor.close();
    EXPECT_EQ(editor.window(), nullptr);
    editor.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(StoredWindowsEditor, RemovesByKeyAndTakesItBack) {
    const auto counts = [this] {
        return u"%1 %2 %3"_s.arg(context.objects<LMWorkspace>().size())
            .arg(context.objects<LMApplication>().size())
            .arg(context.objects<LMStoredWindow>().size());
    };
    windows().clearSelection();
    QTest::keyClick(&windows(), Qt::Key_Delete);
    EXPECT_EQ(counts(), u"1 2 4"_s) << "nothing was selected";
    const QString pictures = test.folders.screenshotsDirectoryURL();
    context.objects<LMWindow>()[1]->setScreenshotFilename(u"b.png"_s);
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    picture.save(pictures + u"/b.png"_s);
    const struct {
        bool isApplication;
        int row;
        Qt::Key key;
        QString counts, left;
    } rows[] = {
        {true, 0, Qt::Key_Delete, u"1 1 3"_s, u"a b c"_s},
        {false, 1, Qt::Key_Backspace, u"1 1 2"_s, u"a c"_s},
        {false, 0, Qt::Key_Delete, u"1 1 1"_s, u"c"_s},
        {false, 0, Qt::Key_Delete, u"0 0 0"_s, {}},
    };
    QStringList before;
    for (const auto& row : rows) {
        before.append(counts());
        LMTableView& table = row.isApplication ? applications() : windows();
        select(table, row.row);
        QTest::keyClick(&table, row.key);
        EXPECT_EQ(counts(), row.counts);
        EXPECT_EQ(titles(), row.left);
    }
    EXPECT_FALSE(window().addActionButton()->isEnabled());
    while (!before.isEmpty()) {
        QTest::keyClick(&window(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(counts(), before.takeLast());
    }
    workspace = editor.workspace();
    EXPECT_EQ(titles(), u"news"_s) << "what came back last is shown";
    select(applications(), 1);
    EXPECT_EQ(titles(), u"a b c"_s);
    select(windows(), 1);
    EXPECT_TRUE(QTest::qWaitFor([this] {
        return window().screenshotView()->image().size() == QSize(40, 30);
    })) << "the picture is still there";
    QTest::keyClick(&window(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(counts(), u"1 1 3"_s) << "done again";

    // What belongs to another workspace cannot be taken back here.
    editor.setWorkspace(context.insertObject<LMWorkspace>());
    QTest::keyClick(&window(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(context.objects<LMApplication>().size(), 1U);
}

TEST_F(StoredWindowsEditor, TakesBackNothingThatIsStoredAgain) {
    const struct {
        bool isApplication;
        QStringList storedAgain;
        QString undone, redone;
    } rows[] = {
        {false, {u"a"_s, u"b"_s, u"c"_s}, u"a b c"_s, u"a c"_s},
        {false, {u"a"_s, u"c"_s}, u"a b c"_s, u"a c"_s},
        {true, {u"a"_s, u"b"_s}, u"a b c"_s, {}},
        {true, {u"a"_s, u"a"_s, u"b"_s, u"c"_s}, u"a a b c"_s, {}},
    };
    for (const auto& row : rows) {
        workspace = editor.workspace();
        workspace->removeAllWindows();
        addApplication(u"Editor"_s, {u"a"_s, u"b"_s, u"c"_s});
        addApplication(u"browser"_s, {u"news"_s});
        store.saveWindows();
        select(applications(), 1);
        select(windows(), 1);
        QTest::keyClick(row.isApplication ? &applications() : &windows(), Qt::Key_Delete);
        // Everything is stored anew.
        workspace->removeAllWindows();
        addApplication(u"Editor"_s, row.storedAgain);
        store.saveWindows();
        QTest::keyClick(&window(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(titles(), row.undone);
        QTest::keyClick(&window(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(titles(), row.redone);
        QTest::keyClick(&window(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(titles(), row.undone);
    }
}

TEST_F(StoredWindowsEditor, ReordersByKeyAndByDrag) {
    select(applications(), 1);
    select(windows(), 0);
    const auto press = [this](Qt::Key key) {
        QTest::keyClick(&windows(), key, Qt::AltModifier);
        return titles();
    };
    EXPECT_EQ(press(Qt::Key_Down), u"b a c"_s);
    EXPECT_EQ(press(Qt::Key_Down), u"b c a"_s);
    EXPECT_EQ(press(Qt::Key_Down), u"b c a"_s);
    EXPECT_EQ(press(Qt::Key_Up), u"b a c"_s);
    EXPECT_EQ(windows().currentIndex().row(), 1);
    auto& model = static_cast<LMStoredWindowsModel&>(windows().records());
    const std::unique_ptr<QMimeData> dragged(model.mimeData({model.index(2, 0)}));
    EXPECT_FALSE(model.dropMimeData(dragged.get(), Qt::MoveAction, 0, 0, {}));
    EXPECT_EQ(titles(), u"c b a"_s);
    EXPECT_FALSE(context.hasChanges());
    EXPECT_EQ(stored(u"Editor"_s)->orderedWindows()[0]->title(), u"c"_s);
}

TEST_F(StoredWindowsEditor, AddsActionsAndWritesTheirScriptsAsTheyAreTyped) {
    const struct {
        int tag;
        QString runAs, script;
    } rows[] = {
        {1, u"AppleScript"_s, u""_s},
        {2, u"Shell Script"_s, u"#!/bin/bash\n\n"_s},
        {9, u"Shell Script"_s, u""_s},
    };
    for (const auto& row : rows) {
        editor.addAction(row.tag);
        ASSERT_NE(cellEditor(), nullptr);
        QTest::keyClicks(cellEditor(), u"label %1"_s.arg(row.tag));
        endEdit();
        const LMAction* action = scripts().back();
        EXPECT_EQ(action->label(), u"label %1"_s.arg(row.tag));
        EXPECT_EQ(action->runAs(), row.runAs);
        EXPECT_EQ(action->script(), row.script);
        EXPECT_EQ(actions().selectedRecord(), action->objectID());
    }
    const auto& written = scripts();
    QPlainTextEdit& appleScript = *window().scriptEditor()->appleScriptEditor();
    select(actions(), 0);
    EXPECT_TRUE(window().scriptEditor()->appleScriptCompileButton()->isVisible());
    QTest::keyClicks(&appleScript, u"beep"_s);
    select(actions(), 1);
    EXPECT_FALSE(window().scriptEditor()->appleScriptCompileButton()->isVisible());
    script().setFocus();
    script().moveCursor(QTextCursor::End);
    QTest::keyClicks(&script(), u"echo\u00a0hi"_s);
    EXPECT_EQ(written[0]->script(), u"beep"_s);
    EXPECT_EQ(written[1]->script(), u"#!/bin/bash\n\necho\u00a0hi"_s);
    QTest::keyClick(&script(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_FALSE(script().hasFocus());
    select(actions(), 2);
    EXPECT_FALSE(context.hasChanges()) << "leaving the script ends its editing";
    EXPECT_EQ(script().toPlainText(), QString());
    QTest::keyClick(&actions(), Qt::Key_Delete);
    EXPECT_EQ(written.size(), 2U);
    QTest::keyClick(&actions(), Qt::Key_Right);
    QTest::keyClick(&actions(), Qt::Key_Right);
    QTest::keyClick(&actions(), Qt::Key_Space);
    EXPECT_TRUE(written[1]->runOnDisplayChange());
    EXPECT_FALSE(context.hasChanges());
}

TEST_F(StoredWindowsEditor, RunsActionsAndShowsWhatBecameOfTheirScripts) {
    editor.addAction(9);
    const QString file = test.folders.applicationSupportDirectoryURL() + u"/ran"_s;
    script().setPlainText(u"echo yes > '%1'"_s.arg(file));
    editor.runAction();
    EXPECT_TRUE(QFile::exists(file));
    EXPECT_EQ(script().toPlainText(), u"#!/bin/bash\n\necho yes > '%1'"_s.arg(file));
    EXPECT_FALSE(context.hasChanges());
    // What was pressed meanwhile does nothing, what is pressed later does.
    const auto pressDelete = [this] {
        QTest::keyClick(&actions(), Qt::Key_Delete);
        return scripts().empty();
    };
    EXPECT_FALSE(pressDelete());
    EXPECT_TRUE(QTest::qWaitFor(pressDelete));
}

TEST_F(StoredWindowsEditor, ShowsOnlyTheBeginningOfScriptsThatAreTooLongToEdit) {
    const QString line(LMScriptEditor::LongestLine, u'x');
    const struct {
        QString script;
        bool isEdited;
    } rows[] = {
        {line, true},
        {line + u"\n"_s + line, true},
        {line + u"y"_s, false},
        {QString(LMScriptEditor::LongestText + 1, u'\n'), false},
    };
    for (const auto& row : rows) {
        editor.addAction(9);
        auto* action = scripts().back();
        action->setScript(row.script);
        editor.reloadTableViews();
        editor.reloadTableViews();
        select(actions(), 0);
        select(actions(), int(scripts().size()) - 1);
        EXPECT_LE(script().toPlainText().size(), row.isEdited ? row.script.size() : 2000);
        script().moveCursor(QTextCursor::End);
        QTest::keyClicks(&script(), u"z"_s);
        EXPECT_EQ(action->script(), row.isEdited ? row.script + u"z"_s : row.script);
        QGuiApplication::clipboard()->setText(row.script);
        script().paste();
        EXPECT_EQ(action->script(), row.isEdited ? row.script + u"z"_s : row.script);
    }
}

TEST_F(StoredWindowsEditor, ImportsTextAndSaysWhatItCannotImport) {
    const QString shell = u"Could not import Shell Script"_s;
    const struct {
        QString name;
        QByteArray bytes;
        QString label, script, alert;
    } rows[] = {
        {u"Mount.all.sh"_s, "echo \xc3\xa4\n", u"Mount.all"_s, u"echo ä\n"_s, {}},
        {u".scpt"_s, "true", u".scpt"_s, u"true"_s, {}},
        {u"utf16"_s,
         QByteArray("\xff\xfe"
                    "e\0\xe4\0",
                    6),
         u"utf16"_s,
         u"eä"_s,
         {}},
        {u"latin1.sh"_s, "echo \xe4", u"latin1"_s, u"echo ä"_s, {}},
        {u"Foo.SCPT"_s, "Fasd", {}, {}, u"Could not import AppleScript"_s},
        {u"picture.sh"_s, QByteArray("\x89PNG\0\0\1", 7), {}, {}, shell},
        {u"empty.sh"_s, "", {}, {}, shell},
        {u"."_s, {}, {}, {}, shell},
    };
    const QString folder = test.folders.applicationSupportDirectoryURL() + u'/';
    for (const auto& row : rows) {
        QFile file(folder + row.name);
        if (file.open(QIODevice::WriteOnly))
            file.write(row.bytes);
        file.close();
        const std::size_t before = scripts().size();
        editor.importScript(file.fileName());
        QStringList alerts;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* alert = qobject_cast<LMAlertWindow*>(widget)) {
                alerts.append(alert->findChild<QLabel*>(u"message"_s)->text());
                delete alert;
            }
        }
        EXPECT_EQ(alerts.join(u'|'), row.alert) << row.name.toStdString();
        ASSERT_EQ(scripts().size(), before + (row.alert.isEmpty() ? 1 : 0));
        if (!row.alert.isEmpty())
            continue;
        EXPECT_EQ(scripts().back()->label(), row.label);
        EXPECT_EQ(scripts().back()->script(), row.script);
        EXPECT_EQ(cellEditor(), nullptr);
    }
}

TEST_F(StoredWindowsEditor, ShowsWhetherAPatternIsValid) {
    const LMRegularExpressionValidationFormatter formatter;
    EXPECT_FALSE(formatter.displayForm({}));
    EXPECT_EQ(formatter.displayForm(u"^a.*(b|c)"_s)->colour, QColor::fromRgbF(0.27F, 0.63F, 0.02F));
    EXPECT_EQ(formatter.displayForm(u"^a.*(b|c)"_s)->obliqueness, 0.0);
    EXPECT_EQ(formatter.displayForm(u"(a"_s)->colour, QColor(Qt::red));
    EXPECT_EQ(formatter.displayForm(u"(a"_s)->obliqueness, 0.3);
    EXPECT_EQ(formatter.stringForObjectValue(17), QString());

    select(windows(), 0, LMStoredWindowsModel::Pattern);
    QTest::keyClick(&windows(), Qt::Key_F2);
    for (const QString& key : {u"("_s, u"a"_s, u")"_s}) {
        QTest::keyClicks(cellEditor(), key);
        EXPECT_EQ(cellEditor()->font().italic(), key != u")"_s);
    }
}
