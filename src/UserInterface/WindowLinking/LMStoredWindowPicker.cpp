// SPDX-License-Identifier: MIT
#include "UserInterface/WindowLinking/LMStoredWindowPicker.h"

#include "Categories/LMWorkspaceAdditions.h"
#include "Controller/LMCommandFrame.h"
#include "Model/LMApplication.h"
#include "Model/LMStoredWindow.h"
#include "Model/LMStoredWindowsStore.h"
#include "Model/LMWindow.h"
#include "Model/LMWorkspace.h"
#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "UserInterface/WindowLinking/LMStoredWindowPickerView.h"
#include "Utilities/LMLogger.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>

#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto FadeDuration = 250ms;
/// A screen saver cannot lock the screen while the keyboard is taken, so a picker that everybody
/// has forgotten goes away.
constexpr auto LongestIdleTime = 2min;

/// The toolkit's screen for one of the platform's. Their names are equal unless the user has made
/// up monitors; then the places tell.
QScreen* toolkitScreen(const LMScreen& screen) {
    QScreen* main = QGuiApplication::primaryScreen();
    QScreen* found = nullptr;
    for (QScreen* candidate : QGuiApplication::screens()) {
        if (candidate->name() == screen.connectorName)
            return candidate;
        const QPointF place = candidate->geometry().topLeft() - main->geometry().topLeft();
        if (place == screen.displayBounds.topLeft())
            found = candidate;
    }
    return found;
}

LMPickableWindow pickable(LMStoredWindow& storedWindow) {
    const std::vector<LMWindow*> matching = storedWindow.orderedMatchingWindows();
    return {storedWindow.objectID(), storedWindow.labelOrTitleIfNil(), !matching.empty(),
            matching.empty() ? QString() : matching.front()->screenshotPath()};
}

/// A window of ours besides those of the picker.
bool isOtherWindow(const QObject* object) {
    const auto* widget = qobject_cast<const QWidget*>(object);
    return widget != nullptr && widget->isWindow() && widget->windowType() != Qt::ToolTip &&
           qobject_cast<const LMFullscreenWindow*>(widget) == nullptr;
}

} // namespace

LMStoredWindowPicker::LMStoredWindowPicker(LMEnvironment& environment, LMStoredWindowsStore& store,
                                           LMUserInterface& userInterface)
    : m_environment(environment), m_store(store), m_userInterface(userInterface),
      m_window(QStringLiteral("storedWindowPicker")),
      m_view(new LMStoredWindowPickerView(environment.logger, &m_window)) {
    m_fade.setDuration(int(std::chrono::milliseconds(FadeDuration).count()));
    m_forgotten.setObjectName(QStringLiteral("forgotten"));
    m_forgotten.setSingleShot(true);
    m_forgotten.setInterval(LongestIdleTime);
    const auto cancel = [this] { close(true); };
    connect(&m_fade, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& alpha) { setAlpha(alpha.toDouble()); });
    // Not from within the animation: a question has an event loop of its own.
    connect(&m_fade, &QVariantAnimation::finished, this, &LMStoredWindowPicker::finishClosing,
            Qt::QueuedConnection);
    connect(&m_forgotten, &QTimer::timeout, this, cancel);
    connect(m_view, &LMStoredWindowPickerView::cancelled, this, cancel);
    connect(m_view, &LMStoredWindowPickerView::selected, this, &LMStoredWindowPicker::choose);
    connect(m_view, &LMStoredWindowPickerView::touched, this, [this] {
        if (m_isOpen)
            m_forgotten.start();
    });
    // The windows stand on screens of the past.
    for (const auto change : {&QGuiApplication::screenAdded, &QGuiApplication::screenRemoved,
                              &QGuiApplication::primaryScreenChanged})
        connect(qGuiApp, change, this, [this] { close(false); });
}

LMStoredWindowPicker::~LMStoredWindowPicker() {
    m_view->unlockKeyboardFocus();
}

LMObjectContext& LMStoredWindowPicker::context() const {
    return m_store.managedObjectContext();
}

// --- what to show ---------------------------------------------------------------------------

void LMStoredWindowPicker::setFocusedWindow(const LMWindow& focusedWindow) {
    m_focusedWindow = focusedWindow.element();
}

void LMStoredWindowPicker::setWorkspace(LMWorkspace& workspace) {
    const auto running = LMWorkspaceAdditions(m_environment).runningApplication();
    LMApplication* application =
        running ? workspace.applicationForBundleIdentifier(running->bundleIdentifier) : nullptr;
    m_frontmostApplication = application ? application->objectID() : LMObjectID();
    QList<LMPickableWindow> windows;
    if (application) {
        for (LMStoredWindow* storedWindow : application->orderedWindows())
            windows.append(pickable(*storedWindow));
    }
    m_view->setNote(running ? LMRefusal::notStored(running->localizedName)
                            : LMRefusal::noActiveApplication());
    m_view->setWindows({}); // The places below are not theirs.
    place();
    m_view->setWindows(windows);
}

/// Puts the overlay and the grid where the main display is.
void LMStoredWindowPicker::place() {
    const QList<LMScreen> screens = m_environment.desktop.screens().screens();
    if (screens.isEmpty())
        return;
    QScreen* screen = toolkitScreen(screens.first());
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    m_window.setDisplay(screen, screens.first().displayBounds.size());
    m_view->setGeometry(m_window.rect());
    m_view->setUsableFrame(LMUsableFrame(screens.first(), screen->devicePixelRatio()));
}

void LMStoredWindowPicker::createBlankoutWindows() {
    m_blankoutWindows.clear();
    const QList<LMScreen> screens = m_environment.desktop.screens().screens();
    for (qsizetype index = 1; index < screens.size(); ++index) {
        QScreen* screen = toolkitScreen(screens[index]);
        if (screen == nullptr || screen == m_window.screen())
            continue;
        auto window = std::make_unique<LMFullscreenWindow>(QStringLiteral("blankoutWindow"));
        window->setDisplay(screen, screens[index].displayBounds.size());
        connect(window.get(), &LMFullscreenWindow::clicked, this, [this] { close(true); });
        m_blankoutWindows.push_back(std::move(window));
    }
}

// --- showing and hiding ---------------------------------------------------------------------

/// From the back to the front: at odd scales a window may overlap the next display by a pixel.
std::vector<LMFullscreenWindow*> LMStoredWindowPicker::fullscreenWindows() {
    std::vector<LMFullscreenWindow*> windows;
    for (const auto& window : m_blankoutWindows)
        windows.push_back(window.get());
    windows.push_back(&m_window);
    return windows;
}

void LMStoredWindowPicker::setAlpha(double alpha) {
    m_alpha = alpha;
    for (LMFullscreenWindow* window : fullscreenWindows())
        window->setAlpha(alpha);
}

void LMStoredWindowPicker::fadeTo(double alpha) {
    m_fade.stop();
    m_fade.setStartValue(m_alpha);
    m_fade.setEndValue(alpha);
    m_fade.start();
}

void LMStoredWindowPicker::showWindow() {
    m_chosen.reset();
    place();
    // An open menu of ours would let the keyboard go when it closes.
    while (QWidget* popUp = QApplication::activePopupWidget())
        popUp->hide();
    if (!m_window.isVisible())
        orderFront();
    if (m_alpha < 1)
        fadeTo(1);
    m_isOpen = true;
    qApp->installEventFilter(this);
    m_view->lockKeyboardFocus();
    m_forgotten.start();
}

void LMStoredWindowPicker::orderFront() {
    createBlankoutWindows();
    const bool isComposited = m_environment.desktop.appearance().isComposited;
    for (LMFullscreenWindow* window : fullscreenWindows())
        window->prepare(isComposited);
    setAlpha(0);
    for (LMFullscreenWindow* window : fullscreenWindows())
        window->orderFront();
}

void LMStoredWindowPicker::close(bool animated) {
    m_view->unlockKeyboardFocus();
    qApp->removeEventFilter(this);
    m_forgotten.stop();
    const bool wasOpen = std::exchange(m_isOpen, false);
    if (!animated)
        orderOut();
    else if (wasOpen)
        fadeTo(0);
    m_view->setNote({});
    m_view->setWindows({});
}

void LMStoredWindowPicker::orderOut() {
    m_chosen.reset();
    m_fade.stop();
    for (LMFullscreenWindow* window : fullscreenWindows())
        window->orderOut();
    m_blankoutWindows.clear();
    m_alpha = 0;
}

void LMStoredWindowPicker::finishClosing() {
    if (m_isOpen || m_fade.state() == QAbstractAnimation::Running)
        return;
    const auto chosen = m_chosen;
    orderOut();
    if (chosen)
        selectStoredWindow(*chosen);
}

/// The overlay goes first: the program must not stand in the picture that is taken of the window.
void LMStoredWindowPicker::choose(const LMObjectID& storedWindow) {
    if (!m_isOpen)
        return;
    close(true);
    m_chosen = storedWindow;
}

/// Sees all events of the program as long as the picker is open.
bool LMStoredWindowPicker::eventFilter(QObject* object, QEvent* event) {
    switch (event->type()) {
    case QEvent::Show: // Whatever it is would be below the overlay, and without the keyboard.
        if (isOtherWindow(object))
            close(false);
        return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride: // To the window, when its view has not got the focus.
        return object == &m_window && QCoreApplication::sendEvent(m_view, event);
    default:
        return false;
    }
}
