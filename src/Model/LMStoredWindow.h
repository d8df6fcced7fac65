// SPDX-License-Identifier: MIT
#pragma once

#include "Model/LMMutableSet.h"
#include "Model/LMStoredState.h"
#include "Model/Store/LMManagedObject.h"

#include <QRectF>
#include <QSet>
#include <QStringList>

class LMApplication;
class LMWindow;

/// What Rook remembers of one window: the frame to restore and the snapshots it is recognised by.
class LMStoredWindow final : public LMManagedObject {
public:
    static QString entityName();
    static LMEntityDescription entityDescription();

    /// A new record with the window as its only matching window and the window's frame and
    /// state.
    static LMStoredWindow* storedWindowWithWindow(LMWindow* window);

    // --- the record ---------------------------------------------------------------------------
    /// The user's own name for it; may be absent.
    QString label() const { return m_label; }
    void setLabel(const QString& label);
    /// Pattern searched for in live titles (ICU syntax); may be absent.
    QString titleRegularExpression() const { return m_titleRegularExpression; }
    void setTitleRegularExpression(const QString& pattern);
    /// "{{x, y}, {width, height}}", global display coordinates.
    QString frameString() const { return m_frameString; }
    void setFrameString(const QString& frameString);
    QRectF frame() const;
    void setFrame(const QRectF& frame);
    /// The state to restore along with the frame, as LMStringFromState writes it. It is this record
    /// that carries it, as it carries the frame; snapshots linked later do not change it. Absent in
    /// records made before states were remembered: those restore the frame alone.
    QString stateString() const { return m_stateString; }
    void setStateString(const QString& stateString);
    /// stateString decoded on every access.
    std::optional<LMStoredState> state() const { return LMStateFromString(m_stateString); }
    void setState(const LMStoredState& state) { setStateString(LMStringFromState(state)); }

    LMApplication* application() const;

    // --- matching windows, oldest first in the ordering ---------------------------------------
    LMMutableSet<LMWindow> matchingWindows();
    const std::vector<LMWindow*>& matchingWindows() const { return m_matchingWindows; }
    const QStringList& matchingWindowsOrdering() const { return m_matchingWindowsOrdering; }
    void addMatchingWindowsObject(LMWindow* window);
    void removeMatchingWindowsObject(LMWindow* window);
    void addMatchingWindows(const std::vector<LMWindow*>& windows);
    void removeMatchingWindows(const std::vector<LMWindow*>& windows);
    /// Members in ordering order; drops URIs that no longer resolve.
    std::vector<LMWindow*> orderedMatchingWindows();

    /// The first matching window's title, "No title" without one.
    QString title();
    /// The label, else the first matching window's title, else "Unlabeled Window".
    QString labelOrTitleIfNil();
    QSet<QString> screenshotFilenames() const;
    /// Whether a matching window floats above others.
    bool matchesFloatingWindows() const;

    // --- matching -----------------------------------------------------------------------------
    /// 0 to 11: the best score of the live window against a matching window, plus 6 when the
    /// pattern matches its title.
    unsigned windowMatchScore(const LMWindow& live) const;
    bool matchesRegularExpression(const LMWindow& live) const;
    /// 0 when a recorded title equals the live title (or is absent), else 4294967295.
    quint64 titleStringEditDistance(const LMWindow& live) const;
    LMWindow* identicalMatchingWindow(const LMWindow& live) const;
    /// Links the live window unless an identical one is known, then moves it onto the frame.
    void addMatchingWindow(LMWindow* live);

    std::vector<LMManagedObject*> ownedObjects() const override;

protected:
    void insertPrimitiveMember(LMManagedObject& member) override;
    void removePrimitiveMember(LMManagedObject& member) override;
    void attributeDidNotLoad(const QString& name) override;

private:
    QString m_label;
    QString m_titleRegularExpression;
    QString m_frameString;
    QString m_stateString;
    QStringList m_matchingWindowsOrdering;
    std::vector<LMWindow*> m_matchingWindows;
};
