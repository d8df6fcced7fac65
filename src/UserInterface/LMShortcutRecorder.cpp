// SPDX-License-Identifier: MIT
#include "UserInterface/LMShortcutRecorder.h"

#include "Platform/LMDesktop.h"
#include "Platform/LMEnvironment.h"
#include "Platform/LMKeyTable.h"
#include "UserInterface/LMPresentableText.h"
#include "Utilities/LMFormat.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace {

constexpr quint32 BackspaceKey = 0xff08, TabKey = 0xff09, EscapeKey = 0xff1b, DeleteKey = 0xffff;
constexpr int UsualCharacters = 24; ///< That have room.

} // namespace

LMShortcutRecorder::LMShortcutRecorder(LMEnvironment& environment, LMHotKeyCenter& center,
                                       const QString& title, QWidget* parent)
    : QWidget(parent), m_environment(environment), m_center(center), m_title(title),
      m_button(new QPushButton), m_clearButton(new QToolButton) {
    m_button->setObjectName(QStringLiteral("recordButton"));
    m_button->setCheckable(true);
    m_button->setAutoDefault(false);
    m_button->setMinimumWidth(m_button->fontMetrics().averageCharWidth() * UsualCharacters);
    m_button->installEventFilter(this);
    connect(m_button, &QPushButton::clicked, this,
            [this] { isRecording() ? stopRecording() : startRecording(); });
    m_clearButton->setObjectName(QStringLiteral("clearButton"));
    m_clearButton->setIcon(style()->standardIcon(QStyle::SP_LineEditClearButton));
    m_clearButton->setAutoRaise(true);
    m_clearButton->setFocusPolicy(Qt::TabFocus);
    m_clearButton->setToolTip(LMLocalized("Clear"));
    m_clearButton->setAccessibleName(LMFormat(LMLocalized("Clear the hot key “%@”"), {title}));
    connect(m_clearButton, &QToolButton::clicked, this, &LMShortcutRecorder::clear);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_button, 1);
    layout->addWidget(m_clearButton);
    setFocusProxy(m_button);
    setFocusPolicy(Qt::StrongFocus); // Without one a label does not hand it the focus.
    update();
}

LMShortcutRecorder::~LMShortcutRecorder() {
    stopRecording();
}

void LMShortcutRecorder::setAssociatedUserDefaultsKey(const QString& key) {
    m_key = key;
    m_observation = m_environment.userDefaults.addObserver(key, [this] { update(); });
    setObjectName(key);
    update();
}

std::optional<LMShortcut> LMShortcutRecorder::shortcut() const {
    return LMShortcut::fromData(m_environment.userDefaults.dataForKey(m_key));
}

void LMShortcutRecorder::clear() {
    stopRecording();
    m_environment.userDefaults.removeObject(m_key);
}

// --- recording -----------------------------------------------------------------------------

void LMShortcutRecorder::startRecording() {
    if (isRecording())
        return;
    m_suspension.emplace(m_center);
    m_heldModifiers = 0;
    m_hint.clear();
    m_button->setFocus();
    m_button->grabKeyboard();
    update();
}

void LMShortcutRecorder::stopRecording() {
    if (!isRecording())
        return;
    m_button->releaseKeyboard();
    m_suspension.reset();
    m_hint.clear();
    update();
}

bool LMShortcutRecorder::eventFilter(QObject*, QEvent* event) {
    if (isRecording())
        return handleWhileRecording(*event);
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& press = static_cast<const QKeyEvent&>(*event);
    if (press.isAutoRepeat() || (press.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    switch (press.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        startRecording();
        return true;
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        clear();
        return true;
    default:
        return false;
    }
}

/// Whether the event ends here.
bool LMShortcutRecorder::handleWhileRecording(QEvent& event) {
    switch (event.type()) {
    case QEvent::ShortcutOverride: // Not for menus, mnemonics and the like.
        event.accept();
        return true;
    case QEvent::KeyPress:
        return keyPressed(static_cast<const QKeyEvent&>(event));
    case QEvent::KeyRelease:
        keyReleased(static_cast<const QKeyEvent&>(event));
        return true;
    case QEvent::FocusOut:
    case QEvent::Hide:
        stopRecording();
        return false;
    default:
        return false;
    }
}

bool LMShortcutRecorder::keyPressed(const QKeyEvent& event) {
    const auto press =
        m_environment.desktop.hotKeys().keyPress(event.nativeScanCode(), event.nativeModifiers());
    if (event.isAutoRepeat() || !press)
        return true;
    if (const quint32 flag = LMKeyTable::modifierFlag(press->keysym)) {
        m_heldModifiers = press->modifierFlags | flag;
        m_hint.clear();
        update();
        return true;
    }
    if (endedByKey(*press))
        return press->keysym != TabKey;
    record(*press);
    return true;
}

void LMShortcutRecorder::keyReleased(const QKeyEvent& event) {
    const auto press =
        m_environment.desktop.hotKeys().keyPress(event.nativeScanCode(), event.nativeModifiers());
    const quint32 flag = press ? LMKeyTable::modifierFlag(press->keysym) : 0;
    if (event.isAutoRepeat() || flag == 0)
        return;
    m_heldModifiers = press->modifierFlags & ~flag;
    update();
}

/// The keys that do something to the recorder when nothing is held.
bool LMShortcutRecorder::endedByKey(const LMKeyPress& press) {
    if ((press.modifierFlags & ~LMModifier::Shift) != 0)
        return false;
    if (press.keysym == TabKey || press.keysym == EscapeKey) {
        stopRecording();
        return true;
    }
    const bool clears = press.keysym == BackspaceKey || press.keysym == DeleteKey;
    if (clears)
        clear();
    return clears;
}

void LMShortcutRecorder::record(const LMKeyPress& press) {
    const auto recorded = LMShortcut::shortcutWithKeysym(press.keysym, press.modifierFlags);
    if (!recorded) {
        const bool hasModifier = (press.modifierFlags & ~LMModifier::Shift) != 0;
        m_hint = hasModifier || !LMKeyTable::isKey(press.keysym)
                     ? LMLocalized("Not with this key")
                     : LMLocalized("Hold Ctrl, Alt or Super");
        update();
        return;
    }
    stopRecording();
    m_environment.userDefaults.setObject(m_key, recorded->data());
}

// --- showing -------------------------------------------------------------------------------

void LMShortcutRecorder::update() {
    const std::optional<LMShortcut> current = shortcut();
    m_button->setChecked(isRecording());
    m_clearButton->setEnabled(current.has_value() || m_environment.userDefaults.hasObject(m_key));
    if (!isRecording())
        showText(current ? current->description() : LMLocalized("Record Shortcut"));
    else if (!m_hint.isEmpty())
        showText(m_hint);
    else if (m_heldModifiers != 0)
        showText(LMShortcut::modifiersDescription(m_heldModifiers) + QStringLiteral("+…"));
    else
        showText(LMLocalized("Type Shortcut…"));
}

void LMShortcutRecorder::showText(const QString& text) {
    m_text = text;
    const int room = m_button->minimumWidth() - 2 * m_button->fontMetrics().averageCharWidth();
    const QString shown = m_button->fontMetrics().elidedText(text, Qt::ElideMiddle, room);
    m_button->setText(LMEscapedAmpersands(shown));
    m_button->setToolTip(shown == text ? QString() : text);
    m_button->setAccessibleName(LMFormat(LMLocalized("%@: %@"), {m_title, text}));
}

void LMShortcutRecorder::setMessage(const QString& message) {
    m_button->setAccessibleDescription(message);
}

void LMShortcutRecorder::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        stopRecording();
    QWidget::changeEvent(event);
}
