// SPDX-License-Identifier: MIT
// Writes what explains the command line outside the program: the manual page and the completions of
// three shells. Runs while Rook is built.
#include "CommandLine/LMCommandLineDescription.h"
#include "CommandLine/LMManualPage.h"
#include "CommandLine/LMShellCompletion.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <cstdio>

namespace {

bool write(const QString& path, const QString& text) {
    const QByteArray data = text.toUtf8();
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(data) == data.size() && file.commit();
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 3) {
        std::fputs("usage: rook-pages MANUAL-TEMPLATE DIRECTORY\n", stderr);
        return 2;
    }
    QFile manualTemplate(QFile::decodeName(argv[1]));
    if (!manualTemplate.open(QIODevice::ReadOnly)) {
        std::fputs("rook-pages: the template cannot be read\n", stderr);
        return 1;
    }
    const QDir directory(QFile::decodeName(argv[2]));
    const LMCommandLineDescription description = LMDescribeCommandLine();
    const QString manual = LMManualPage(QString::fromUtf8(manualTemplate.readAll()), description);
    const bool isWritten =
        write(directory.filePath(QStringLiteral("rook.1")), manual) &&
        write(directory.filePath(QStringLiteral("rook")), LMShellCompletion::bash(description)) &&
        write(directory.filePath(QStringLiteral("_rook")), LMShellCompletion::zsh(description)) &&
        write(directory.filePath(QStringLiteral("rook.fish")),
              LMShellCompletion::fish(description));
    return isWritten ? 0 : 1;
}
