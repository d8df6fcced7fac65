// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

/// Writes the file and answers its path.
inline QString LMWriteFile(const QString& path, const QByteArray& content = "x") {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(content);
    return path;
}

/// Empty when there is no such file.
inline QByteArray LMFileContent(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Calls the function while no file of this process can grow beyond the size, as on a full disk.
void LMWithFullDisk(qint64 size, const auto& function) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit unlimited{};
    EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &unlimited), 0);
    const rlimit limited{rlim_t(size), unlimited.rlim_max};
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limited), 0);
    function();
    ::setrlimit(RLIMIT_FSIZE, &unlimited);
}
