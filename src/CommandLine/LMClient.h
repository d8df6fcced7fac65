// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine/LMInvocation.h"

#include <QDBusConnection>

#include <cstdio>

/// The client half of the binary: asks the resident process over the session bus and prints what it
/// answers.
class LMClient {
public:
    /// Results go to output, reasons for failure to errors, one line each.
    LMClient(const QDBusConnection& bus, std::FILE* output, std::FILE* errors);

    /// Carries out a Command, Report or Quit and answers the exit code. Only a Command starts the
    /// resident process when there is none.
    int run(const LMInvocation& invocation);

private:
    int command(const LMInvocation& invocation);
    int report(const LMInvocation& invocation);
    int quit(const LMInvocation& invocation);

    bool isResidentRunning() const;
    int startResident() const;
    QDBusMessage call(const LMInvocation& invocation) const;
    QDBusMessage ask(const QDBusMessage& message, bool notesDelay) const;
    qint64 residentProcess() const;
    QString activity() const;
    QString activityOfCaller() const;
    QString refusal() const;
    QString whyNoReply(const QDBusMessage& reply) const;
    int notRunning() const;
    int failed(const QString& why) const;
    void print(std::FILE* stream, const QString& text) const;

    QDBusConnection m_bus;
    std::FILE* m_output;
    std::FILE* m_errors;
};
