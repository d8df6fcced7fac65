// SPDX-License-Identifier: MIT
#include "UserInterface/LMProgressWindowController.h"

#include "UserInterface/LMImmediateWindow.h"
#include "UserInterface/LMPresentableText.h"
#include "UserInterface/LMProgressIndicator.h"
#include "UserInterface/LMWindowPlacement.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int Width = 380;
constexpr int Margin = 20;
constexpr int Spacing = 12;

} // namespace

LMProgressWindowController::LMProgressWindowController() = default;
LMProgressWindowController::~LMProgressWindowController() = default;

void LMProgressWindowController::windowDidLoad() {
    m_content = std::make_unique<QFrame>();
    m_content->setObjectName(QStringLiteral("progressWindow"));
    m_content->setWindowTitle(QStringLiteral("Rook Progress"));
    m_content->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Plain));
    m_labelTextField = new QLabel(m_content.get());
    m_labelTextField->setTextFormat(Qt::PlainText);
    m_progressIndicator = new LMProgressIndicator(m_content.get());
    auto* layout = new QVBoxLayout(m_content.get());
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Spacing);
    layout->addWidget(m_labelTextField);
    layout->addWidget(m_progressIndicator);
    m_content->ensurePolished();
    m_content->resize(Width, m_content->sizeHint().height());
    m_window = std::make_unique<LMImmediateWindow>(*m_content);
}

/// The bar and the label as they are, on the screen.
void LMProgressWindowController::display() {
    if (!m_window)
        return;
    m_labelTextField->setText(m_labelTextField->fontMetrics().elidedText(
        LMPresentableLine(m_label), Qt::ElideMiddle, Width - 2 * Margin));
    m_progressIndicator->setMaxValue(m_maxValue);
    m_progressIndicator->setIndeterminate(m_isIndeterminate);
    m_window->draw();
}

void LMProgressWindowController::setLabel(const QString& label) {
    m_label = label;
    display();
}

void LMProgressWindowController::setMaxValue(double maxValue) {
    m_maxValue = maxValue;
    display();
}

void LMProgressWindowController::setIndeterminate(bool isIndeterminate) {
    m_isIndeterminate = isIndeterminate;
    display();
}

void LMProgressWindowController::showWindow() {
    if (!m_window)
        windowDidLoad();
    m_progressIndicator->setDoubleValue(0);
    if (m_isIndeterminate)
        m_progressIndicator->startAnimation();
    display();
    m_window->showAt(LMCentredFrame(m_content->size()).topLeft());
}

void LMProgressWindowController::close() {
    if (!m_window)
        return;
    m_window->hide();
    m_progressIndicator->stopAnimation();
}

void LMProgressWindowController::increment(const LMWorkspace*) {
    if (!m_window)
        return;
    m_progressIndicator->setDoubleValue(m_progressIndicator->doubleValue() + 1);
    m_window->draw();
}

void LMProgressWindowController::animate() {
    if (m_window && m_progressIndicator->isAnimating())
        m_window->draw();
}
