// SPDX-License-Identifier: MIT
#include "Platform/LMActivity.h"

#include "Platform/LMClock.h"
#include "Platform/LMEnvironment.h"

namespace {

constexpr qsizetype MaxRecent = 8;
constexpr qsizetype LongestLabel = 300; // It may hold what another program sent.

} // namespace

void LMActivity::begin(const QString& label, const QDateTime& now) {
    m_current.append({label.left(LongestLabel), now});
    if (m_changed)
        m_changed();
}

void LMActivity::end(const QDateTime& now) {
    Entry entry = m_current.takeLast();
    entry.end = now;
    m_recent.prepend(entry);
    if (m_recent.size() > MaxRecent)
        m_recent.removeLast();
    if (m_changed)
        m_changed();
}

LMActivityScope::LMActivityScope(LMEnvironment& environment, const QString& label)
    : m_environment(environment) {
    environment.activity.begin(label, environment.clock.now());
}

LMActivityScope::~LMActivityScope() {
    m_environment.activity.end(m_environment.clock.now());
}
