// SPDX-License-Identifier: MIT
#include "UserInterface/LMStatusMenuView.h"

#include "UserInterface/LMPresentableText.h"

#include <QCursor>
#include <QIcon>
#include <QPixmap>
#include <QWindow>

#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr int WidestTitle = 45; ///< Average characters.
constexpr auto GrabInterval = 25ms;
constexpr int MostGrabAttempts = 40;

QIcon menuIcon(const QImage& image) {
    if (image.isNull())
        return {};
    const QPixmap pixmap = QPixmap::fromImage(image);
    QIcon icon(pixmap);
    // The line with the application can never be chosen, but its icon tells, so it keeps its
    // colour.
    icon.addPixmap(pixmap, QIcon::Disabled);
    return icon;
}

} // namespace

LMStatusMenuView::LMStatusMenuView(LMStatusMenu& menu, Drawn drawn)
    : m_statusMenu(menu), m_drawn(drawn) {
    m_menu.setObjectName(QStringLiteral("statusItemMenu"));
    m_menu.setWindowTitle(QStringLiteral("Rook Menu"));
    m_menu.setToolTipsVisible(false);
    m_grabTimer.setInterval(GrabInterval);
    connect(&m_menu, &QMenu::aboutToShow, this, &LMStatusMenuView::update);
    connect(&m_menu, &QMenu::aboutToHide, &m_grabTimer, &QTimer::stop);
    connect(&m_grabTimer, &QTimer::timeout, this, &LMStatusMenuView::waitForInput);
    // Later, from the event loop: the menu is off the screen then, and has let go of the keyboard.
    connect(
        &m_menu, &QMenu::triggered, this,
        [this](const QAction* action) {
            m_statusMenu.perform(LMMenuCommand(action->data().toInt()));
        },
        Qt::QueuedConnection);
    // A panel may show the menu before it says that it is about to.
    if (drawn == Drawn::ByPanel)
        update();
}

void LMStatusMenuView::update() {
    m_statusMenu.menuNeedsUpdate();
    const QList<LMMenuItem>& items = m_statusMenu.items();
    // Entries that stay the same objects keep their numbers on the bus, so that a click is
    // understood although the panel still shows the entries as they were.
    if (!fits(items))
        rebuild(items);
    const QList<QAction*> actions = m_menu.actions();
    for (qsizetype index = 0; index < items.size(); ++index)
        show(items.at(index), *actions.at(index));
}

bool LMStatusMenuView::fits(const QList<LMMenuItem>& items) const {
    const auto isSame = [](const LMMenuItem& item, const QAction* action) {
        return item.isSeparator == action->isSeparator() &&
               int(item.command) == action->data().toInt();
    };
    const QList<QAction*> actions = m_menu.actions();
    return std::equal(items.begin(), items.end(), actions.begin(), actions.end(), isSame);
}

void LMStatusMenuView::rebuild(const QList<LMMenuItem>& items) {
    m_menu.clear();
    for (const LMMenuItem& item : items) {
        QAction* action = m_menu.addAction(QString());
        action->setSeparator(item.isSeparator);
        action->setData(int(item.command));
    }
}

void LMStatusMenuView::show(const LMMenuItem& item, QAction& action) const {
    action.setText(presentableTitle(item.title));
    action.setEnabled(item.isEnabled);
    action.setIcon(menuIcon(item.image));
    action.setIconVisibleInMenu(!item.image.isNull());
}

QString LMStatusMenuView::presentableTitle(const QString& title) const {
    const QFontMetrics metrics = m_menu.fontMetrics();
    QString line = metrics.elidedText(LMPresentableLine(title), Qt::ElideMiddle,
                                      metrics.averageCharWidth() * WidestTitle);
    if (m_drawn == Drawn::ByPanel)
        line.replace(QLatin1Char('_'), QLatin1String("__"));
    return LMEscapedAmpersands(line);
}

void LMStatusMenuView::popUpAtCursor() {
    m_menu.popup(QCursor::pos());
    m_grabAttempts = 0;
    waitForInput();
}

/// The toolkit asks once, and opens the menu even if it is refused: while the hot key that opened
/// it, or a mouse button on a panel, is still held down, another client holds the grab.
void LMStatusMenuView::waitForInput() {
    if (grabInput())
        m_grabTimer.stop();
    else if (++m_grabAttempts > MostGrabAttempts)
        m_menu.hide();
    else
        m_grabTimer.start();
}

bool LMStatusMenuView::grabInput() {
    QWindow* window = m_menu.windowHandle();
    return window != nullptr && window->setKeyboardGrabEnabled(true) &&
           window->setMouseGrabEnabled(true);
}
