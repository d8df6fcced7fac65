// SPDX-License-Identifier: MIT
#pragma once

#include "unit/Files.h"
#include "Utilities/LMLogger.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

// Lets failed expectations print texts.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << (text.isNull() ? "null" : '"' + text.toStdString() + '"');
}

/// A directory that is removed after the test, and the messages logged during it.
class TemporaryDirectoryTest : public testing::Test {
protected:
    QString path(const QString& name) const { return directory.filePath(name); }

    QString write(const QString& name, const QByteArray& content) const {
        return LMWriteFile(path(name), content);
    }
    QByteArray content(const QString& name) const { return LMFileContent(path(name)); }

    QTemporaryDir directory;
    QStringList messages;
    LMLogger logger =
        LMLogger::withCallback([this](LMLogLevel, const QString& message, const LMSourceLocation&) {
            messages.append(message);
        });
};
