// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMStoredState.h"
#include "Model/Store/LMManagedObject.h"
#include "Platform/LMPlatformTypes.h"

#include <QImage>
#include <QRectF>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

class LMAccessibility;
class LMStoredWindow;

/// A snapshot of a window of another application, taken when it was stored, linked or compared.
///
/// Made from a live element it also keeps that element, so that the window can be moved later; a
/// snapshot loaded from the store has none. The snapshot is never refreshed.
class LMWindow final : public LMManagedObject {
public:
    static QString entityName();
    static LMEntityDescription entityDescription();

    // --- the record ---------------------------------------------------------------------------
    /// Absent (null) only in records of other origin; "" when the title could not be read.
    QString title() const { return m_title; }
    void setTitle(const QString& title);
    QString subrole() const { return m_subrole; }
    void setSubrole(const QString& subrole);
    /// The frame as text, "{{x, y}, {width, height}}", global display coordinates.
    QString frameString() const { return m_frameString; }
    void setFrameString(const QString& frameString);
    /// How it stood, as LMStringFromState writes it; absent in records made before this was read,
    /// and where it could not be read.
    QString stateString() const { return m_stateString; }
    void setStateString(const QString& stateString);
    /// stateString decoded on every access.
    std::optional<LMStoredState> state() const { return LMStateFromString(m_stateString); }
    bool hasToolbarButton() const { return m_hasToolbarButton; }
    void setHasToolbarButton(bool hasToolbarButton);
    bool hasGrowArea() const { return m_hasGrowArea; }
    void setHasGrowArea(bool hasGrowArea);
    bool hasDocument() const { return m_hasDocument; }
    void setHasDocument(bool hasDocument);
    /// The roles of the window's children in child order; absent when never recorded.
    const std::optional<QStringList>& children() const { return m_children; }
    void setChildren(const std::optional<QStringList>& children);
    /// File name within the screenshots folder; "" is none.
    QString screenshotFilename() const { return m_screenshotFilename; }
    void setScreenshotFilename(const QString& screenshotFilename);

    LMStoredWindow* storedWindow() const;

    /// frameString decoded on every access; zero when it cannot be parsed.
    QRectF frame() const;
    /// Changes the record only, never the window itself.
    void setFrame(const QRectF& frame);

    void prepareForDeletion() override;

    // --- the live window ----------------------------------------------------------------------
    /// The record of the window behind an element, inserted into the context; none for modal
    /// windows, the desktop window, and windows whose frame or structure cannot be read.
    static LMWindow* windowWithElement(LMObjectContext& context, const LMElement& element);
    /// The records of an application's windows, front to back, read as one batch; empty when the
    /// application cannot be read.
    static std::vector<LMWindow*> windowsOfProcess(LMObjectContext& context,
                                                   qint64 processIdentifier);
    /// The focused window of the active application, or none.
    static LMWindow* focusedWindow(LMObjectContext& context);
    /// The focused window of one application: where it is not active, the one used last.
    static LMWindow* focusedWindowOfProcess(LMObjectContext& context, qint64 processIdentifier);

    const LMElement& element() const { return m_element; }
    void setElement(const LMElement& element);
    bool isDesktopWindow() const;
    /// Where its picture is kept; null when it has none or there is no folder for pictures.
    QString screenshotPath() const;
    /// The picture taken when the window was stored, or the "DefaultWindow" image.
    QImage screenshot() const;

    // --- matching -----------------------------------------------------------------------------
    /// 0 to 5: likeness of this window to the other. Not symmetric where values are absent.
    unsigned windowMatchScore(const LMWindow& other) const;
    /// The score is greater than 3.
    bool isIdenticalToWindow(const LMWindow& other) const;

    // --- restoring ----------------------------------------------------------------------------
    /// Each sets a part of the live window's frame to the stored window's, or to the frame that its
    /// state asks for instead. A refusal is logged and swallowed.
    void restorePositionWithWindow(const LMStoredWindow& storedWindow,
                                   const std::optional<QRectF>& frame = std::nullopt);
    void restoreSizeWithWindow(const LMStoredWindow& storedWindow,
                               const std::optional<QRectF>& frame = std::nullopt);
    /// Position, a pause of one second, size; the state, where the stored window has one.
    void restoreWithWindow(LMStoredWindow& storedWindow);
    /// Whether moving the window to the rectangle would carry it to another screen with spaces of
    /// its own, which a hidden application does not survive.
    bool settingFrameMayTriggerAccessibilityBug(const QRectF& frame) const;

private:
    /// Fills the record from its element; false when frame or structure cannot be read.
    bool readElement(LMAccessibility& accessibility);

    QString m_title;
    QString m_subrole;
    QString m_frameString;
    QString m_stateString;
    QString m_screenshotFilename;
    std::optional<QStringList> m_children;
    LMElement m_element;
    bool m_hasToolbarButton = false;
    bool m_hasGrowArea = false;
    bool m_hasDocument = false;
};
