// SPDX-License-Identifier: MIT
#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWorkspace.h"
#include "unit/UserInterface/UserInterfaceTest.h"
#include "UserInterface/LMAlertWindow.h"
#include "UserInterface/LMDisplayView.h"
#include "UserInterface/LMStoredWindowsList.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

TEST(DisplayRects, DrawEveryDisplayToOneScaleMainFirst) {
    const QRectF view(0, 0, 300, 200);
    const QRectF main(0, 0, 1920, 1080), left(-1440, 90, 1440, 900), below(0, 1080, 1920, 1080);
    const QRectF half(0, 0, 960, 1080), huge(-1e308, 0, 1e308, 1), far(1e308, 0, 1e308, 1);
    const std::tuple<QList<QRectF>, QRectF, QList<QRectF>> rows[] = {
        {{}, {}, {}},
        {{main}, main, {{100, 71, 100, 58}}},
        {{left, main}, main, {{133, 63, 130, 74}, {37, 69, 97, 62}}},
        {{main, below}, main, {{83, 25, 134, 75}, {83, 100, 134, 75}}},
        {{main, half}, half, {{37, 36, 113, 128}, {37, 36, 226, 128}}}, // The last at the origin.
        {{left}, left, {{100, 68, 100, 64}}},
        {{{0, 0, 0, 0}}, {}, {}},
        {{huge, far}, huge, {}},
    };
    for (auto [displays, first, rects] : rows) {
        EXPECT_EQ(LMDisplayRects(view, displays), rects);
        EXPECT_EQ(displays.value(0), first);
    }
}

class StoredWindowsList : public UserInterfaceTest {
protected:
    static constexpr QRectF Main{0, 0, 1920, 1080};

    StoredWindowsList() {
        store.setReloadTablesHandler([this] { list.reloadTableViews(); });
    }

    void add(const QString& name, const QList<QRectF>& bounds, int windows = 0) {
        desktop.setScreens(bounds);
        auto* workspace = context().insertObject<LMWorkspace>();
        workspace->setName(name);
        auto* member = context().insertObject<LMApplication>();
        workspace->addApplicationsObject(member);
        for (int i = 0; i < windows; ++i)
            member->addWindowsObject(context().insertObject<LMStoredWindow>());
        store.saveWindows();
    }

    QTreeView& view() { return *list.window()->findChild<QTreeView*>(); }
    QAction& action(const QString& name) { return *list.window()->findChild<QAction*>(name); }
    void select(int row) { view().setCurrentIndex(view().model()->index(row, 0)); }
    QStringList texts(int column) { return this->column(view(), column); }
    void expectNothingCanBeDone() {
        for (const char* name : {"edit", "rename", "makeActive", "delete"})
            EXPECT_FALSE(action(QLatin1String(name)).isEnabled()) << name;
        EXPECT_TRUE(list.window()->findChild<LMDisplayView*>()->displays().isEmpty());
        list.removeWorkspace();
        list.editWorkspace();
        list.makeActive();
        EXPECT_FALSE(sheet() && sheet()->isVisible());
        EXPECT_TRUE(list.window()->isVisible());
    }
    LMAlertWindow* sheet() { return list.window()->findChild<LMAlertWindow*>(); }

    LMStoredWindowsList list{environment, store};
};

TEST_F(StoredWindowsList, ShowsWhatAUserWantsToKnow) {
    add(u"Travel"_s, {Main}, 1);
    add({}, {Main, {1920, 0, 1440, 900}}, 1234);
    add(u"Desk 10"_s, {Main, {-1440, 0, 1440, 900}}, 3);
    add(u"Desk 9"_s, {Main, {-1440, 0, 1440, 900}, {1920, 0, 800, 600}});
    add(u"<b>\n\u202e"_s + QString(100000, u'x'), {Main, {0, 1080, 1440, 900}});
    desktop.setScreens({Main, {0, 1080, 1440, 900}});
    list.showWindow();
    EXPECT_EQ(texts(LMWorkspaceListModel::Status),
              QStringList({u"Current"_s, u"Can be made active"_s, u"Can be made active"_s,
                           u"Other displays"_s, u"Other displays"_s}));
    EXPECT_EQ(texts(LMWorkspaceListModel::Name).mid(1),
              QStringList({u"2 Displays"_s, u"Desk 10"_s, u"Desk 9"_s, u"Travel"_s}));
    EXPECT_LE(texts(LMWorkspaceListModel::Name).first().size(), 510);
    EXPECT_EQ(texts(LMWorkspaceListModel::Displays).at(3), u"1920×1080, 1440×900, 800×600"_s);
    EXPECT_EQ(texts(LMWorkspaceListModel::Windows).at(1), QLocale().toString(1234));
    view().sortByColumn(LMWorkspaceListModel::Name, Qt::DescendingOrder);
    EXPECT_EQ(texts(0).mid(0, 3), QStringList({u"Travel"_s, u"Desk 10"_s, u"Desk 9"_s}));
    // The displays change while it is open.
    add(u"Travel too"_s, {Main});
    desktop.setScreens({Main});
    desktop.announceScreenChange();
    EXPECT_EQ(texts(LMWorkspaceListModel::Name).mid(0, 2),
              QStringList({u"Travel too"_s, u"Travel"_s}));
    EXPECT_EQ(texts(LMWorkspaceListModel::Status).mid(0, 3),
              QStringList({u"Same displays"_s, u"Current"_s, u"Other displays"_s}))
        << "commands use the older one";
}

TEST_F(StoredWindowsList, AWorkspaceIsRenamedInPlace) {
    add({}, {Main});
    list.showWindow();
    const std::pair<QString, QString> rows[] = {{u"1 Display"_s, u"1 Display"_s},
                                                {u" Desk & <i> \t"_s, u"Desk & <i>"_s},
                                                {QString(), u"1 Display"_s}};
    for (const auto& [typed, stored] : rows) {
        action(u"rename"_s).trigger();
        auto* field = view().findChild<QLineEdit*>();
        field->selectAll();
        field->insert(typed);
        // Something else is saved in the middle of it, and a display is unplugged.
        test.notificationCenter.postNotification(LMNotification::SaveWindows);
        EXPECT_EQ(context().objects<LMWorkspace>().at(0)->name(), stored);
        desktop.setScreens({{0, 0, 1440, 900}});
        desktop.announceScreenChange();
        EXPECT_EQ(field->text(), typed);
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(field, &enter);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(texts(0), QStringList{stored});
        EXPECT_EQ(context().objects<LMWorkspace>().at(0)->name(), stored);
    }
}

TEST_F(StoredWindowsList, DeletingAsksAndCancelLeavesIt) {
    add(u"A"_s, {Main}, 2);
    add(u"B"_s, {Main}, 2);
    list.showWindow();
    view().clearSelection(); // As Ctrl and a click do; there is a current row yet.
    expectNothingCanBeDone();
    select(1);
    for (const qsizetype left : {2, 1}) { // Cancel, then Delete.
        action(u"delete"_s).trigger();
        sheet()->findChild<QPushButton*>(u"button%1"_s.arg(999 + left))->click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(texts(0).size(), left);
    }
    EXPECT_EQ(context().objects<LMStoredWindow>().size(), 2U);

    // Somebody else deletes it while the question is asked.
    action(u"delete"_s).trigger();
    context().deleteObject(context().objects<LMWorkspace>().at(0));
    store.saveWindows();
    sheet()->findChild<QPushButton*>(u"button1000"_s)->click();
    list.reloadTableViews();
    EXPECT_TRUE(list.window()->findChild<QLabel*>(u"emptyLabel"_s)->isVisible());
    expectNothingCanBeDone();
}
