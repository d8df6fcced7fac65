// SPDX-License-Identifier: MIT
#include "Controller/LMActivityReport.h"

#include "Platform/LMActivity.h"
#include "Platform/LMEnvironment.h"
#include "Utilities/LMBaseDirectories.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

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

} // namespace

QJsonObject LMActivityReport(const LMActivity& activity) {
    return {{QStringLiteral("current"), entries(activity.current())},
            {QStringLiteral("recent"), entries(activity.recent())}};
}

LMActivityFile::LMActivityFile(LMEnvironment& environment)
    : m_environment(environment), m_path(LMActivityFilePath(QCoreApplication::applicationPid())) {
    if (!m_path.isNull())
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
