// SPDX-License-Identifier: MIT
#include "UserInterface/LMPreferencesWindowController.h"

#include "UserInterface/LMPreferencesViewController.h"
#include "UserInterface/LMWindowPlacement.h"

#include <QAction>
#include <QEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr int ImageEdge = 24;
constexpr int Margin = 12;
constexpr QSize Decoration(8, 40); ///< What window managers put around a window, about.

} // namespace

LMPreferencesWindowController::LMPreferencesWindowController(Panes panes, QString title,
                                                             LMDesktop& desktop)
    : m_panes(std::move(panes)), m_title(std::move(title)), m_desktop(desktop) {}

LMPreferencesWindowController::~LMPreferencesWindowController() = default;

void LMPreferencesWindowController::makeWindow() {
    m_window = std::make_unique<QWidget>();
    m_window->setObjectName(QStringLiteral("preferencesWindow"));
    m_window->setWindowRole(m_window->objectName());
    m_window->setWindowTitle(m_title);
    m_window->installEventFilter(this);
    m_tabs = new QTabWidget;
    m_tabs->setAccessibleName(m_title);
    m_tabs->setIconSize({ImageEdge, ImageEdge});
    for (const auto& pane : m_panes) {
        // Scrolls only where the screen is too small for the pane.
        auto* area = new QScrollArea;
        area->setObjectName(pane->identifier());
        area->setFrameShape(QFrame::NoFrame);
        area->setWidgetResizable(true);
        area->setFocusPolicy(Qt::NoFocus);
        QWidget* view = pane->loadView();
        area->setWidget(view);
        area->viewport()->setAutoFillBackground(false);
        view->setAutoFillBackground(false);
        view->installEventFilter(this);
        m_tabs->addTab(area, pane->toolbarItemImage(), pane->toolbarItemLabel());
    }
    connect(m_tabs, &QTabWidget::currentChanged, this, &LMPreferencesWindowController::showPane);
    auto* layout = new QVBoxLayout(m_window.get());
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addWidget(m_tabs);
    auto* close = new QAction(m_window.get());
    close->setShortcuts({QKeySequence::Close, QKeySequence(Qt::Key_Escape)});
    connect(close, &QAction::triggered, m_window.get(), &QWidget::close);
    m_window->addAction(close);
}

void LMPreferencesWindowController::showWindow() {
    if (!m_window)
        makeWindow();
    showPane(m_tabs->currentIndex());
    fitWindow();
    if (!m_window->isVisible())
        LMCentreWindow(*m_window);
    LMPresentWindow(*m_window, m_desktop);
}

void LMPreferencesWindowController::showPane(int index) {
    if (m_shownPane == index)
        return;
    if (m_shownPane >= 0)
        m_panes.at(std::size_t(m_shownPane))->viewDidDisappear();
    m_shownPane = index;
    if (index >= 0)
        m_panes.at(std::size_t(index))->viewWillAppear();
}

/// As large as the largest pane, and never larger than the screen. Not for the user to resize.
void LMPreferencesWindowController::fitWindow() {
    const QSize room = m_window->screen()->availableSize() - Decoration;
    for (int i = 0; i < m_tabs->count(); ++i) {
        auto* area = static_cast<QScrollArea*>(m_tabs->widget(i));
        area->setMinimumSize(area->widget()->sizeHint());
    }
    QSize wanted = m_window->sizeHint();
    if (wanted.height() > room.height())
        wanted.rwidth() += m_window->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (wanted != wanted.boundedTo(room))
        for (int i = 0; i < m_tabs->count(); ++i)
            m_tabs->widget(i)->setMinimumSize(0, 0);
    m_window->setFixedSize(wanted.boundedTo(room));
}

bool LMPreferencesWindowController::eventFilter(QObject* object, QEvent* event) {
    if (object == m_window.get() && event->type() == QEvent::Close)
        showPane(-1);
    else if (object != m_window.get() && event->type() == QEvent::LayoutRequest)
        QMetaObject::invokeMethod(this, &LMPreferencesWindowController::fitWindow,
                                  Qt::QueuedConnection);
    return false;
}
