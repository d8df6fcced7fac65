// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMPlatformTypes.h"

/// Reads and changes the windows of other applications, attribute by attribute.
///
/// Every call is synchronous and bounded in time: a frozen client or window manager costs at most
/// the back end's deadline for one window (250 ms) and then answers CannotComplete. Positions and
/// sizes describe the frame the user sees, window manager decorations included and client-side
/// shadows excluded, in global pixels (origin at the top left of the main display, y down).
class LMAccessibility {
public:
    virtual ~LMAccessibility() = default;

    /// The element of the application that the process identifier stands for. The process need
    /// not run: reading from the element answers InvalidElement then.
    virtual LMPlatformResult<LMElement> createApplication(qint64 processIdentifier) = 0;

    /// The value of one attribute. AttributeUnsupported when the element has none.
    virtual LMPlatformResult<LMAttributeValue> copyAttributeValue(const LMElement& element,
                                                                  QLatin1String attribute) = 0;

    /// How many values an array attribute has.
    virtual LMPlatformResult<int> attributeValueCount(const LMElement& element,
                                                      QLatin1String attribute) = 0;

    /// At most maxValues values of an array attribute, from index on.
    virtual LMPlatformResult<QList<LMElement>> copyAttributeValues(const LMElement& element,
                                                                   QLatin1String attribute,
                                                                   int index, int maxValues) = 0;

    /// Whether setAttributeValue may succeed. A fullscreen window has a fixed position and size, a
    /// window that cannot be resized has a fixed size.
    virtual LMPlatformResult<bool> isAttributeSettable(const LMElement& element,
                                                       QLatin1String attribute) = 0;

    /// Changes an attribute and returns when the change is visible to the next read, or when the
    /// deadline has passed. A set that changes nothing returns at once. Success says that the
    /// request was made and answered, not that the window took exactly the value: a window may
    /// round or refuse a size; read it back.
    virtual LMPlatformStatus setAttributeValue(const LMElement& element, QLatin1String attribute,
                                               const LMAttributeValue& value) = 0;

    /// Reads all attributes of the given windows in a constant number of round trips and answers
    /// the following reads of them from memory, until endReading. Setting an attribute of a window
    /// drops what is remembered of it. Calls nest; the memory goes with the outermost end. Prefer
    /// LMReadingScope.
    virtual void beginReading(const QList<LMElement>& windows) = 0;
    virtual void endReading() = 0;

    /// Announces the values that one attribute of many windows is about to be set to, so that a
    /// back end that can may ask for all of them at once and wait for them together. Each window is
    /// still to be set: that does what is left to do, nothing as a rule, and tells of failures.
    /// Takes the time that the windows take; a frozen window manager costs the deadline for one.
    /// Reads until endSetting may be answered from memory, as after beginReading. Prefer
    /// LMSettingScope.
    virtual void beginSetting(QLatin1String /*attribute*/,
                              const QList<LMElementValue>& /*changes*/) {}
    virtual void endSetting() {}
};

/// Sets one attribute of a batch of windows at once for as long as it lives.
class LMSettingScope {
public:
    LMSettingScope(LMAccessibility& accessibility, QLatin1String attribute,
                   const QList<LMElementValue>& changes)
        : m_accessibility(accessibility) {
        m_accessibility.beginSetting(attribute, changes);
    }
    ~LMSettingScope() { m_accessibility.endSetting(); }
    Q_DISABLE_COPY_MOVE(LMSettingScope)

private:
    LMAccessibility& m_accessibility;
};

/// Reads a batch of windows at once for as long as it lives.
class LMReadingScope {
public:
    LMReadingScope(LMAccessibility& accessibility, const QList<LMElement>& windows)
        : m_accessibility(accessibility) {
        m_accessibility.beginReading(windows);
    }
    ~LMReadingScope() { m_accessibility.endReading(); }
    Q_DISABLE_COPY_MOVE(LMReadingScope)

private:
    LMAccessibility& m_accessibility;
};
