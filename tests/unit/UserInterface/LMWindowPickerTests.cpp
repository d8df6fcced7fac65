// SPDX-License-Identifier: MIT
#include "Categories/LMImageAdditions.h"
#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Model/Store/LMObjectContext.h"
#include "unit/UserInterface/UserInterfaceTest.h"
#include "UserInterface/WindowLinking/LMStoredWindowPicker.h"
#include "UserInterface/WindowLinking/LMStoredWindowPickerView.h"

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QMouseEvent>

#include <sys/stat.h>

/// The editor's windows "Draft", which has the focus, and "Letter" are stored.
class WindowPicker : public UserInterfaceTest {
protected:
    WindowPicker() {
        defaults.setObject(Keys::FloatingWindowActivationDelay, 0.0);
        perform("SAll", {{u"Overwrite"_s, true}});
        desktop.focus(draft);
        test.notificationCenter.addObserver(LMNotification::SaveWindows, &application, [this] {
            store.saveWindows();
            ++saves;
        });
    }

    /// The toolkit's timer of all animations outlives the application: when it does not hear that
    /// a fade was stopped, no fade of a later test ever ends. One event brings about another.
    void TearDown() override {
        picker.close(false);
        for (int passes = 0; passes < 3; ++passes)
            QCoreApplication::sendPostedEvents();
    }

    LMObjectContext& context() { return store.managedObjectContext(); }
    LMWorkspace& workspace() { return *context().objects<LMWorkspace>().front(); }
    LMApplication& editor() { return *workspace().applicationForBundleIdentifier(u"org.editor"_s); }
    /// The stored windows with what each is recognised by.
    QStringList links() {
        QStringList result;
        for (LMStoredWindow* stored : editor().orderedWindows()) {
            QStringList titles;
            for (const LMWindow* window : stored->orderedMatchingWindows())
                titles.append(window->title());
            result.append(titles.join(u'+'));
        }
        result.sort();
        return result;
    }

    void show() {
        picker.setFocusedWindow(*LMWindow::focusedWindow(context()));
        picker.setWorkspace(workspace());
        picker.showWindow();
    }
    LMStoredWindowPickerWindowView* cell(const QString& label) {
        for (auto* cell : view().windowViews()) {
            if (cell->accessibleName() == label)
                return cell;
        }
        return nullptr;
    }
    LMStoredWindowPickerView& view() { return *picker.storedWindowPickerView(); }
    void mouse(QEvent::Type type, const QPointF& place) {
        const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, place, place, place, Qt::LeftButton, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(&view(), &event);
    }
    void click(const QPointF& place) {
        mouse(QEvent::MouseButtonPress, place);
        mouse(QEvent::MouseButtonRelease, place);
    }
    /// Runs the event loop until the overlay is gone and whatever was chosen is done.
    bool waitUntilHidden() {
        return wait([this] { return !view().isVisible(); });
    }

    int saves = 0;
    LMStoredWindowPicker picker{environment, store, userInterface};
};

TEST_F(WindowPicker, LinksTheWindowToWhatIsClicked) {
    const QStringList before{u"Draft"_s, u"Letter"_s}, linked{u"Letter+Draft"_s};
    const QString question = u"The active window is already linked to another window. Do you want "
                             "to replace the existing link?|The active window will be unlinked "
                             "from the window labelled “Draft” and linked to the window labelled "
                             "“Letter”."_s;
    const struct {
        const char* why;
        QString clicked;
        bool replaces, isSuppressed;
        int asks, saves;
        QStringList links;
    } rows[] = {
        {"the link it has", u"Draft"_s, false, false, 0, 1, before},
        {"cancelled", u"Letter"_s, false, false, 1, 0, before},
        {"suppressed", u"Letter"_s, false, true, 0, 1, linked},
        {"replaced", u"Letter"_s, true, false, 1, 1, linked},
    };
    for (const auto& row : rows) {
        perform("SAll", {{u"Overwrite"_s, true}});
        desktop.focus(draft);
        userInterface.alerts.clear();
        saves = 0;
        userInterface.answer.buttonCode = LMAlertAnswer::FirstButton + (row.replaces ? 0 : 1);
        defaults.setObject(Keys::SuppressLinkActiveWindowAlert, row.isSuppressed);
        show();
        click(cell(row.clicked)->screenshotRectInParent().center());
        EXPECT_FALSE(picker.isOpen());
        EXPECT_EQ(links(), before) << "not before the overlay is out of the picture";
        EXPECT_TRUE(waitUntilHidden());
        EXPECT_EQ(userInterface.alerts, QStringList(row.asks, question)) << row.why;
        EXPECT_EQ(saves, row.saves) << row.why;
        EXPECT_EQ(links(), row.links) << row.why;
    }
    EXPECT_EQ(desktop.window(draft).frame, QRectF(50, 60, 310, 210));
}

TEST_F(WindowPicker, WhatIsGoneIsNotLinked) {
    const auto save = [this] { store.saveWindows(); };
    const auto forget = [this] { editor().removeAllWindows(); };
    const struct {
        const char* why;
        std::function<void()> onClick, duringQuestion;
        int saves;
    } rows[] = {
        {"a save drops live records", save, save, 1},
        {"the stored window", forget, nullptr, 0},
        {"the stored window during the question", save, forget, 0},
        {"the workspace", [this] { context().deleteObject(&workspace()); }, nullptr, 0},
        {"the display", [this] { picker.close(false); }, nullptr, 0},
        {"the window itself", [this] { desktop.removeWindow(draft); }, nullptr, 0},
    };
    userInterface.answer.buttonCode = LMAlertAnswer::FirstButton;
    for (const auto& row : rows) {
        saves = 0;
        perform("SAll", {{u"Overwrite"_s, true}});
        desktop.focus(draft);
        show();
        userInterface.duringModal = row.duringQuestion;
        click(cell(u"Letter"_s)->screenshotRectInParent().center());
        row.onClick();
        EXPECT_TRUE(waitUntilHidden());
        EXPECT_EQ(saves, row.saves) << row.why;
    }
}

TEST_F(WindowPicker, OnlyScreenshotsAreClickable) {
    show();
    const QRectF picture = cell(u"Draft"_s)->screenshotRectInParent();
    mouse(QEvent::MouseMove, picture.center());
    EXPECT_EQ(view().highlightedWindowView(), cell(u"Draft"_s));
    EXPECT_TRUE(cell(u"Draft"_s)->isHighlighted());
    mouse(QEvent::MouseMove, picture.bottomLeft() + QPointF(2, 20)); // On the label.
    EXPECT_EQ(view().highlightedWindowView(), nullptr);
    EXPECT_FALSE(cell(u"Draft"_s)->isHighlighted());
    mouse(QEvent::MouseButtonRelease, picture.center());
    EXPECT_TRUE(picker.isOpen()) << "a release without its press";
    click(picture.bottomLeft() + QPointF(2, 20));
    EXPECT_FALSE(picker.isOpen());
    EXPECT_TRUE(view().windowViews().isEmpty());
    EXPECT_TRUE(waitUntilHidden());
    EXPECT_EQ(saves, 0);

    show();
    picker.findChild<QTimer*>(u"forgotten"_s)->start(0);
    EXPECT_TRUE(waitUntilHidden());
    desktop.makeActive(u"org.browser"_s);
    workspace().applications().removeObject(
        workspace().applicationForBundleIdentifier(u"org.browser"_s));
    show();
    EXPECT_TRUE(view().columns() == 0 && view().windowViews().isEmpty());
    EXPECT_EQ(view().accessibleDescription(),
              u"No windows are stored for “org.browser” with the displays attached now."_s);
    picker.close(false);
    EXPECT_FALSE(view().isVisible()) << "at once";
}

TEST_F(WindowPicker, ShowsWhateverIsStored) {
    const QDir folder(test.folders.screenshotsDirectoryURL());
    QImage picture(400, 300, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(folder.filePath(u"good.png"_s)));
    QFile good(folder.filePath(u"good.png"_s)), damaged(folder.filePath(u"damaged.png"_s));
    ASSERT_TRUE(good.open(QFile::ReadOnly) && damaged.open(QFile::WriteOnly));
    damaged.write(good.readAll().chopped(60));
    damaged.close();
    ASSERT_EQ(mkfifo(folder.filePath(u"pipe.png"_s).toLocal8Bit().constData(), 0600), 0);
    const QSizeF byDefault(320, 200);
    const struct {
        QString file, title, shown;
        QSizeF size;
    } rows[] = {
        {u"good.png"_s, u"<b>bold</b> & co"_s, u"<b>bold</b> & co"_s, {400, 300}},
        {u"damaged.png"_s, u"a\nb\tc\u202E"_s, u"a b c"_s, byDefault},
        {u"pipe.png"_s, QString(100'000, u'w'), {}, byDefault},
        {u"../good.png"_s, u"شاشة"_s, u"شاشة"_s, {400, 300}},
        {u"none.png"_s, u""_s, u""_s, byDefault},
        {{}, u"x"_s, u"x"_s, byDefault},
    };
    editor().removeAllWindows();
    for (const auto& row : rows) {
        LMWindow* window = LMWindow::focusedWindow(context());
        window->setTitle(row.title);
        window->setScreenshotFilename(row.file);
        editor().addWindowsObject(LMStoredWindow::storedWindowWithWindow(window));
    }
    editor().addWindowsObject(context().insertObject<LMStoredWindow>()); // Nothing to show.
    show();
    const auto isLoaded = [](const auto* cell) { return cell->isScreenshotLoaded(); };
    EXPECT_TRUE(wait(
        [&] { return std::ranges::count_if(view().windowViews(), isLoaded) == std::ssize(rows); }));
    for (qsizetype index = 0; index < std::ssize(rows); ++index) {
        LMStoredWindowPickerWindowView* cell = view().windowViews()[index];
        const QRectF area = LMPickerCell::screenshotArea(cell->size());
        EXPECT_EQ(cell->screenshotRect(), LMImageAdditions(rows[index].size).frameForRect(area))
            << index;
        const QString& shown = rows[index].shown;
        EXPECT_TRUE(shown.isNull() ? cell->labelText().contains(u'…') : cell->labelText() == shown);
        EXPECT_LE(cell->accessibleName().size(), 600);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(cell)->role(), QAccessible::Button);
    }
    EXPECT_EQ(view().windowViews().last()->screenshotRect(), QRectF());
    view().grab();
    QAccessible::queryAccessibleInterface(view().windowViews().first())
        ->actionInterface()
        ->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(wait([this] { return !picker.isOpen(); }));
}

TEST_F(WindowPicker, StaysQuickWithFiveHundredWindows) {
    const QString path = QDir(test.folders.screenshotsDirectoryURL()).filePath(u"large.png"_s);
    QImage(1600, 1000, QImage::Format_RGB32).save(path);
    for (int index = 0; index < 498; ++index) {
        LMWindow* window = LMWindow::focusedWindow(context());
        window->setScreenshotFilename(u"large.png"_s);
        editor().addWindowsObject(LMStoredWindow::storedWindowWithWindow(window));
    }
    QElapsedTimer timer;
    timer.start();
    show();
    view().grab();
    EXPECT_EQ(view().windowViews().size(), 500);
    EXPECT_FALSE(view().windowViews().last()->screenshotRect().isEmpty());
    picker.close(false); // Nothing waits for the hundreds of pictures.
    EXPECT_LT(timer.elapsed(), 2000);
}
