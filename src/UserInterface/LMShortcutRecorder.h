// SPDX-License-Identifier: MIT
#pragma once

#include "Controller/LMHotKeyCenter.h"
#include "Utilities/LMUserDefaults.h"

#include <QWidget>

#include <optional>

class QKeyEvent;
class QPushButton;
class QToolButton;
struct LMEnvironment;

/// Shows the shortcut under a key of the user defaults and records another.
///
/// A click, Space or Return begins recording: the keyboard belongs to the recorder then, also for
/// shortcuts of the desktop, and no hot key fires. The next key with its modifiers is the shortcut.
/// Escape leaves all as it was, Backspace and Delete clear, Tab goes on to the next control; so
/// does whatever takes the focus away.
class LMShortcutRecorder final : public QWidget {
    Q_OBJECT
public:
    /// The title is what the shortcut does. The environment outlives the recorder; recording asks
    /// for the center.
    LMShortcutRecorder(LMEnvironment& environment, LMHotKeyCenter& center, const QString& title,
                       QWidget* parent = nullptr);
    ~LMShortcutRecorder() override;

    /// Follows the key from now on, and stores under it.
    void setAssociatedUserDefaultsKey(const QString& key);

    bool isRecording() const { return m_suspension.has_value(); }
    void startRecording();
    void stopRecording();
    void clear();

    /// What the recorder shows now.
    QString text() const { return m_text; }
    /// Said with the shortcut to those who listen: why it does not work.
    void setMessage(const QString& message);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    std::optional<LMShortcut> shortcut() const;
    bool handleWhileRecording(QEvent& event);
    bool keyPressed(const QKeyEvent& event);
    void keyReleased(const QKeyEvent& event);
    bool endedByKey(const LMKeyPress& press);
    void record(const LMKeyPress& press);
    void update();
    void showText(const QString& text);

    LMEnvironment& m_environment;
    LMHotKeyCenter& m_center;
    QString m_title;
    QString m_key;
    QString m_text;
    QString m_hint; ///< Why the latest key would not do.
    LMUserDefaults::Observation m_observation;
    std::optional<LMHotKeyCenter::Suspension> m_suspension; ///< While recording.
    quint32 m_heldModifiers = 0;                            ///< While recording.
    QPushButton* m_button;
    QToolButton* m_clearButton;
};
