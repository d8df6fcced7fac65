// SPDX-License-Identifier: MIT
#include "Categories/LMImageAdditions.h"
#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "unit/Files.h"
#include "unit/UserInterface/UserInterfaceTest.h"
#include "UserInterface/WindowLinking/LMStoredWindowPicker.h"
#include "UserInterface/WindowLinking/LMStoredWindowPickerView.h"

#include <QAccessible>
#include <QDir>
#include <QMouseEvent>

#include <sys/stat.h>

/// The editor's windows "Draft", which has the focus, and "Letter" are stored.
class WindowPicker : public UserInterfaceTest {
protected:
    WindowPicker() {
        defaults.setObject(Keys::FloatingWindowActivationDelay, 0.0);
        storeAll();
    }

    /// The toolkit's timer of all animations outlives the application: when it does not hear that
    /// a fade was stopped, no fade of a later test ever ends. One event brings about another.
    void TearDown() override {
        picker.close(false);
        for (int passes = 0; passes < 3; ++passes)
            QCoreApplication::sendPostedEvents();
    }

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

    void storeAll() {
        perform("SAll", {{u"Overwrite"_s, true}});
        desktop.focus(draft);
        saves = 0;
    }
    void show() {
        picker.setFocusedWindow(*LMWindow::focusedWindow(context()));
        picker.setWorkspace(workspace());
        picker.showWindow();
    }
    LMStoredWindowPickerWindowView* cell(const QString& label) {
        return *std::ranges::find(view().windowViews(), label, &QWidget::accessibleName);
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

    /// Stores the window once more, with this picture.
    LMWindow* addWindow(const QString& picture) {
        LMWindow* window = LMWindow::focusedWindow(context());
        window->setScreenshotFilename(picture);
        editor().addWindowsObject(LMStoredWindow::storedWindowWithWindow(window));
        return window;
    }

    LMStoredWindowPicker picker{environment, store, userInterface};
};

TEST_F(WindowPicker, LinksTheWindowToWhatIsClicked) {
    const QStringList before{u"Draft"_s, u"Letter"_s}, linked{u"Letter+Draft"_s};
    const QString question = u"The active window is already linked to another window. Do you want "
                             "to replace the existing link?|The active window will be unlinked "
                             "from the window labelled “Draft” and linked to the window labelled "
                             "“Letter”."_s;
    const std::tuple<const char*, QString, int, bool, int, int, QStringList> rows[] = {
        {"the link it has", u"Draft"_s, 1001, false, 0, 1, before},
        {"cancelled", u"Letter"_s, 1001, false, 1, 0, before},
        {"suppressed", u"Letter"_s, 1001, true, 0, 1, linked},
        {"replaced", u"Letter"_s, 1000, false, 1, 1, linked},
    };
    for (const auto& [why, clicked, answer, isSuppressed, asks, expectedSaves, expected] : rows) {
        userInterface.alerts.clear();
        userInterface.answer.buttonCode = answer;
        defaults.setObject(Keys::SuppressLinkActiveWindowAlert, isSuppressed);
        storeAll();
        show();
        click(cell(clicked)->screenshotRectInParent().center());
        EXPECT_EQ(links(), before) << "not before the overlay is out of the picture";
        EXPECT_TRUE(waitUntilHidden());
        EXPECT_EQ(userInterface.alerts, QStringList(asks, question)) << why;
        EXPECT_EQ(saves, expectedSaves) << why;
        EXPECT_EQ(links(), expected) << why;
    }
    EXPECT_EQ(desktop.window(draft).frame, QRectF(50, 60, 310, 210));
}

TEST_F(WindowPicker, WhatIsGoneIsNotLinked) {
    const auto save = [this] { store.saveWindows(); };
    const auto forget = [this] { editor().removeAllWindows(); };
    using Step = std::function<void()>;
    const std::tuple<const char*, Step, Step, int> rows[] = {
        {"a save drops live records", save, save, 1},
        {"the stored window", forget, nullptr, 0},
        {"the stored window during the question", save, forget, 0},
        {"the workspace", [this] { context().deleteObject(&workspace()); }, nullptr, 0},
        {"the display", [this] { picker.close(false); }, nullptr, 0},
        {"the window itself", [this] { desktop.removeWindow(draft); }, nullptr, 0},
    };
    userInterface.answer.buttonCode = LMAlertAnswer::FirstButton;
    for (const auto& [why, onClick, duringQuestion, expectedSaves] : rows) {
        storeAll();
        show();
        userInterface.duringModal = duringQuestion;
        click(cell(u"Letter"_s)->screenshotRectInParent().center());
        onClick();
        EXPECT_TRUE(waitUntilHidden());
        EXPECT_EQ(saves, expectedSaves) << why;
    }
}

TEST_F(WindowPicker, OnlyScreenshotsAreClickable) {
    show();
    const QRectF picture = cell(u"Draft"_s)->screenshotRectInParent();
    mouse(QEvent::MouseMove, picture.center());
    EXPECT_EQ(view().highlightedWindowView(), cell(u"Draft"_s));
    mouse(QEvent::MouseMove, picture.bottomLeft() + QPointF(2, 20)); // On the label.
    EXPECT_EQ(view().highlightedWindowView(), nullptr);
    mouse(QEvent::MouseButtonRelease, picture.center());
    EXPECT_TRUE(picker.isOpen()) << "a release without its press";
    click(picture.bottomLeft() + QPointF(2, 20));
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
}

TEST_F(WindowPicker, ShowsWhateverIsStored) {
    const QDir folder(test.folders.screenshotsDirectoryURL());
    const QString good = folder.filePath(u"good.png"_s);
    ASSERT_TRUE(QImage(400, 300, QImage::Format_RGB32).save(good));
    LMWriteFile(folder.filePath(u"damaged.png"_s), LMFileContent(good).chopped(60));
    ASSERT_EQ(mkfifo(folder.filePath(u"pipe.png"_s).toLocal8Bit().constData(), 0600), 0);
    const QSizeF byDefault(320, 200);
    const std::tuple<QString, QString, QString, QSizeF> rows[] = {
        {u"good.png"_s, u"<b>bold</b> & co"_s, u"<b>bold</b> & co"_s, {400, 300}},
        {u"damaged.png"_s, u"a\nb\tc\u202E"_s, u"a b c"_s, byDefault},
        {u"pipe.png"_s, QString(100'000, u'w'), {}, byDefault},
        {u"../good.png"_s, u"شاشة"_s, u"شاشة"_s, {400, 300}},
        {u"none.png"_s, u""_s, u""_s, byDefault},
        {{}, u"x"_s, u"x"_s, byDefault},
    };
    editor().removeAllWindows();
    for (const auto& [file, title, shown, size] : rows)
        addWindow(file)->setTitle(title);
    editor().addWindowsObject(context().insertObject<LMStoredWindow>()); // Nothing to show.
    show();
    const auto isLoaded = [](const auto* cell) { return cell->isScreenshotLoaded(); };
    EXPECT_TRUE(wait(
        [&] { return std::ranges::count_if(view().windowViews(), isLoaded) == std::ssize(rows); }));
    for (qsizetype index = 0; index < std::ssize(rows); ++index) {
        LMStoredWindowPickerWindowView* cell = view().windowViews()[index];
        const QRectF area = LMPickerCell::screenshotArea(cell->size());
        const auto& [file, title, shown, size] = rows[index];
        EXPECT_EQ(cell->screenshotRect(), LMImageAdditions(size).frameForRect(area)) << index;
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
    for (int index = 0; index < 498; ++index)
        addWindow(u"large.png"_s);
    QElapsedTimer timer;
    timer.start();
    show();
    view().grab();
    EXPECT_EQ(view().windowViews().size(), 500);
    picker.close(false); // Nothing waits for the hundreds of pictures.
    EXPECT_LT(timer.elapsed(), 2000);
}
