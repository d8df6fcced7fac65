// SPDX-License-Identifier: MIT
#pragma once

#include "support/LMPrinting.h"
#include "unit/Files.h"
#include "Utilities/LMLogger.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

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
