// SPDX-License-Identifier: MIT
#pragma once

#include "Utilities/LMLogger.h"

#include <QFile>
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
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    QByteArray content(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir directory;
    QStringList messages;
    LMLogger logger =
        LMLogger::withCallback([this](LMLogLevel, const QString& message, const LMSourceLocation&) {
            messages.append(message);
        });
};
