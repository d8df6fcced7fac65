// SPDX-License-Identifier: MIT
#include "Controller/LMActivityReport.h"

#include "Platform/LMActivity.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMBaseDirectories.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cerrno>
#include <csignal>

namespace {

QJsonArray entries(const QList<LMActivity::Entry>& entries) {
    QJsonArray result;
    for (const LMActivity::Entry& entry : entries) {
        QJsonObject object{{QStringLiteral("label"), entry.label},
                           {QStringLiteral("start"), entry.start.toString(Qt::ISODateWithMs)}};
        if (entry.end.isValid())
            object.insert(QStringLiteral("end"), entry.end.toString(Qt::ISODateWithMs));
        result.append(object);
    }
    return result;
}

/// One that was killed could not remove its file. A process that exists is left alone, whatever it
/// is: it may be a Rook of another session.
void removeFilesOfDeadProcesses(const QFileInfo& own) {
    const QFileInfoList files =
        own.dir().entryInfoList({QStringLiteral("rook-*.json")}, QDir::Files | QDir::NoSymLinks);
    for (const QFileInfo& file : files) {
        const int process = file.completeBaseName().mid(5).toInt();
        const bool isActivityFile = process > 0 && file.filePath() == LMActivityFilePath(process);
        if (isActivityFile && ::kill(process, 0) != 0 && errno == ESRCH)
            QFile::remove(file.filePath());
    }
}

} // namespace

QJsonObject LMActivityReport(const LMActivity& activity) {
    return {{QStringLiteral("current"), entries(activity.current())},
            {QStringLiteral("recent"), entries(activity.recent())}};
}

LMActivityFile::LMActivityFile(LMEnvironment& environment)
    : m_environment(environment), m_path(LMActivityFilePath(QCoreApplication::applicationPid())) {
    if (m_path.isNull())
        return;
    removeFilesOfDeadProcesses(QFileInfo(m_path));
    environment.activity.setChangeHandler([this] { write(); });
}

LMActivityFile::~LMActivityFile() {
    m_environment.activity.setChangeHandler({});
    if (!m_path.isNull())
        QFile::remove(m_path);
}

void LMActivityFile::write() const {
    // Labels name the user's applications and actions: nobody else's business, whatever the umask.
    constexpr auto OwnerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    QFile file(m_path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate, OwnerOnly))
        file.write(QJsonDocument(LMActivityReport(m_environment.activity)).toJson());
}
