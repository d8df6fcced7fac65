// SPDX-License-Identifier: MIT
#include "Model/LMShellScript.h"

#include "Utilities/LMLogger.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>
#include <QStringEncoder>

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <thread>
#include <utility>

extern char** environ;

namespace {

/// Owns a file descriptor; -1 is none.
class Descriptor {
public:
    explicit Descriptor(int descriptor = -1) : m_descriptor(descriptor) {}
    Descriptor(Descriptor&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~Descriptor() { close(); }

    int get() const { return m_descriptor; }
    void close() {
        if (m_descriptor >= 0)
            ::close(std::exchange(m_descriptor, -1));
    }

private:
    int m_descriptor;
};

struct Pipe {
    static std::optional<Pipe> make() {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            return std::nullopt;
        return Pipe{Descriptor(ends[0]), Descriptor(ends[1])};
    }

    Descriptor reading;
    Descriptor writing;
};

bool writeAll(int descriptor, const QByteArray& data) {
    qsizetype written = 0;
    while (written < data.size()) {
        const ssize_t count = ::write(descriptor, data.constData() + written,
                                      static_cast<std::size_t>(data.size() - written));
        if (count < 0 && errno != EINTR)
            return false;
        written += std::max<ssize_t>(count, 0);
    }
    return true;
}

std::optional<pid_t> spawn(const QString& path, const Pipe& input, const Pipe& output) {
    const QByteArray file = QFile::encodeName(path);
    std::array<char*, 2> arguments{const_cast<char*>(file.constData()), nullptr};
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, input.reading.get(), STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, output.writing.get(), STDOUT_FILENO);

    // What this process ignores or blocks for its own sake is not the script's business.
    posix_spawnattr_t attributes;
    ::posix_spawnattr_init(&attributes);
    sigset_t signals;
    ::sigfillset(&signals);
    ::posix_spawnattr_setsigdefault(&attributes, &signals);
    ::sigemptyset(&signals);
    ::posix_spawnattr_setsigmask(&attributes, &signals);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);

    pid_t process = 0;
    const int error =
        ::posix_spawn(&process, file.constData(), &actions, &attributes, arguments.data(), environ);
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? std::optional(process) : std::nullopt;
}

/// A process whose output has ended may go on; somebody has to wait for it, but not the caller.
void reap(pid_t process) {
    if (::waitpid(process, nullptr, WNOHANG) == 0)
        std::thread([process] { ::waitpid(process, nullptr, 0); }).detach();
}

/// Keeps the output only when somebody wants to see it: there may be any amount of it.
QString readToEnd(int descriptor, bool isWanted) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString output;
    while (const auto chunk = LMAvailableDataOrError(descriptor)) {
        if (chunk->isEmpty())
            break;
        if (isWanted)
            output += decoder(*chunk);
    }
    return output;
}

} // namespace

QString LMWriteScriptToTemporaryFile(const QString& script, const QString& namePrefix) {
    const QString directory = QDir::tempPath(); // Empty when $TMPDIR does not exist.
    if (directory.isEmpty())
        return {};
    QByteArray path = QFile::encodeName(directory + u'/' + namePrefix + QStringLiteral(".XXXXXX"));
    Descriptor file(::mkostemp(path.data(), O_CLOEXEC));
    if (file.get() < 0)
        return {};
    QStringEncoder encoder(QStringEncoder::Utf8);
    const QByteArray data = encoder(script);
    if (encoder.hasError())
        return {};
    const bool isWritten = writeAll(file.get(), data);
    // A file open for writing cannot be executed.
    file.close();
    if (!isWritten) {
        ::unlink(path.constData());
        return {};
    }
    return ::chmod(path.constData(), S_IRWXU) == 0 ? QFile::decodeName(path) : QString();
}

void LMRunShellScriptAtPath(const QString& path, const LMLogger& logger) {
    std::optional<Pipe> input = Pipe::make();
    std::optional<Pipe> output = Pipe::make();
    const std::optional<pid_t> process =
        input && output ? spawn(path, *input, *output) : std::nullopt;
    if (!process) {
        logger.error(QStringLiteral("Failed to run shell script"));
        return;
    }
    input->reading.close();
    output->writing.close();
    const QString text = readToEnd(output->reading.get(), logger.isDebugEnabled());
    output->reading.close();
    reap(*process);
    logger.debug(QStringLiteral("Shell script returned: %@"), {text});
}

std::optional<QByteArray> LMAvailableDataOrError(int descriptor) {
    QByteArray chunk(65536, Qt::Uninitialized);
    ssize_t count = -1;
    do {
        count = ::read(descriptor, chunk.data(), static_cast<std::size_t>(chunk.size()));
    } while (count < 0 && errno == EINTR);
    if (count < 0)
        return std::nullopt;
    chunk.truncate(count);
    return chunk;
}
