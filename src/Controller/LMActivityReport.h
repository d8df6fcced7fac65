// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>

class LMActivity;
struct LMEnvironment;

/// What the process is doing and what it did before: {"current", "recent"}, see docs/json.md.
QJsonObject LMActivityReport(const LMActivity& activity);

/// Keeps the report in a file for as long as it lives, for those who ask while the process is held
/// by a script and cannot answer.
class LMActivityFile {
public:
    /// The environment outlives this object. Without a run-time directory there is no file. Files
    /// of processes that have died without removing theirs are removed.
    explicit LMActivityFile(LMEnvironment& environment);
    ~LMActivityFile();
    Q_DISABLE_COPY_MOVE(LMActivityFile)

private:
    void write() const;

    LMEnvironment& m_environment;
    QString m_path;
};
